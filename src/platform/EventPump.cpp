// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#include "platform/EventPump.h"

#include <QCoreApplication>

void QtEventPump::Pass() {
    QCoreApplication::processEvents();
}
