// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#include "controls/Picture.h"

#include "controls/Appearance.h"
#include "platform/Int16.h"

#include <QKeyEvent>
#include <QPainter>

namespace {

constexpr QColor hoverLight(255, 255, 255, 90);
constexpr QColor pressedShade(196, 196, 196);
// In pixels.
constexpr qreal hoverEdge = 1.6;
constexpr qreal focusEdge = 2;
constexpr qreal focusOutset = 2.5; // how far the focus reaches over the hot area

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
    setFocusPolicy(Qt::TabFocus);
    setAttribute(Qt::WA_Hover);
}

bool PictureButton::event(QEvent* event) {
    // A shortcut is asked for as an override first and never arrives as a key.
    if (event->type() == QEvent::ShortcutOverride || event->type() == QEvent::KeyPress) {
        ShowFocus(true);
    }
    return QAbstractButton::event(event);
}

void PictureButton::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Space:
    case Qt::Key_Select:
        QAbstractButton::keyPressEvent(event);
        break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (!event->isAutoRepeat()) {
            click();
        }
        break;
    default:
        event->ignore();
    }
}

void PictureButton::mousePressEvent(QMouseEvent* event) {
    ShowFocus(false);
    QAbstractButton::mousePressEvent(event);
}

void PictureButton::ShowFocus(bool isShown) {
    if (window()->testAttribute(Qt::WA_KeyboardFocusChange) != isShown) {
        window()->setAttribute(Qt::WA_KeyboardFocusChange, isShown);
        if (QWidget* focused = window()->focusWidget()) {
            focused->update();
        }
    }
}

void PictureButton::paintEvent(QPaintEvent*) {
    PaintFace();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (underMouse() && wouldAct_()) {
        PaintPointer(painter);
    }
    if (hasFocus() && window()->testAttribute(Qt::WA_KeyboardFocusChange)) {
        PaintFocus(painter);
    }
}

void PictureButton::PaintPointer(QPainter& painter) const {
    // Blended so that dark lettering stays dark and white stays white.
    const bool isPressed = isDown();
    painter.setCompositionMode(isPressed ? QPainter::CompositionMode_Multiply : QPainter::CompositionMode_Overlay);
    painter.setPen(Qt::NoPen);
    painter.setBrush(isPressed ? pressedShade : hoverLight);
    painter.drawRoundedRect(hotArea_.area, hotArea_.radius, hotArea_.radius);

    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    painter.setPen(QPen(Colours::chart, hoverEdge));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(hotArea_.area, hotArea_.radius, hotArea_.radius);
}

void PictureButton::PaintFocus(QPainter& painter) const {
    // Black inside white: one of the two stands out against whatever lies under it.
    painter.setBrush(Qt::NoBrush);
    for (const auto& [colour, inset] :
         {std::pair(Colours::white, focusEdge / 2), std::pair(Colours::black, focusEdge * 1.5)}) {
        const qreal outset = focusOutset - inset;
        painter.setPen(QPen(colour, focusEdge));
        painter.drawRoundedRect(hotArea_.area.adjusted(-outset, -outset, outset, outset), hotArea_.radius,
                                hotArea_.radius);
    }
}
