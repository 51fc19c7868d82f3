// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#include "controls/Picture.h"

#include "controls/PictureEffects.h"
#include "platform/Int16.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPainter>

namespace {

bool IsModifier(int key) {
    return key == Qt::Key_Shift || key == Qt::Key_Control || key == Qt::Key_Alt || key == Qt::Key_AltGr
           || key == Qt::Key_Meta;
}

} // namespace

void PictureFace::SetPicture(const PictureList& list, std::int16_t index) {
    CheckedIndex(index, 1, list.Count());
    if (list_ != &list || index_ != index) {
        list_ = &list;
        index_ = index;
        control_->update();
    }
}

QPixmap PictureFace::Face() const {
    return list_ == nullptr ? QPixmap() : list_->Rendering(index_, DevicePixels().size());
}

void PictureFace::UseDevicePixels(QPainter& painter) const {
    const qreal ratio = control_->devicePixelRatioF();
    painter.translate(QPointF(DevicePixels().topLeft()) / ratio - control_->mapTo(control_->window(), QPoint()));
    painter.scale(1 / ratio, 1 / ratio);
}

// At a fractional ratio the edges of a control lie between device pixels. Qt rounds each edge, so controls of the same
// size differ by a device pixel. The picture fills them exactly, so that it is neither interpolated nor cut.
QRect PictureFace::DevicePixels() const {
    const qreal ratio = control_->devicePixelRatioF();
    const QRectF place(control_->mapTo(control_->window(), QPoint()), control_->size());
    return {(place.topLeft() * ratio).toPoint(), (place.bottomRight() * ratio).toPoint() - QPoint(1, 1)};
}

Picture::Picture(QWidget* parent) : QWidget(parent), PictureFace(this) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void Picture::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    UseDevicePixels(painter);
    painter.drawPixmap(0, 0, Face());
}

PictureButton::PictureButton(QWidget* parent, const HotArea& hotArea)
    : QAbstractButton(parent), PictureFace(this), hotArea_(hotArea) {
    setFocusPolicy(Qt::TabFocus);
    setAttribute(Qt::WA_Hover);
}

void PictureButton::ShowFocus(bool isShown) {
    if (isFocusShown_ != isShown) {
        isFocusShown_ = isShown;
        if (QWidget* focused = QApplication::focusWidget()) {
            focused->update();
        }
    }
}

bool PictureButton::event(QEvent* event) {
    // A shortcut arrives as an override only, not as a key press.
    if (event->type() == QEvent::ShortcutOverride || event->type() == QEvent::KeyPress) {
        if (!IsModifier(static_cast<QKeyEvent*>(event)->key())) {
            ShowFocus(true);
        }
    }
    return QAbstractButton::event(event);
}

void PictureButton::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Space || event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        click();
    } else {
        event->ignore();
    }
}

void PictureButton::mousePressEvent(QMouseEvent* event) {
    ShowFocus(false);
    QAbstractButton::mousePressEvent(event);
}

void PictureButton::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    UseDevicePixels(painter);
    const QPixmap face = Face();
    painter.drawPixmap(0, 0, face);

    const bool isPressed = isDown() && wouldAct_();
    const bool isHovered = underMouse() && wouldAct_();
    const bool isFocusShown = hasFocus() && isFocusShown_;
    const PictureEffects effects(painter, face, hotArea_, devicePixelRatioF());
    if (isPressed) {
        effects.MoveDown();
    }
    if (isNext_()) {
        effects.PaintNext();
    }
    if (isPressed) {
        effects.PaintPressed();
    } else if (isHovered) {
        effects.PaintHover();
    }
    if (const std::int16_t preview = preview_(); preview != 0 && (isPressed || isHovered || isFocusShown)) {
        effects.PaintPreview(Rendering(preview, effects.PreviewPlace().size()));
    }
    if (isFocusShown) {
        effects.PaintFocus();
    }
}
