// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#include "controls/Picture.h"
#include "mainwindow/Form1.h"

#include <QAction>

void Form1::PlaceRoll(PictureButton& cell, std::int16_t row, std::int16_t column) {
    if (board_.At(row, column) != 0 || pendingRoll_ == 0) {
        speech_.RefuseCell(board_.At(row, column) != 0);
        return;
    }
    // Before the scoring, which switches rolling off again if the board is full.
    image1_->show();
    mnuGameRoll_->setEnabled(true);
    board_.Set(row, column, pendingRoll_);
    if (board_.IsFull()) {
        cell.setFocus(); // the scoring moves the focus to New Game at its end
    } else {
        image1_->setFocus();
    }
    ShowCell(cell, row, column);
    currentCell_ = {row, column};
    speech_.Placed(currentCell_, pendingRoll_);
    pendingRoll_ = 0;
    ShowSum(QString());
    imgRolled1_->hide();
    imgRolled2_->hide();
    RepaintEffects();
    UpdateScores();
    speech_.Announce();
}
