// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#include "highscores/DateTimeText.h"

#include "platform/Int16.h"
#include "platform/Platform.h"

QString TwoDigits(std::int16_t value) {
    const QString digits = QString::number(value);
    return value < 10 ? u'0' + digits : digits;
}

QString DateTimeText(const Platform& platform) {
    QString text = QString::number(platform.year());
    text += u'/';
    text += QString::number(platform.month());
    text += u'/';
    text += QString::number(platform.day());
    text += u' ';
    text += QString::number(platform.hour());
    text += u':';
    text += TwoDigits(ToInt16(platform.minute()));
    return text;
}
