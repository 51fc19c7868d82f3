// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#include "controls/Picture.h"

#include "controls/Appearance.h"
#include "platform/Int16.h"

#include <QPainter>

namespace {

constexpr QColor hoverLight(255, 255, 255, 90);
constexpr QColor pressedShade(196, 196, 196);
constexpr qreal hoverEdge = 1.6; // pixels

} // namespace

void PictureFace::SetPicture(const PictureList& list, std::int16_t index) {
    CheckedIndex(index, 1, list.Count());
    if (list_ != &list || index_ != index) {
        list_ = &list;
        index_ = index;
        control_->update();
    }
}

void PictureFace::PaintFace() const {
    if (list_ == nullptr) {
        return;
    }
    // At a fractional ratio a control's corner falls between device pixels. The picture starts at the nearest
    // one and is rendered in whole pixels, so that nothing is interpolated on the way to the screen.
    const qreal ratio = control_->devicePixelRatioF();
    const QPointF corner = control_->mapTo(control_->window(), QPoint());
    const QPointF snapped = QPointF((corner * ratio).toPoint()) / ratio;
    QPixmap pixmap = list_->Rendering(index_, (QSizeF(control_->size()) * ratio).toSize());
    pixmap.setDevicePixelRatio(ratio);
    QPainter(control_).drawPixmap(snapped - corner, pixmap);
}

Picture::Picture(QWidget* parent) : QWidget(parent), Placement(this), PictureFace(this) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void Picture::paintEvent(QPaintEvent*) {
    PaintFace();
}

PictureButton::PictureButton(QWidget* parent, const HotArea& hotArea)
    : QAbstractButton(parent), Placement(this), PictureFace(this), hotArea_(hotArea) {
    setFocusPolicy(Qt::NoFocus);
    setAttribute(Qt::WA_Hover);
}

void PictureButton::paintEvent(QPaintEvent*) {
    PaintFace();
    if (!underMouse() || !wouldAct_()) {
        return;
    }
    // Blended so that dark lettering stays dark and white stays white.
    const bool isPressed = isDown();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setCompositionMode(isPressed ? QPainter::CompositionMode_Multiply : QPainter::CompositionMode_Overlay);
    painter.setPen(Qt::NoPen);
    painter.setBrush(isPressed ? pressedShade : hoverLight);
    painter.drawRoundedRect(hotArea_.area, hotArea_.radius, hotArea_.radius);

    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    painter.setPen(QPen(Colours::chart, hoverEdge));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(hotArea_.area, hotArea_.radius, hotArea_.radius);
}
