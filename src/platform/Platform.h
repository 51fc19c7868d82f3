// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#pragma once

class Clock;
class EventPump;
class Process;
class SettingsStore;
class UniformGenerator;

// What the game asks of the machine. The owner of the parts keeps them alive as long as the game.
struct Platform {
    Clock& clock;
    UniformGenerator& generator;
    EventPump& pump;
    SettingsStore& store;
    Process& process;
};
