// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Platform.h"

#include <QStringList>
#include <QTemporaryDir>

#include <deque>
#include <functional>
#include <map>

// Stands still at 2026/1/5 9:05:30 until a test says otherwise.
struct FakeClock {
    int year = 2026, month = 1, day = 5, hour = 9, minute = 5, second = 30;
};

// Throws the dice that the test names, then ones.
struct ScriptedGenerator {
    std::deque<int> dice;
    int lastSeed = -1;

    double Next() {
        const int die = dice.empty() ? 1 : dice.front();
        if (!dice.empty()) {
            dice.pop_front();
        }
        return (die - 0.5) / 6;
    }
};

// Counts its passes and runs a test's action at a given one; dispatches nothing.
struct ScriptedPump {
    static constexpr int passesPerPause = 250'000;

    int passes = 0;
    std::map<int, std::function<void()>> actions;

    void Pass() {
        ++passes;
        if (const auto action = actions.find(passes); action != actions.end()) {
            const auto run = action->second;
            actions.erase(action);
            run();
        }
    }
};

struct FakeProcess {
    bool hasEnded = false;
};

// Its settings are a file in a folder of its own.
struct FakePlatform {
    FakeClock clock;
    ScriptedGenerator generator;
    ScriptedPump pump;
    FakeProcess process;
    QTemporaryDir folder;
    SettingsStore store{folder.filePath("KVR.ini")};

    // What the store holds, as "key=text".
    QString StoreText() const {
        const SettingsMap texts = store.Read().value();
        QStringList entries;
        for (auto entry = texts.begin(); entry != texts.end(); ++entry) {
            entries << entry.key() + '=' + entry.value();
        }
        return entries.join(' ');
    }

    operator Platform() {
        return {
            .year = [this] { return clock.year; },
            .month = [this] { return clock.month; },
            .day = [this] { return clock.day; },
            .hour = [this] { return clock.hour; },
            .minute = [this] { return clock.minute; },
            .second = [this] { return clock.second; },
            .reseed = [this](int seconds) { generator.lastSeed = seconds; },
            .nextUniform = [this] { return generator.Next(); },
            .pumpEvents = [this] { pump.Pass(); },
            .endProcess = [this] { process.hasEnded = true; },
            .store = store,
        };
    }
};
