// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#pragma once

#include "controls/Twips.h"

#include <QWidget>

// Where a control stands in its window and how large it is: in twips, as exact numbers, so that the layout
// computes with what it wrote. The control's widget follows, rounded to whole pixels.
class Placement {
public:
    // `widget` is the control itself and outlives the placement.
    explicit Placement(QWidget* widget) : widget_(widget) {}

    void Place(double left, double top, double width, double height) {
        left_ = left;
        top_ = top;
        width_ = width;
        height_ = height;
        Apply();
    }

    double Left() const { return left_; }
    double Top() const { return top_; }
    double Width() const { return width_; }
    double Height() const { return height_; }

    void SetLeft(double left) {
        left_ = left;
        Apply();
    }
    void SetTop(double top) {
        top_ = top;
        Apply();
    }

private:
    void Apply() { widget_->setGeometry(ToPixels(left_), ToPixels(top_), ToPixels(width_), ToPixels(height_)); }

    QWidget* widget_;
    double left_ = 0;
    double top_ = 0;
    double width_ = 0;
    double height_ = 0;
};
