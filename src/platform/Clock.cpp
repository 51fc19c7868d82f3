// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#include "platform/Clock.h"

#include <QDateTime>

int SystemClock::Year() const {
    return QDate::currentDate().year();
}

int SystemClock::Month() const {
    return QDate::currentDate().month();
}

int SystemClock::Day() const {
    return QDate::currentDate().day();
}

int SystemClock::Hour() const {
    return QTime::currentTime().hour();
}

int SystemClock::Minute() const {
    return QTime::currentTime().minute();
}

int SystemClock::Second() const {
    return QTime::currentTime().second();
}
