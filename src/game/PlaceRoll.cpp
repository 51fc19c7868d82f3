// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#include "controls/Picture.h"
#include "mainwindow/Form1.h"
#include "mainwindow/SpokenNames.h"

#include <QAction>

void Form1::PlaceRoll(PictureButton& cell, std::int16_t row, std::int16_t column) {
    if (board_.At(row, column) != 0 || pendingRoll_ == 0) {
        Refuse(board_.At(row, column) != 0 ? SpokenNames::filled : SpokenNames::noRoll);
        return;
    }
    // Before the scoring, which takes rolling away again when the board is full.
    image1_->show();
    image1_->setFocus();
    mnuGameRoll_->setEnabled(true);

    board_.Set(row, column, pendingRoll_);
    ShowCell(cell, row, column);
    currentCell_ = {row, column}; // also where the scoring looks for lines that are now finished
    Tell(SpokenNames::Placed(row, column, pendingRoll_));
    pendingRoll_ = 0;
    ShowSum(QString());
    imgRolled1_->hide();
    imgRolled2_->hide();
    RepaintEffects();
    UpdateScores();
    AnnounceNews();
}
