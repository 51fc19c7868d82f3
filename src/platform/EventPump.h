// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#pragma once

// Lets the window system's events run while a routine has the thread.
class EventPump {
public:
    virtual ~EventPump() = default;

    // Dispatches every event that is pending and returns; never waits for one.
    virtual void Pass() = 0;
};

class QtEventPump final : public EventPump {
public:
    void Pass() override;
};
