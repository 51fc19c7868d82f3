// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QLabel>

// A label for plain text, wrapped within its width from the top down. Text that does not fit is made smaller
// until it does. Clicks go through it.
class Label final : public QLabel {
public:
    Label(QWidget* parent, const QFont& font, const QColor& colour, Qt::AlignmentFlag alignment);

    // Keeps the theme's font and colour.
    explicit Label(QWidget* parent);

    void SetCaption(const QString& caption);

    // Fills the label with `colour`, which is transparent otherwise.
    void SetBackground(const QColor& colour);

    // Bounds the text more closely than the label does: what lies beyond is covered by another control.
    void SetRoom(const QSize& room);

    // Puts the middle of numerals and capitals at `middle` pixels below the label's top, at whatever size they fit.
    // Call before the label is shown.
    void SetMiddle(qreal middle) { middle_ = middle; }

    // Keeps the text at or below a size in pixels; its font's own size at first.
    void SetLargestSize(int pixelSize);

protected:
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    void FitShownText(); // a hidden label need not load its font
    void FitText();
    bool Fits(const QFont& font) const;

    QFont font_;
    QSize room_;
    qreal middle_ = 0; // of no meaning at 0
    int largestSize_;
};
