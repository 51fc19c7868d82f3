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
    // The first frame is settled when the window can be seen.
    if (watched == windowHandle() && event->type() == QEvent::Expose && windowHandle()->isExposed()) {
        isFrameKnown_ ? FollowFrame() : OnFrameKnown();
    }
    return QMainWindow::eventFilter(watched, event);
}

bool Form1::nativeEvent(const QByteArray& kind, void* message, qintptr* result) {
    // Under X11 a change of the frame is a change of one of the window's properties, which Qt takes up without an
    // event.
    constexpr quint8 propertyNotify = 28;
    if (kind == "xcb_generic_event_t" && (*static_cast<const quint8*>(message) & 0x7f) == propertyNotify) {
        QMetaObject::invokeMethod(this, &Form1::FollowFrame, Qt::QueuedConnection);
    }
    return QMainWindow::nativeEvent(kind, message, result);
}

void Form1::resizeEvent(QResizeEvent* event) {
    QMainWindow::resizeEvent(event);
    if (isFrameKnown_) {
        FollowFrame();
        Form_Resize();
    }
}

void Form1::closeEvent(QCloseEvent* event) {
    event->accept();
    platform_.endProcess();
}
