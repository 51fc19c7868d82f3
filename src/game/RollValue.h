// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>

// The sum of two dice, 2..12; 0 stands for an empty cell and for no roll.
using RollValue = std::int16_t;
