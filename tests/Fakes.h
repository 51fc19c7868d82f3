// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Clock.h"
#include "platform/EventPump.h"
#include "platform/Platform.h"
#include "platform/Process.h"
#include "platform/SettingsStore.h"
#include "platform/UniformGenerator.h"

#include <QMap>
#include <QStringList>

#include <deque>
#include <functional>
#include <map>
#include <optional>

// Stands still at 2026/1/5 9:05:30 until a test says otherwise.
struct FakeClock final : Clock {
    int year = 2026, month = 1, day = 5, hour = 9, minute = 5, second = 30;

    int Year() const override { return year; }
    int Month() const override { return month; }
    int Day() const override { return day; }
    int Hour() const override { return hour; }
    int Minute() const override { return minute; }
    int Second() const override { return second; }
};

// Throws the dice that the test names, then ones.
struct ScriptedGenerator final : UniformGenerator {
    std::deque<int> dice;
    int lastSeed = -1;

    void Reseed(int seconds) override { lastSeed = seconds; }
    double Next() override {
        const int die = dice.empty() ? 1 : dice.front();
        if (!dice.empty()) {
            dice.pop_front();
        }
        return (die - 0.5) / 6;
    }
};

// Counts its passes and runs a test's action at a given one; dispatches nothing.
struct ScriptedPump final : EventPump {
    static constexpr int passesPerPause = 250'000;

    int passes = 0;
    std::map<int, std::function<void()>> actions;

    void Pass() override {
        ++passes;
        if (const auto action = actions.find(passes); action != actions.end()) {
            const auto run = action->second;
            actions.erase(action);
            run();
        }
    }
};

// Keeps texts in memory and notes every write; reading or writing can be made to fail.
struct FakeStore final : SettingsStore {
    QMap<QString, QString> texts;
    QStringList writes;
    int commits = 0;
    bool isReadable = true;

    void Refresh() override {}
    std::optional<QString> Read(const QString& section, const QString& key, const QString& fallback) override {
        return isReadable ? std::optional(texts.value(section + u'/' + key, fallback)) : std::nullopt;
    }
    void Write(const QString& section, const QString& key, const QString& text) override {
        texts[section + u'/' + key] = text;
        writes << key + u'=' + text;
    }
    void Commit() override { ++commits; }
};

struct FakeProcess final : Process {
    bool hasEnded = false;

    void End() override { hasEnded = true; }
};

struct FakePlatform {
    FakeClock clock;
    ScriptedGenerator generator;
    ScriptedPump pump;
    FakeStore store;
    FakeProcess process;

    operator Platform() { return {clock, generator, pump, store, process}; }
};
