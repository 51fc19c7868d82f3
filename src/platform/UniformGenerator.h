// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <random>

// A source of uniform numbers that a roll can re-seed.
class UniformGenerator {
public:
    virtual ~UniformGenerator() = default;

    // Takes up a small whole number, such as the seconds of the clock.
    virtual void Reseed(int seconds) = 0;

    // The next number, in [0, 1).
    virtual double Next() = 0;
};

// The game's generator. It starts from the system's entropy, and re-seeding folds the given number into the
// running state instead of replacing it: sixty seeds would be sixty games, and a player could pick the
// second.
class EntropyGenerator final : public UniformGenerator {
public:
    EntropyGenerator();

    // Starts from `seed` instead of the system's entropy: the same seed gives the same numbers.
    explicit EntropyGenerator(std::uint32_t seed);

    void Reseed(int seconds) override;
    double Next() override;

private:
    std::mt19937_64 engine_;
};
