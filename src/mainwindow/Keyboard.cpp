// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#include "controls/Picture.h"
#include "mainwindow/Form1.h"

#include <QAction>
#include <QKeyEvent>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

// The number in 1..5 that follows in a direction (1 or -1); 1 follows 5.
std::int16_t Wrapped(std::int16_t number, int direction) {
    return static_cast<std::int16_t>((number - 1 + direction + Board::Side) % Board::Side + 1);
}

} // namespace

void Form1::mousePressEvent(QMouseEvent* event) {
    PictureButton::ShowFocus(false);
    QMainWindow::mousePressEvent(event);
}

void Form1::keyPressEvent(QKeyEvent* event) {
    if ((event->modifiers() & ~Qt::KeypadModifier) != 0) {
        // The shortcut arrives here only while its menu entry is disabled.
        if (mnuGameRoll_->shortcut() == QKeySequence(event->keyCombination())) {
            speech_.RefuseRoll(RevealedRoll(), board_.IsFull());
        }
        QMainWindow::keyPressEvent(event);
        return;
    }
    auto [row, column] = currentCell_;
    switch (event->key()) {
    case Qt::Key_Left:
        column = Wrapped(column, -1);
        break;
    case Qt::Key_Right:
        column = Wrapped(column, 1);
        break;
    case Qt::Key_Up:
        row = Wrapped(row, -1);
        break;
    case Qt::Key_Down:
        row = Wrapped(row, 1);
        break;
    case Qt::Key_Home:
        column = 1;
        break;
    case Qt::Key_End:
        column = Board::Side;
        break;
    default:
        QMainWindow::keyPressEvent(event);
        return;
    }
    // If a button has the focus, the first key only moves it to the grid.
    if (focusWidget() == &CurrentCell()) {
        currentCell_ = {row, column};
    }
    speech_.StepTaken();
    CurrentCell().setFocus(Qt::OtherFocusReason);
}

bool Form1::focusNextPrevChild(bool next) {
    std::array<QWidget*, 3> stops{&CurrentCell(), image1_, imgNewGame_};
    if (!next) {
        std::reverse(stops.begin(), stops.end());
    }
    // A control also passes its focus on when it is being hidden, so the one that has the focus may be invisible.
    std::rotate(stops.begin(), std::find(stops.begin(), stops.end(), focusWidget()), stops.end());
    const auto target =
        std::find_if(stops.begin() + 1, stops.end(), [](const QWidget* stop) { return stop->isVisible(); });
    if (target != stops.end()) {
        (*target)->setFocus(next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
    }
    return true;
}

void Form1::FollowFocus() {
    for (const CellPosition& position : boardCells) {
        if (focusWidget() == &Cell(position.row, position.column)) {
            currentCell_ = position;
        }
    }
}

PictureButton& Form1::CurrentCell() const {
    return Cell(currentCell_.row, currentCell_.column);
}

void Form1::FocusEmptyCell() {
    for (int tried = 0; tried < int{boardCells.size()} && board_.At(currentCell_.row, currentCell_.column) != 0;
         ++tried) {
        currentCell_.column = Wrapped(currentCell_.column, 1);
        if (currentCell_.column == 1) {
            currentCell_.row = Wrapped(currentCell_.row, 1);
        }
    }
    CurrentCell().setFocus(Qt::OtherFocusReason);
}
