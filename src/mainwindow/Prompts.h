// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

// Everything the status bar ever says.
namespace Prompts {
using namespace Qt::StringLiterals;

inline constexpr QLatin1String roll = "Roll The Dice"_L1;
inline constexpr QLatin1String select = "Select A Location for the Roll on the Grid"_L1;
inline constexpr QLatin1String over = "Game Over!"_L1;
} // namespace Prompts
