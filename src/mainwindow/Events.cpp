// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#include "mainwindow/Form1.h"

#include <QCloseEvent>
#include <QEvent>
#include <QWindow>

bool Form1::event(QEvent* event) {
    // A menu entry's status tip would overwrite the prompt.
    return event->type() == QEvent::StatusTip || QMainWindow::event(event);
}

void Form1::showEvent(QShowEvent* event) {
    QMainWindow::showEvent(event);
    if (!isLoaded_) {
        isLoaded_ = true;
        windowHandle()->installEventFilter(this);
        Form_Load();
    }
}

bool Form1::eventFilter(QObject* watched, QEvent* event) {
    // The window manager announces no change of its frame; it is settled when the window can be seen.
    if (watched == windowHandle() && event->type() == QEvent::Expose && windowHandle()->isExposed()) {
        if (!isFrameKnown_) {
            OnFrameKnown();
        } else if (windowHandle()->frameMargins() != frame_) {
            OnFrameChanged();
        }
    }
    return QMainWindow::eventFilter(watched, event);
}

void Form1::resizeEvent(QResizeEvent* event) {
    QMainWindow::resizeEvent(event);
    if (isFrameKnown_) {
        frame_ = windowHandle()->frameMargins();
        Form_Resize();
    }
}

void Form1::closeEvent(QCloseEvent* event) {
    event->accept();
    platform_.endProcess();
}
