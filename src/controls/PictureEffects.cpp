// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#include "controls/PictureEffects.h"

#include "controls/Appearance.h"

namespace {

constexpr QColor faintLight(0, 255, 0, 40);
constexpr QColor light(255, 255, 255, 90);
constexpr QColor faintEdge(184, 226, 156);
constexpr QColor warmth(255, 250, 210);
constexpr QColor shade(170, 170, 170);

// In pixels of the design.
constexpr qreal edgeWidth = 2;
constexpr qreal previewMargin = 3;

// Multiplied with the ivory of a plate, this gives the gold of the roll button.
QBrush Gold() {
    QLinearGradient gold(0, 0, 0, 1);
    gold.setCoordinateMode(QGradient::ObjectMode);
    gold.setStops({{0, QColor(255, 238, 178)}, {0.5, QColor(255, 218, 83)}, {1, QColor(255, 194, 40)}});
    return gold;
}

} // namespace

PictureEffects::PictureEffects(QPainter& painter, const QPixmap& face, const PictureButton::HotArea& hotArea,
                               qreal ratio)
    : painter_(painter), face_(face), ratio_(ratio), radius_(hotArea.radius * ratio), drop_(Pixels(hotArea.drop)),
      edge_(Pixels(edgeWidth)) {
    const QMarginsF& margins = hotArea.margins;
    area_ = face.rect().marginsRemoved(
        {Pixels(margins.left()), Pixels(margins.top()), Pixels(margins.right()), Pixels(margins.bottom())});
    painter_.setRenderHint(QPainter::Antialiasing);
}

void PictureEffects::MoveDown() const {
    if (IsPlate()) {
        // The plate covers its shadow, and the table appears above it.
        painter_.fillRect(area_.left() - 1, area_.top() - 1, area_.width() + 2, area_.height() / 2, Colours::table);
        painter_.translate(0, drop_);
        Fill(face_, QPainter::CompositionMode_SourceOver);
    }
}

void PictureEffects::PaintNext() const {
    if (IsPlate()) {
        Fill(Gold(), QPainter::CompositionMode_Multiply);
        Frame(Colours::chart, -edge_);
    } else {
        Fill(faintLight, QPainter::CompositionMode_SourceOver);
        Frame(faintEdge, -edge_);
    }
}

void PictureEffects::PaintHover() const {
    // These modes keep dark lettering dark and white lettering light.
    Fill(light, QPainter::CompositionMode_Overlay);
    Fill(warmth, QPainter::CompositionMode_Multiply);
    Frame(Colours::chart, -edge_);
}

void PictureEffects::PaintPressed() const {
    if (!IsPlate()) {
        Fill(shade, QPainter::CompositionMode_Multiply);
        Frame(Colours::chart, -edge_);
    }
}

QRect PictureEffects::PreviewPlace() const {
    const int margin = Pixels(previewMargin);
    return area_.adjusted(margin, margin, -margin, -margin);
}

void PictureEffects::PaintPreview(const QPixmap& disc) const {
    const QRect place = PreviewPlace();
    QBrush brush(disc);
    brush.setTransform(QTransform::fromTranslate(place.x(), place.y()));
    painter_.setPen(Qt::NoPen);
    painter_.setBrush(brush);
    painter_.drawEllipse(place); // without the corners, which have the colour of the table
}

void PictureEffects::PaintFocus() const {
    // Black inside white: one of the two stands out on any background.
    Frame(Colours::white, -edge_);
    Frame(Colours::black, 0);
}

void PictureEffects::Fill(const QBrush& brush, QPainter::CompositionMode mode) const {
    painter_.setCompositionMode(mode);
    painter_.setPen(Qt::NoPen);
    painter_.setBrush(brush);
    painter_.drawRoundedRect(area_, radius_, radius_);
    painter_.setCompositionMode(QPainter::CompositionMode_SourceOver);
}

// A line of the edge's width along the hot area. Its outer side lies `inset` device pixels inside the area.
void PictureEffects::Frame(const QColor& colour, int inset) const {
    const qreal middle = inset + edge_ / 2.0;
    painter_.setPen(QPen(colour, edge_));
    painter_.setBrush(Qt::NoBrush);
    painter_.drawRoundedRect(QRectF(area_).adjusted(middle, middle, -middle, -middle), radius_ - middle,
                             radius_ - middle);
}
