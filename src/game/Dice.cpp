// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#include "game/Dice.h"

#include "platform/Int16.h"

#include <cmath>

using namespace Qt::StringLiterals;

std::int16_t RollDie(double uniform) {
    constexpr double faces = 6.0;
    return ToInt16(std::llround(std::floor(uniform * faces) + 1.0));
}

QString RolledCaption(RollValue sum) {
    return u"= "_s + QString::number(sum);
}
