// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#pragma once

class QPoint;
class QScreen;
class QSize;

// Where the top left corner of a window of this outer size stands so that the window is in the middle of the screen. Of
// a window that is larger than the screen the corner is still to be seen, and clear of the desktop's panels.
QPoint ScreenPlace(const QSize& outer, const QScreen& screen);
