// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringView>

#include <cstdint>
#include <optional>

// The score in a stored text: the decimal number at its start, which may have a sign and a fraction, rounded to the
// nearest integer (a half to the even one). Blanks anywhere are skipped, and the rest of the text is ignored. Without a
// number the score is 0. Returns nothing if the rounded number does not fit into 16 bits.
std::optional<std::int16_t> ReadScore(QStringView text);
