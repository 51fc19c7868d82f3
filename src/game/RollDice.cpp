// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#include "controls/Label.h"
#include "controls/Picture.h"
#include "game/Dice.h"
#include "mainwindow/Form1.h"
#include "mainwindow/Prompts.h"
#include "mainwindow/SpokenNames.h"
#include "platform/Int16.h"

#include <QAction>

using namespace Qt::StringLiterals;

namespace {

// A roll that starts inside a pause of another one nests deeper, and the stack is finite.
constexpr int maxNestedPauses = 64;

// Only a die that is shown gets a name: a screen reader that meets it while it is hidden goes on ignoring it.
void NameShownDie(Picture& die, const QString& ordinal) {
    if (!die.isHidden()) {
        die.setAccessibleName(SpokenNames::Die(ordinal, die.Index()));
    }
}

} // namespace

void Form1::Image1_Click() {
    RollDice();
}

void Form1::mnuGameRoll_Click() {
    RollDice();
}

void Form1::RollDice() {
    if (pendingRoll_ != 0) {
        return;
    }
    FocusEmptyCell();
    image1_->hide();
    mnuGameRoll_->setEnabled(false);

    platform_.reseed(platform_.second());
    const std::int16_t firstDie = RollDie(platform_.nextUniform());
    const std::int16_t secondDie = RollDie(platform_.nextUniform());
    pendingRoll_ = CheckedAdd(secondDie, firstDie);
    isRollRevealed_ = false;
    imgRolled1_->SetPicture(imageList1_, firstDie);
    imgRolled2_->SetPicture(imageList1_, secondDie);
    NameShownDie(*imgRolled2_, u"Second"_s); // shown if an earlier roll was placed inside its pause
    speech_.Rolled(firstDie, secondDie);

    // The roll may be placed, or a new game started, inside either pause. The remaining steps run all the same, with
    // the fields as they are then.
    imgRolled1_->show();
    NameShownDie(*imgRolled1_, u"First"_s);
    RepaintEffects();
    Pause();
    imgRolled2_->show();
    NameShownDie(*imgRolled2_, u"Second"_s);
    Pause();
    ShowSum(u"= %1"_s.arg(pendingRoll_));
    isRollRevealed_ = true;
    prompt_->SetCaption(Prompts::select);
    speech_.Announce();
    RepaintEffects();
}

// Counts passes of the event loop. It is not a measured time, by design.
void Form1::Pause() {
    if (nestedPauses_ == maxNestedPauses) {
        return;
    }
    ++nestedPauses_;
    for (std::int16_t outer = 1; outer <= 1000; outer = CheckedAdd(outer, 1)) {
        for (std::int16_t inner = 1; inner <= 250; inner = CheckedAdd(inner, 1)) {
            platform_.pumpEvents();
        }
    }
    --nestedPauses_;
}
