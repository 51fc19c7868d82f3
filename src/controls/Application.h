// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QApplication>

class QKeyEvent;

// An application in which a held key acts once: only keys that move the focus are repeated. A screen reader finds the
// controls as InstallAccessibility arranges them.
class Application : public QApplication {
public:
    // Uses the program's name only: the game takes no options, not even those of Qt.
    explicit Application(char* argv[]);

    bool notify(QObject* receiver, QEvent* event) override;

private:
    bool IsRepeat(const QKeyEvent& press) const;

    static inline int argumentCount_ = 1; // Qt keeps a reference to it

    int releasedKey_ = 0;
    quint64 releaseTime_ = 0;
};
