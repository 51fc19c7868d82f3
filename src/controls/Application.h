// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QApplication>

class QKeyEvent;

// An application in which a held key acts once: only keys that move the focus are repeated.
class Application : public QApplication {
public:
    using QApplication::QApplication;

    bool notify(QObject* receiver, QEvent* event) override;

private:
    bool IsRepeat(const QKeyEvent& press) const;

    int releasedKey_ = 0;
    quint64 releaseTime_ = 0;
};
