// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#include "platform/Process.h"

#include <cstdlib>

void SystemProcess::End() {
    // No destructors and no exit handlers: the call may come from inside a dialog inside a roll.
    std::_Exit(EXIT_SUCCESS);
}
