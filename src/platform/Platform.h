// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/SettingsStore.h"

#include <functional>

// What the game asks of the machine.
struct Platform {
    // The local date and time. Every call is a reading of its own, so two of them may straddle a minute.
    std::function<int()> year;   // four digits
    std::function<int()> month;  // 1..12
    std::function<int()> day;    // 1..31
    std::function<int()> hour;   // 0..23
    std::function<int()> minute; // 0..59
    std::function<int()> second; // 0..59

    // A source of uniform numbers in [0, 1), which takes up a small whole number, such as the seconds of the clock.
    std::function<void(int seconds)> reseed;
    std::function<double()> nextUniform;

    // Dispatches every event that is pending and returns; never waits for one.
    std::function<void()> pumpEvents;

    // Ends the program at once with exit status 0: nothing after the call runs, nothing is saved.
    std::function<void()> endProcess;

    SettingsStore store;
};

// This machine, with this user's settings.
Platform SystemPlatform();
