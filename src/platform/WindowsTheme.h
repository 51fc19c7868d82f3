// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#pragma once

// Windows only: gives the program a dark style if the user has chosen dark mode for programs. Call before there is an
// application.
void FollowWindowsTheme();
