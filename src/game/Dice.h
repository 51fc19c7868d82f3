// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>

// The throw of a six-sided die, 1..6, that a uniform number in [0, 1) stands for.
std::int16_t RollDie(double uniform);
