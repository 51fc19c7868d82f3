// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#pragma once

#include "pictures/PictureList.h"

#include <QAbstractButton>
#include <QRectF>
#include <QWidget>

#include <cstdint>
#include <functional>
#include <utility>

class QPainter;

// Which picture a control shows, and how it is put on the screen: filling the control, on whole device
// pixels.
class PictureFace {
public:
    explicit PictureFace(QWidget* control) : control_(control) {}

    // `list` outlives the control. Throws SubscriptError when it has no such picture.
    void SetPicture(const PictureList& list, std::int16_t index);

    // The shown picture's index in its list; 0 before any is set.
    std::int16_t Index() const { return index_; }

protected:
    // Where the picture starts, seen from the control's corner: less than a pixel away.
    QPointF FaceOffset() const;
    void PaintFace() const;

private:
    QWidget* control_;
    const PictureList* list_ = nullptr;
    std::int16_t index_ = 0;
};

// Has the window draw its keyboard focus, or not.
void ShowKeyboardFocus(QWidget& window, bool isShown);

// A picture to look at. Clicks go through it.
class Picture final : public QWidget, public PictureFace {
public:
    explicit Picture(QWidget* parent);

protected:
    void paintEvent(QPaintEvent* event) override;
};

// A picture to click: with the left button, released inside the picture, or with Space or Enter. Under the pointer it
// lights up, and pressed it darkens, but only while a click would do something. Its focus is drawn from the first key
// on and no longer when the mouse is used.
class PictureButton final : public QAbstractButton, public PictureFace {
public:
    // What lights up, in pixels: a rounded rectangle within the picture.
    struct HotArea {
        QRectF area;
        qreal radius;
    };

    PictureButton(QWidget* parent, const HotArea& hotArea);

    // Tells the button how to find out whether a click would do something; without this it always would.
    void SetWouldAct(std::function<bool()> wouldAct) { wouldAct_ = std::move(wouldAct); }

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void PaintPointer(QPainter& painter) const;
    void PaintFocus(QPainter& painter) const;

    HotArea hotArea_;
    std::function<bool()> wouldAct_ = [] { return true; };
};
