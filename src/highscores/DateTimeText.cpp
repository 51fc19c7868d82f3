// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#include "highscores/DateTimeText.h"

#include "platform/Int16.h"
#include "platform/Platform.h"

using namespace Qt::StringLiterals;

QString TwoDigits(std::int16_t value) {
    const QString digits = QString::number(value);
    return value < 10 ? u'0' + digits : digits;
}

QString DateTimeText(const Platform& platform) {
    // The clock is read in this order, because the object of a call is evaluated before its arguments.
    return u"%1/%2/%3 %4:%5"_s.arg(platform.year())
        .arg(platform.month())
        .arg(platform.day())
        .arg(platform.hour())
        .arg(TwoDigits(ToInt16(platform.minute())));
}
