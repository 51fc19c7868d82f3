// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#pragma once

// The local date and time. Every call is a reading of its own, so two of them may straddle a minute.
class Clock {
public:
    virtual ~Clock() = default;

    virtual int Year() const = 0;   // four digits
    virtual int Month() const = 0;  // 1..12
    virtual int Day() const = 0;    // 1..31
    virtual int Hour() const = 0;   // 0..23
    virtual int Minute() const = 0; // 0..59
    virtual int Second() const = 0; // 0..59
};

class SystemClock final : public Clock {
public:
    int Year() const override;
    int Month() const override;
    int Day() const override;
    int Hour() const override;
    int Minute() const override;
    int Second() const override;
};
