// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#pragma once

#include "pictures/PictureList.h"

#include <QAbstractButton>
#include <QMarginsF>
#include <QString>
#include <QWidget>

#include <cstdint>
#include <functional>
#include <utility>

class QPainter;

// The picture that a control shows. It fills the control and is rendered in whole device pixels.
class PictureFace {
public:
    explicit PictureFace(QWidget* control) : control_(control) {}

    // `list` must exist as long as the control is shown. Throws SubscriptError if it has no such picture.
    void SetPicture(const PictureList& list, std::int16_t index);

    // The index of the picture in its list; 0 if none has been set.
    std::int16_t Index() const { return index_; }

    // The name of the picture's file; empty if no picture has been set.
    QString FileName() const { return list_ == nullptr ? QString() : list_->FileName(index_); }

protected:
    // The picture in the control's size, in device pixels.
    QPixmap Face() const;

    // Another picture of the same list, in device pixels.
    QPixmap Rendering(std::int16_t index, const QSize& size) const { return list_->Rendering(index, size); }

    // Scales the painter to device pixels, with its origin at the picture's corner.
    void UseDevicePixels(QPainter& painter) const;

private:
    QRect DevicePixels() const; // that the control covers in its window

    QWidget* control_;
    const PictureList* list_ = nullptr;
    std::int16_t index_ = 0;
};

// A picture to look at. Clicks go through it.
class Picture final : public QWidget, public PictureFace {
public:
    explicit Picture(QWidget* parent);

protected:
    void paintEvent(QPaintEvent* event) override;
};

// A picture that is clicked with the left mouse button or pressed with Space or Enter. It is highlighted if it is the
// next to be clicked. While a click would do something, it lights up under the pointer and changes when pressed; under
// the pointer or with the focus it may preview what the click does.
class PictureButton final : public QAbstractButton, public PictureFace {
public:
    // The part of the picture that lights up, in pixels: a rounded rectangle inside these margins. When pressed it
    // moves down by `drop` pixels or, if that is 0, darkens.
    struct HotArea {
        QMarginsF margins;
        qreal radius;
        qreal drop;
    };

    PictureButton(QWidget* parent, const HotArea& hotArea);

    void SetHotArea(const HotArea& hotArea) { hotArea_ = hotArea; }

    // The button calls these functions whenever it needs their results.

    // Whether a click would do something. Without this it always would.
    void SetWouldAct(std::function<bool()> wouldAct) { wouldAct_ = std::move(wouldAct); }

    // Whether the button is the next to be clicked. Without this it never is.
    void SetIsNext(std::function<bool()> isNext) { isNext_ = std::move(isNext); }

    // The index of the picture that a click would show, or 0. Without this there is no preview.
    void SetPreview(std::function<std::int16_t()> preview) { preview_ = std::move(preview); }

    // What a screen reader says after the button's name. Without this there is no hint.
    void SetHint(std::function<QString()> hint) { hint_ = std::move(hint); }
    QString Hint() const { return hint_(); }

    // Sets whether the focused button shows its focus. It does from the first key press until the mouse is used.
    static void ShowFocus(bool isShown);

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent*) override {} // the second press of a double click does nothing
    void paintEvent(QPaintEvent* event) override;

private:
    static inline bool isFocusShown_ = false;

    HotArea hotArea_;
    std::function<bool()> wouldAct_ = [] { return true; };
    std::function<bool()> isNext_ = [] { return false; };
    std::function<std::int16_t()> preview_ = [] { return std::int16_t{0}; };
    std::function<QString()> hint_ = [] { return QString(); };
};
