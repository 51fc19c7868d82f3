// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#include "controls/Label.h"
#include "controls/LineShape.h"
#include "controls/Picture.h"
#include "mainwindow/Form1.h"
#include "mainwindow/Prompts.h"
#include "mainwindow/SpokenNames.h"
#include "platform/Int16.h"

#include <QAction>

void Form1::UpdateScores() {
    std::int16_t total = 0;
    for (const LineControls& controls : lines_) {
        const auto score = ScoreLine(controls.line, board_);
        if (score) {
            controls.readOut->SetCaption(QString::number(*score));
            controls.readOut->setAccessibleName(SpokenNames::Line(controls.line, *score));
            speech_.LineScored(controls.line, *score);
        }
        controls.readOut->setVisible(score.has_value());
        controls.marker->setVisible(score.has_value());
        controls.strike->setVisible(score.has_value());
        total = CheckedAdd(total, score.value_or(0));
    }
    lblTotal_->SetCaption(QString::number(total));
    lblTotal_->setAccessibleName(SpokenNames::Total(total));

    if (!board_.IsFull()) {
        prompt_->SetCaption(Prompts::roll);
        speech_.TotalScored(total);
        return;
    }
    prompt_->SetCaption(Prompts::over);
    speech_.GameOver();
    speech_.TotalScored(total);
    image1_->hide();
    mnuGameRoll_->setEnabled(false);
    RecordHighScore(total);
    imgNewGame_->setFocus(); // last, because a screen reader that hears of it amid the high scores starts them again
}
