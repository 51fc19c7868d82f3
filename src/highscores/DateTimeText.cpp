// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#include "highscores/DateTimeText.h"

#include "platform/Clock.h"
#include "platform/Int16.h"

QString TwoDigits(std::int16_t value) {
    const QString digits = QString::number(value);
    return value < 10 ? u'0' + digits : digits;
}

QString DateTimeText(const Clock& clock) {
    QString text = QString::number(clock.Year());
    text += u'/';
    text += QString::number(clock.Month());
    text += u'/';
    text += QString::number(clock.Day());
    text += u' ';
    text += QString::number(clock.Hour());
    text += u':';
    text += TwoDigits(ToInt16(clock.Minute()));
    return text;
}
