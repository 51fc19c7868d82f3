// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#pragma once

// The running program, as far as the game has a say in it.
class Process {
public:
    virtual ~Process() = default;

    // Ends the program at once with exit status 0: nothing after the call runs, nothing is saved.
    virtual void End() = 0;
};

class SystemProcess final : public Process {
public:
    [[noreturn]] void End() override;
};
