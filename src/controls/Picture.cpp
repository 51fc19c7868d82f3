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

// A property of the window; Qt's own mark for this goes out with every change of the focus that no key asked for.
constexpr char showsFocus[] = "showsKeyboardFocus";

bool ShowsKeyboardFocus(const QWidget& window) {
    return window.property(showsFocus).toBool();
}

bool IsModifier(int key) {
    return key == Qt::Key_Shift || key == Qt::Key_Control || key == Qt::Key_Alt || key == Qt::Key_AltGr
           || key == Qt::Key_Meta;
}

// Enter as the Space that a button knows: it acts on release, so that a key held down does not go on to answer the
// question that it opened.
QKeyEvent PressKey(const QKeyEvent& event) {
    const bool isEnter = event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter || event.key() == Qt::Key_Select;
    return QKeyEvent(event.type(), isEnter ? Qt::Key_Space : event.key(), event.modifiers(), event.text(),
                     event.isAutoRepeat());
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

QPointF PictureFace::FaceOffset() const {
    // At a fractional ratio a control's corner falls between device pixels. The picture starts at the nearest one and
    // is rendered in whole pixels, so that nothing is interpolated on the way to the screen.
    const qreal ratio = control_->devicePixelRatioF();
    const QPointF corner = control_->mapTo(control_->window(), QPoint());
    return QPointF((corner * ratio).toPoint()) / ratio - corner;
}

void PictureFace::PaintFace() const {
    if (list_ == nullptr) {
        return;
    }
    const qreal ratio = control_->devicePixelRatioF();
    QPixmap pixmap = list_->Rendering(index_, (QSizeF(control_->size()) * ratio).toSize());
    pixmap.setDevicePixelRatio(ratio);
    QPainter(control_).drawPixmap(FaceOffset(), pixmap);
}

void ShowKeyboardFocus(QWidget& window, bool isShown) {
    if (ShowsKeyboardFocus(window) != isShown) {
        window.setProperty(showsFocus, isShown);
        if (QWidget* focused = window.focusWidget()) {
            focused->update();
        }
    }
}

Picture::Picture(QWidget* parent) : QWidget(parent), PictureFace(this) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void Picture::paintEvent(QPaintEvent*) {
    PaintFace();
}

PictureButton::PictureButton(QWidget* parent, const HotArea& hotArea)
    : QAbstractButton(parent), PictureFace(this), hotArea_(hotArea) {
    setFocusPolicy(Qt::TabFocus);
    setAttribute(Qt::WA_Hover);
}

bool PictureButton::event(QEvent* event) {
    // A shortcut is asked for as an override first and never arrives as a key.
    if (event->type() == QEvent::ShortcutOverride || event->type() == QEvent::KeyPress) {
        if (!IsModifier(static_cast<QKeyEvent*>(event)->key())) {
            ShowKeyboardFocus(*window(), true);
        }
    }
    return QAbstractButton::event(event);
}

void PictureButton::keyPressEvent(QKeyEvent* event) {
    if (QKeyEvent press = PressKey(*event); press.key() == Qt::Key_Space) {
        QAbstractButton::keyPressEvent(&press);
    } else {
        event->ignore();
    }
}

void PictureButton::keyReleaseEvent(QKeyEvent* event) {
    QKeyEvent release = PressKey(*event);
    QAbstractButton::keyReleaseEvent(&release);
}

void PictureButton::mousePressEvent(QMouseEvent* event) {
    ShowKeyboardFocus(*window(), false);
    QAbstractButton::mousePressEvent(event);
}

void PictureButton::paintEvent(QPaintEvent*) {
    PaintFace();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(FaceOffset());
    if ((underMouse() || isDown()) && wouldAct_()) {
        PaintPointer(painter);
    }
    if (hasFocus() && ShowsKeyboardFocus(*window())) {
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
