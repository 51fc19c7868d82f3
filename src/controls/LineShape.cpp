// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#include "controls/LineShape.h"

#include "controls/Twips.h"

#include <QPainter>

#include <algorithm>

LineShape::LineShape(QWidget* parent, const QLineF& ends, int thickness, const QColor& colour)
    : QWidget(parent), thickness_(thickness), colour_(colour) {
    SetEnds(ends);
}

void LineShape::SetEnds(const QLineF& ends) {
    const auto [left, right] = std::minmax({ToPixels(ends.x1()), ToPixels(ends.x2())});
    const auto [top, bottom] = std::minmax({ToPixels(ends.y1()), ToPixels(ends.y2())});
    if (top == bottom) {
        setGeometry(left, top - thickness_ / 2, right - left, thickness_);
    } else {
        setGeometry(left - thickness_ / 2, top, thickness_, bottom - top);
    }
}

void LineShape::paintEvent(QPaintEvent*) {
    QPainter(this).fillRect(rect(), colour_.isValid() ? colour_ : palette().color(QPalette::WindowText));
}
