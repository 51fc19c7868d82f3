// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QLabel>

// A label for plain text, which is wrapped to its width and starts at its top. Text that does not fit is made smaller.
// Clicks go through it.
class Label final : public QLabel {
public:
    Label(QWidget* parent, const QFont& font, const QColor& colour, Qt::AlignmentFlag alignment);

    // Keeps the theme's font and colour.
    explicit Label(QWidget* parent);

    void SetCaption(const QString& caption);

    // Fills the label with `colour`. Without this it is transparent.
    void SetBackground(const QColor& colour);

    // Limits the text to a part of the label, because another control covers the rest.
    void SetRoom(const QSize& room);

    // Puts the middle of numerals and capitals `middle` pixels below the label's top, whatever their size. Call it
    // before the label is shown.
    void SetMiddle(qreal middle) { middle_ = middle; }

    // Limits the size of the text, in pixels. Without this the limit is the size of the font.
    void SetLargestSize(int pixelSize);

protected:
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    void FitShownText(); // nothing if the label is hidden: its font need not be loaded
    void FitText();
    bool Fits(const QFont& font) const;

    QFont font_;
    QSize room_;
    qreal middle_ = 0; // 0 if the text starts at the top
    int largestSize_;
};
