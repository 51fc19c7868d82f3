// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QLatin1String>

// Everything the status bar ever says.
namespace Prompts {
inline constexpr QLatin1String roll("Roll The Dice");
inline constexpr QLatin1String select("Select A Location for the Roll on the Grid");
inline constexpr QLatin1String over("Game Over!");
} // namespace Prompts
