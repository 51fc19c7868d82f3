// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

// Positions and sizes of the main window are in twips, 1/1440 inch: 15 to a pixel at 96 dots per inch.
inline constexpr double twipsPerPixel = 15.0;

// The nearest whole pixel.
inline int ToPixels(double twips) {
    return qRound(twips / twipsPerPixel);
}

inline double ToTwips(int pixels) {
    return pixels * twipsPerPixel;
}
