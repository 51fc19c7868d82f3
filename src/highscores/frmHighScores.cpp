// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#include "highscores/frmHighScores.h"

#include "controls/Label.h"
#include "mainwindow/SpokenNames.h"
#include "platform/Int16.h"

#include <QPushButton>

using namespace Qt::StringLiterals;

frmHighScores::frmHighScores(const HighScoreTable& table, QSettings& store)
    : GreenDialog(u"frmHighScores"_s, u"High Scores"_s, QSize(402, 143)), store_(store) {
    auto* okButton = AddButton(u"OKButton"_s, u"OK"_s, {304, 8, 89, 25});
    auto* cancelButton = AddButton(u"CancelButton"_s, u"Reset Scores"_s, {304, 40, 89, 25});
    connect(okButton, &QPushButton::clicked, this, &frmHighScores::OKButton_Click);
    connect(cancelButton, &QPushButton::clicked, this, &frmHighScores::CancelButton_Click);

    std::int16_t rank = 1;
    for (Label*& label : lblHighScore_) {
        const int index = rank - 1;
        const QRect place(8, 8 + 24 * index, 281, 25);
        label = AddLabel({u"lblHighScore(%1)"_s.arg(index), place, Colours::white, TypeSize::Chart, QFont::Bold,
                          u"999  Anonymous"_s}); // as designed; it never shows
        label->SetCaption(table.Caption(rank));
        label->setAccessibleName(SpokenNames::Rank(rank, table.At(rank)));
        rank = CheckedAdd(rank, 1);
    }
    FitLabels();
}

void frmHighScores::OKButton_Click() {
    Unload();
}

void frmHighScores::CancelButton_Click() {
    HighScoreTable().Save(store_); // the window's own table stays
    hasReset_ = true;
    for (Label* label : lblHighScore_) {
        label->SetCaption(u"0"_s);
    }
    Unload();
}
