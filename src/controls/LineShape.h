// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>
#include <QLineF>
#include <QWidget>

// A straight line, horizontal or vertical, between two points in twips.
class LineShape final : public QWidget {
public:
    // `thickness` is in pixels. Without a colour, the line has the theme's text colour.
    LineShape(QWidget* parent, const QLineF& ends, int thickness, const QColor& colour = {});

    void SetEnds(const QLineF& ends);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    int thickness_;
    QColor colour_;
};
