// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>
#include <QWidget>

// A straight line, horizontal or vertical, between two points in twips. Clicks go through it.
class LineShape final : public QWidget {
public:
    struct Ends {
        double x1, y1, x2, y2;
    };

    // `thickness` is in pixels.
    LineShape(QWidget* parent, const Ends& ends, int thickness, const QColor& colour);

    void SetX1(double x) { Move(ends_.x1, x); }
    void SetY1(double y) { Move(ends_.y1, y); }
    void SetX2(double x) { Move(ends_.x2, x); }
    void SetY2(double y) { Move(ends_.y2, y); }
    double Y1() const { return ends_.y1; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void Move(double& coordinate, double value);
    void Apply();

    Ends ends_;
    int thickness_;
    QColor colour_;
};
