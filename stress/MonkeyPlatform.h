// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/EventPump.h"
#include "platform/UniformGenerator.h"

#include <deque>
#include <functional>
#include <utility>
#include <vector>

inline constexpr int passesPerPause = 250'000;

// Throws the dice that it is told of, and tells when it is asked for a roll.
struct ToldGenerator final : UniformGenerator {
    std::function<std::pair<int, int>()> rolled;
    std::deque<int> dice;

    void Reseed(int) override {
        const auto [first, second] = rolled();
        dice = {first, second};
    }
    double Next() override {
        const int die = dice.front();
        dice.pop_front();
        return (die - 0.5) / 6;
    }
};

// The pauses of the rolls that are under way, one inside the other.
struct NestedPump final : EventPump {
    struct Roll {
        int passes = 0;
        int meddling = 0; // the pass at which something happens
    };
    std::vector<Roll> rolls;
    std::function<void()> secondDie, meddle, end;

    void Pass() override {
        const int passes = ++rolls.back().passes;
        if (passes == passesPerPause + 1) {
            secondDie();
        }
        if (passes == rolls.back().meddling) {
            meddle();
        }
        if (passes == 2 * passesPerPause) {
            rolls.pop_back();
            end();
        }
    }
};
