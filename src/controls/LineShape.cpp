// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#include "controls/LineShape.h"

#include "controls/Twips.h"

#include <QPainter>

#include <algorithm>

LineShape::LineShape(QWidget* parent, const Ends& ends, int thickness, const QColor& colour)
    : QWidget(parent), ends_(ends), thickness_(thickness), colour_(colour) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    Apply();
}

void LineShape::paintEvent(QPaintEvent*) {
    QPainter(this).fillRect(rect(), colour_);
}

void LineShape::Move(double& coordinate, double value) {
    coordinate = value;
    Apply();
}

void LineShape::Apply() {
    const auto [left, right] = std::minmax({ToPixels(ends_.x1), ToPixels(ends_.x2)});
    const auto [top, bottom] = std::minmax({ToPixels(ends_.y1), ToPixels(ends_.y2)});
    // While a line is moved end by end it is slanted for a moment; the longer extent tells its direction even
    // then.
    if (right - left >= bottom - top) {
        setGeometry(left, bottom - thickness_ / 2, right - left, thickness_);
    } else {
        setGeometry(right - thickness_ / 2, top, thickness_, bottom - top);
    }
}
