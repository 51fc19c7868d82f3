// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringView>

#include <cstdint>
#include <optional>

// The score that a stored text stands for: its leading decimal number, with a sign and a fraction if it has
// them, rounded to the nearest integer and from half-way to the even one. Blanks are skipped wherever they
// stand, the rest of the text is ignored, and a text without a number is 0. Nothing when the rounded number
// needs more than 16 bits.
std::optional<std::int16_t> ReadScore(QStringView text);
