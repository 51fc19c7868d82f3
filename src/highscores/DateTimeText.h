// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <cstdint>

struct Platform;

// The value in decimal, with a "0" before it if it is less than 10: "05", "10". A negative value gets one too: "0-5".
QString TwoDigits(std::int16_t value);

// The local date and time, for example "2026/1/5 9:05"; only the minute is padded. Each of the five fields is a
// separate reading of the platform's clock, in the order of the text.
QString DateTimeText(const Platform& platform);
