// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#pragma once

#include "controls/Picture.h"

#include <QPainter>
#include <QPixmap>
#include <QRect>

// The effects that a picture button paints over its picture: that it is next, hovered, pressed or focused, and the
// preview. The painter is scaled to device pixels; `ratio` device pixels are one pixel of the design. All edges lie on
// whole device pixels.
class PictureEffects {
public:
    PictureEffects(QPainter& painter, const QPixmap& face, const PictureButton::HotArea& hotArea, qreal ratio);

    void MoveDown() const; // moves a plate, and what is painted after it
    void PaintNext() const;
    void PaintHover() const;
    void PaintPressed() const;
    void PaintFocus() const;

    // The preview is a disc inside the frame of a cell. `disc` has the size of its place.
    QRect PreviewPlace() const;
    void PaintPreview(const QPixmap& disc) const;

private:
    bool IsPlate() const { return drop_ > 0; } // otherwise it is a cell
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
