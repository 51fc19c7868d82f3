// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#include "controls/Label.h"

#include <QFontMetrics>

namespace {

constexpr int smallestPixelSize = 6;

// No label holds more text than this, so no more is measured.
constexpr int mostCharacters = 1000;

} // namespace

Label::Label(QWidget* parent, const QFont& font, const QColor& colour, Qt::AlignmentFlag alignment) : Label(parent) {
    QPalette colours = palette();
    colours.setColor(QPalette::WindowText, colour);
    setPalette(colours);
    setAlignment(alignment | Qt::AlignTop);
    font_ = font;
    largestSize_ = font_.pixelSize();
    setFont(font_);
}

Label::Label(QWidget* parent) : QLabel(parent), font_(font()), largestSize_(0) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
    font_.setPixelSize(fontInfo().pixelSize());
    largestSize_ = font_.pixelSize();
}

void Label::SetCaption(const QString& caption) {
    if (caption != text()) {
        setText(caption);
        FitShownText();
    }
}

void Label::SetBackground(const QColor& colour) {
    QPalette colours = palette();
    colours.setColor(QPalette::Window, colour);
    setPalette(colours);
    setAutoFillBackground(true);
}

void Label::SetRoom(const QSize& room) {
    room_ = room;
    FitText();
}

void Label::SetLargestSize(int pixelSize) {
    largestSize_ = pixelSize;
    FitText();
}

void Label::resizeEvent(QResizeEvent* event) {
    QLabel::resizeEvent(event);
    FitShownText();
}

void Label::showEvent(QShowEvent* event) {
    QLabel::showEvent(event);
    FitText();
}

void Label::FitShownText() {
    if (isVisible()) {
        FitText();
    }
}

void Label::FitText() {
    QFont fitting = font_;
    fitting.setPixelSize(largestSize_);
    while (fitting.pixelSize() > smallestPixelSize && !Fits(fitting)) {
        fitting.setPixelSize(fitting.pixelSize() - 1);
    }
    if (fitting != font()) {
        setFont(fitting);
    }
    if (middle_ > 0) {
        const QFontMetricsF metrics(fitting);
        setContentsMargins(0, qRound(middle_ - metrics.ascent() + metrics.capHeight() / 2), 0, 0);
    }
}

bool Label::Fits(const QFont& font) const {
    const QSize room = room_.isValid() ? room_ : size();
    // A label less than two lines high holds one line.
    const int wrapping = 2 * QFontMetrics(font_).lineSpacing() <= room.height() ? Qt::TextWordWrap : 0;
    const QFontMetrics metrics(font);
    const QString measured = text().left(mostCharacters);
    const QRect needed = metrics.boundingRect(0, 0, width(), room.height(), wrapping, measured);
    // Below the last baseline only ink counts: numerals have none there.
    const int drawnDescent = qMax(0, metrics.tightBoundingRect(measured).bottom() + 1);
    const int height = needed.height() - metrics.descent() + qMin(drawnDescent, metrics.descent());
    return needed.width() <= room.width() && height <= room.height();
}
