// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#include "mainwindow/Form1.h"
#include "platform/X11Event.h"

#include <QCloseEvent>
#include <QEvent>
#include <QWindow>

void Form1::showEvent(QShowEvent* event) {
    QMainWindow::showEvent(event);
    if (!isLoaded_) {
        isLoaded_ = true;
        windowHandle()->installEventFilter(this);
        Form_Load();
    }
}

bool Form1::eventFilter(QObject* watched, QEvent* event) {
    // When the window becomes visible, the window manager has framed it.
    if (watched == windowHandle() && event->type() == QEvent::Expose && windowHandle()->isExposed()) {
        isFrameKnown_ ? UpdateFrame() : StartLayout();
    } else if (event->type() == QEvent::FocusIn) {
        FollowFocus();
    }
    return QMainWindow::eventFilter(watched, event);
}

bool Form1::nativeEvent(const QByteArray& eventType, void* message, qintptr* result) {
    // Under X11 a window's frame is one of its properties. Qt reads a changed frame without sending an event.
    if (IsX11PropertyNotify(eventType, message)) {
        QMetaObject::invokeMethod(this, &Form1::UpdateFrame, Qt::QueuedConnection);
    }
    return QMainWindow::nativeEvent(eventType, message, result);
}

void Form1::changeEvent(QEvent* event) {
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::WindowStateChange && isFrameKnown_) {
        Form_Resize(); // a window can change its size while it is minimised
    }
}

void Form1::resizeEvent(QResizeEvent* event) {
    QMainWindow::resizeEvent(event);
    if (isFrameKnown_) {
        UpdateFrame();
        Form_Resize();
    }
}

void Form1::closeEvent(QCloseEvent* event) {
    event->accept();
    platform_.endProcess();
}
