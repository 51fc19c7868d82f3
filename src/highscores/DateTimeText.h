// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <cstdint>

struct Platform;

// The value in decimal, with a "0" before it when it is less than 10 ("05", "10"; a negative value gets one
// too).
QString TwoDigits(std::int16_t value);

// The present local date and time as year/month/day hour:minute, only the minute padded: "2026/1/5 9:05". The
// five fields are separate readings of the platform's clock, in that order.
QString DateTimeText(const Platform& platform);
