// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#include "controls/CentredOn.h"
#include "controls/Label.h"
#include "controls/LineShape.h"
#include "controls/Picture.h"
#include "controls/Twips.h"
#include "mainwindow/Form1.h"
#include "platform/Int16.h"

#include <QScreen>
#include <QWindow>

#include <array>

namespace {

// The smallest outer size, in twips.
constexpr double floorWidth = 6270;
constexpr double floorHeight = 8115;

// What each row's read-out is set off from the row's pitch, rows 1 to 5; irregular by design.
constexpr std::array<double, Board::Side> readOutOffsets{0, 160, 80, 0, -60};

// The dividing marks between rows and columns 2 to 5, which follow the window; number 1 is the anchor of the
// grid.
constexpr std::array<std::int16_t, 4> movingNumbers{2, 3, 4, 5};

} // namespace

void Form1::Form_Resize() {
    if (isMinimized()) {
        return;
    }
    const double outerWidth = ToTwips(OuterSize().width());
    line1_->SetX2(outerWidth);
    if (outerWidth <= floorWidth - 1) {
        SetOuterWidth(floorWidth);
    } else {
        LayOutHorizontally(outerWidth);
    }

    const double outerHeight = ToTwips(OuterSize().height());
    if (outerHeight <= floorHeight - 1) {
        SetOuterHeight(floorHeight);
    } else {
        LayOutVertically(outerHeight);
    }
}

void Form1::LayOutHorizontally(double outerWidth) {
    const double anchor = Cell(1, 1).Left();
    const double pitch = (outerWidth - anchor) / 6;
    for (const std::int16_t column : movingNumbers) {
        const int steps = column - 1;
        for (std::int16_t row = 1; row <= Board::Side; row = CheckedAdd(row, 1)) {
            Cell(row, column).SetLeft(anchor + steps * pitch - 160 * steps);
        }
    }

    const PictureButton& lastCell = Cell(1, 5);
    for (std::int16_t row = 1; row <= Board::Side; row = CheckedAdd(row, 1)) {
        Row(row).readOut->SetLeft(anchor + 5 * pitch - 500);
        Row(row).marker->SetLeft(lastCell.Left() + lastCell.Width() - 150);
        Row(row).strike->SetX1(lastCell.Left());
    }
    lblTotal_->SetLeft(anchor + 5 * pitch - 500);

    for (const std::int16_t column : movingNumbers) {
        const double left = Cell(1, column).Left();
        const double middle = left + Cell(1, column).Width() / 2;
        Column(column).strike->SetX1(middle);
        Column(column).strike->SetX2(middle);
        Column(column).marker->SetLeft(middle - Column(column).marker->Width() / 2);
        Column(column).readOut->SetLeft(left);
    }

    const double flushWithGrid = lastCell.Left() + lastCell.Width() - imgNewGame_->Width();
    const double besideRollButton = image1_->Left() + image1_->Width() + 100;
    imgNewGame_->SetLeft(qMax(flushWithGrid, besideRollButton));
}

void Form1::LayOutVertically(double outerHeight) {
    line1_->SetY1(outerHeight - 2500);
    line1_->SetY2(outerHeight - 2500);
    image1_->SetTop(outerHeight - 2400);
    imgNewGame_->SetTop(outerHeight - 2400);
    imgRolled1_->SetTop(outerHeight - 2300);
    imgRolled2_->SetTop(outerHeight - 2300);
    lblRolled_->SetTop(outerHeight - 2300);

    const double anchor = Cell(1, 1).Top();
    // Taken from the separator's full height, unlike the horizontal pitch.
    const double pitch = line1_->Y1() / 6;
    for (const std::int16_t row : movingNumbers) {
        const int steps = row - 1;
        const double top = anchor + steps * pitch - 80 * steps;
        for (std::int16_t column = 1; column <= Board::Side; column = CheckedAdd(column, 1)) {
            Cell(row, column).SetTop(top);
        }
        const double middle = top + Cell(row, 5).Height() / 2;
        Row(row).strike->SetY1(middle);
        Row(row).strike->SetY2(middle);
        Row(row).marker->SetTop(top);
        Row(row).readOut->SetTop(anchor + steps * pitch + readOutOffsets.at(static_cast<std::size_t>(steps)));
    }

    const PictureButton& lastCell = Cell(5, 1);
    for (std::int16_t column = 1; column <= Board::Side; column = CheckedAdd(column, 1)) {
        Column(column).readOut->SetTop(anchor + 5 * pitch + 75);
        Column(column).marker->SetTop(lastCell.Top() + lastCell.Height() - 150);
        Column(column).strike->SetY1(lastCell.Top());
    }
    lblTotal_->SetTop(anchor + 5 * pitch);
}

void Form1::Form_FirstPicture() {
    isFrameKnown_ = true;
    frame_ = windowHandle()->frameMargins();
    // Telling the window manager as well spares the player the flicker of a window that snaps back.
    windowHandle()->setMinimumSize(QSize(ToPixels(floorWidth), ToPixels(floorHeight)).shrunkBy(frame_));
    Form_Resize();
    windowHandle()->setFramePosition(CentredOn(screen()->geometry(), OuterSize()));
}

void Form1::Form_FrameChanged() {
    // Without the floors: a window manager that maximises a window changes its frame first and its size a moment later.
    frame_ = windowHandle()->frameMargins();
    LayOutHorizontally(ToTwips(OuterSize().width()));
    LayOutVertically(ToTwips(OuterSize().height()));
}

QSize Form1::OuterSize() const {
    return size().grownBy(frame_);
}

void Form1::SetOuterWidth(double twips) {
    resize(ToPixels(twips) - frame_.left() - frame_.right(), height());
}

void Form1::SetOuterHeight(double twips) {
    resize(width(), ToPixels(twips) - frame_.top() - frame_.bottom());
}
