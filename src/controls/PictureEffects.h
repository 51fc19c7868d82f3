// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#pragma once

#include "controls/Picture.h"

#include <QPainter>
#include <QPixmap>
#include <QRect>

// What a picture button lays over its picture. The painter counts the screen's pixels, `ratio` of them to each of the
// design's; all edges are on whole ones.
class PictureEffects {
public:
    PictureEffects(QPainter& painter, const QPixmap& face, const PictureButton::HotArea& hotArea, qreal ratio);

    void MoveDown() const; // moves a plate, and what is painted after it
    void PaintNext() const;
    void PaintHover() const;
    void PaintPressed() const;
    void PaintFocus() const;

private:
    bool IsPlate() const { return drop_ > 0; } // or a cell, which stays where it is
    int Pixels(qreal design) const { return qRound(design * ratio_); }
    void Fill(const QBrush& brush, QPainter::CompositionMode mode) const;
    void Frame(const QColor& colour, int inset) const;

    QPainter& painter_;
    QPixmap face_;
    qreal ratio_;
    QRect area_;
    qreal radius_;
    int drop_;
    int edge_;
};
