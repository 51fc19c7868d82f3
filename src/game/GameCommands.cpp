// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#include "controls/Accessibility.h"
#include "controls/Picture.h"
#include "dialogs/frmAbout.h"
#include "dialogs/frmHelp.h"
#include "mainwindow/Form1.h"

#include <QAction>
#include <QMessageBox>

using namespace Qt::StringLiterals;

namespace {

// Whether the player answers Yes. Does not ask while another dialog is open: the answer is No.
bool Confirm(QWidget* window, const QString& question) {
    AwaitSpokenKey();
    if (IsDialogOpen()) {
        return false;
    }
    QMessageBox box(QMessageBox::NoIcon, u"Kelvaro"_s, question, QMessageBox::Yes | QMessageBox::No, window);
    box.setDefaultButton(QMessageBox::Yes);
    box.setTextInteractionFlags(Qt::NoTextInteraction); // a screen reader skips text that can take the focus
    return box.exec() == QMessageBox::Yes;
}

} // namespace

void Form1::Form_Load() {
    LoadHighScores();
    StartNewGame();
}

void Form1::StartNewGame() {
    board_.Clear();
    pendingRoll_ = 0;
    speech_.NewGame();
    UpdateScores();
    for (const CellPosition& cell : boardCells) {
        ShowCell(Cell(cell.row, cell.column), cell.row, cell.column);
    }
    mnuGameRoll_->setEnabled(true);
    image1_->show();
    image1_->setFocus();
    imgRolled1_->hide();
    imgRolled2_->hide();
    ShowSum(QString());
    currentCell_ = {};
    RepaintEffects();
    speech_.Announce();
}

void Form1::imgNewGame_Click() {
    mnuNewGame_Click();
}

void Form1::mnuNewGame_Click() {
    if (board_.IsFull() || Confirm(this, u"Are you sure you want to quit this game and start a new one?"_s)) {
        StartNewGame();
    }
}

void Form1::mnuGameExit_Click() {
    if (Confirm(this, u"Are you sure you want to quit?"_s)) {
        platform_.endProcess();
    }
}

void Form1::mnuHelpHow_Click() {
    frmHelp().ShowModal(*this);
}

void Form1::mnuHelpAbout_Click() {
    frmAbout().ShowModal(*this);
}
