// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#pragma once

// Makes green tables speak: of its children a table lists those that are shown and have something to say, so that
// neither hidden controls nor strike lines and arrows are found; a dialog lists its texts before its buttons. Call
// once, before the first window is made.
void InstallAccessibleTables();
