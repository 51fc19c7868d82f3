// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QSettings>

#include <functional>
#include <memory>

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

    // Opens the store of the high scores. Every load and every save opens it anew: a QSettings keeps its first error.
    std::function<std::unique_ptr<QSettings>()> openSettings;
};

// This machine, with this user's settings.
Platform SystemPlatform();
