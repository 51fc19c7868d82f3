// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#include "controls/Picture.h"

#include "platform/Int16.h"

#include <QPainter>

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

PictureButton::PictureButton(QWidget* parent) : QAbstractButton(parent), Placement(this), PictureFace(this) {
    setFocusPolicy(Qt::NoFocus);
}

void PictureButton::paintEvent(QPaintEvent*) {
    PaintFace();
}
