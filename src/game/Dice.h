// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>

// Turns a uniform number in [0, 1) into the throw of a die, 1..6.
std::int16_t RollDie(double uniform);
