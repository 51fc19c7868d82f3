// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QSettings>

#include <functional>
#include <memory>

// What the game needs from the machine.
struct Platform {
    // The local date and time. Each call reads the clock anew, so two calls may lie on either side of midnight.
    std::function<int()> year;   // four digits
    std::function<int()> month;  // 1..12
    std::function<int()> day;    // 1..31
    std::function<int()> hour;   // 0..23
    std::function<int()> minute; // 0..59
    std::function<int()> second; // 0..59

    // Random numbers, uniform in [0, 1). Re-seeding mixes in a small number, the seconds of the clock.
    std::function<void(int seconds)> reseed;
    std::function<double()> nextUniform;

    // Dispatches all pending events and returns. It does not wait for any.
    std::function<void()> pumpEvents;

    // Ends the program at once with exit status 0. Nothing is saved, and the call does not return.
    std::function<void()> endProcess;

    // Opens the store of the high scores. Every load and every save opens it anew: a QSettings keeps its first error.
    std::function<std::unique_ptr<QSettings>()> openSettings;
};

// The real machine, with the settings of the current user.
Platform SystemPlatform();
