// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QRectF>
#include <QWidget>

// Positions and sizes in the main window are in twips, 1/1440 inch: 15 to a pixel at 96 dots per inch. They are
// computed as exact numbers and rounded once, when a control is placed.
inline constexpr double twipsPerPixel = 15.0;

// The nearest whole pixel.
inline int ToPixels(double twips) {
    return qRound(twips / twipsPerPixel);
}

inline double ToTwips(int pixels) {
    return pixels * twipsPerPixel;
}

// Gives a control its position and size.
inline void Place(QWidget& control, const QRectF& twips) {
    control.setGeometry(ToPixels(twips.x()), ToPixels(twips.y()), ToPixels(twips.width()), ToPixels(twips.height()));
}

// Gives a control its position; its size stays.
inline void MoveTo(QWidget& control, double left, double top) {
    control.move(ToPixels(left), ToPixels(top));
}
