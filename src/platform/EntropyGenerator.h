// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#pragma once

#include <random>

// The game's source of uniform random numbers. It starts from the system's entropy. Re-seeding adds the given number to
// the current state instead of replacing it: with sixty seeds there would be only sixty possible games.
class EntropyGenerator {
public:
    EntropyGenerator();

    void Reseed(int seconds); // 0..59

    // The next number, in [0, 1).
    double Next();

private:
    std::mt19937_64 engine_;
};
