// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#pragma once

class QPoint;
class QScreen;
class QSize;

// The top left corner that centres a window of this outer size on the screen. If the window is larger than the screen,
// the corner stays visible and clear of the desktop's panels.
QPoint ScreenPlace(const QSize& outer, const QScreen& screen);
