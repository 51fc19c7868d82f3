// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#pragma once

#include <random>

// The game's source of uniform numbers. It starts from the system's entropy, and re-seeding folds the given number into
// the running state instead of replacing it: sixty seeds would be sixty games, and a player could pick the second.
class EntropyGenerator {
public:
    EntropyGenerator();

    void Reseed(int seconds); // 0..59

    // The next number, in [0, 1).
    double Next();

private:
    std::mt19937_64 engine_;
};
