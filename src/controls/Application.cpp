// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#include "controls/Application.h"

#include "controls/Accessibility.h"

#include <QKeyEvent>

namespace {

bool MovesFocus(int key) {
    switch (key) {
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_Home:
    case Qt::Key_End:
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
        return true;
    default:
        return false;
    }
}

} // namespace

Application::Application(char* argv[]) : QApplication(argumentCount_, argv) {
    InstallAccessibility();
}

// Not an event filter: with a screen reader, a filter of Qt's own comes first and replaces key events with copies that
// have no timestamps.
bool Application::notify(QObject* receiver, QEvent* event) {
    if (auto* key = dynamic_cast<QKeyEvent*>(event); key != nullptr && key->spontaneous()) {
        if (key->type() == QEvent::KeyRelease) {
            releasedKey_ = key->key();
            releaseTime_ = key->timestamp();
        } else if (IsRepeat(*key) && !MovesFocus(key->key())) {
            key->accept(); // otherwise Qt tries it as a shortcut
            return true;
        }
    }
    return QApplication::notify(receiver, event);
}

// X11 sends each repeat as a release and a press with the same timestamp. Qt marks them as a repeat only if it reads
// both at once. Some virtual keyboards for Wayland send all keys with the timestamp 0. On Windows Qt marks every
// repeat, and the timestamp is the time when Qt reads the key, so that of a quick new press can be the same.
bool Application::IsRepeat(const QKeyEvent& press) const {
#ifdef Q_OS_WIN
    return press.isAutoRepeat();
#else
    const bool isAtOnce = press.timestamp() != 0 && press.timestamp() == releaseTime_;
    return press.isAutoRepeat() || (press.key() == releasedKey_ && isAtOnce);
#endif
}
