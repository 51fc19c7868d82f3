// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#include "platform/EntropyGenerator.h"

#include <cmath>
#include <cstdint>

namespace {

std::mt19937_64 SeededFromEntropy() {
    std::random_device entropy;
    std::seed_seq seed{entropy(), entropy(), entropy(), entropy(), entropy(), entropy(), entropy(), entropy()};
    return std::mt19937_64(seed);
}

} // namespace

EntropyGenerator::EntropyGenerator() : engine_(SeededFromEntropy()) {
}

void EntropyGenerator::Reseed(int seconds) {
    const auto a = engine_();
    const auto b = engine_();
    // A seed sequence uses the low 32 bits of each value, so both halves are passed.
    std::seed_seq seed{a, a >> 32, b, b >> 32, static_cast<std::uint64_t>(seconds)};
    engine_.seed(seed);
}

double EntropyGenerator::Next() {
    // A double holds 53 bits exactly, so the result is never rounded up to 1.
    constexpr int mantissaBits = 53;
    return std::ldexp(static_cast<double>(engine_() >> (64 - mantissaBits)), -mantissaBits);
}
