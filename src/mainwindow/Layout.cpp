// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#include "controls/Label.h"
#include "controls/LineShape.h"
#include "controls/Picture.h"
#include "controls/ScreenPlace.h"
#include "controls/Twips.h"
#include "mainwindow/Design.h"
#include "mainwindow/Form1.h"

#include <QWindow>

#include <array>

namespace {

// The smallest outer size, in pixels: 6270 by 8115 twips.
constexpr QSize smallestOuterSize(418, 541);

// All lengths from here on are in twips. The pitch of the columns and rows is a sixth of the space for the grid.
constexpr double pitches = 6;
constexpr double lastPitch = 5;

// The distance from one cell to the next is this much less than the pitch.
constexpr double columnTightening = 160;
constexpr double rowTightening = 80;

// How far the markers overlap the last cell, and the offsets of the read-outs; those of the rows are irregular by
// design.
constexpr double markerOverlap = 150;
constexpr double rowReadOutShift = -500;
constexpr std::array<double, Board::Side> rowReadOutDrops{240, 160, 80, 0, -60};
constexpr double columnReadOutDrop = 75;

// Distances from the window's lower edge to the parts of the button strip.
constexpr double separatorHeight = 2500;
constexpr double buttonHeight = 2400;
constexpr double rollHeight = 2300;
constexpr double buttonGap = 100;

} // namespace

// The grid in a window of a given outer size.
struct Form1::Grid {
    // The columns share the width to the right of the first cell's left edge. The rows share the whole height above the
    // separator, although the first cell does not start at the top.
    explicit Grid(const QSizeF& outer)
        : columnPitch((outer.width() - Design::cell.left()) / pitches),
          rowPitch((outer.height() - separatorHeight) / pitches) {}

    double Left(int column) const { return PitchLeft(column - 1) - columnTightening * (column - 1); }
    double Top(int row) const { return PitchTop(row - 1) - rowTightening * (row - 1); }
    double PitchLeft(double steps) const { return Design::cell.left() + steps * columnPitch; }
    double PitchTop(double steps) const { return Design::cell.top() + steps * rowPitch; }

    double Right() const { return Left(Board::Side) + Design::cell.width(); }
    double Bottom() const { return Top(Board::Side) + Design::cell.height(); }

    double columnPitch;
    double rowPitch;
};

void Form1::Form_Resize() {
    if (isMinimized()) {
        return;
    }
    if (size() == EnlargedToMinimum(size())) {
        LayOut();
    } else {
        enlargedFrom_ = size();
        resize(EnlargedToMinimum(size())); // raises the event again
    }
}

QSize Form1::EnlargedToMinimum(const QSize& client) const {
    return client.expandedTo(smallestOuterSize.shrunkBy(frame_));
}

void Form1::LayOut() {
    const QSizeF outer = QSizeF(OuterSize()) * twipsPerPixel;
    const Grid grid(outer);
    for (const CellPosition& cell : boardCells) {
        MoveTo(Cell(cell.row, cell.column), grid.Left(cell.column), grid.Top(cell.row));
    }
    for (const LineControls& controls : lines_) {
        controls.line.kind == BoardLine::Kind::Row ? LayOutRow(controls, grid) : LayOutColumn(controls, grid);
    }
    MoveTo(*lblTotal_, grid.PitchLeft(lastPitch) + rowReadOutShift, grid.PitchTop(lastPitch));
    LayOutStrip(outer, grid.Right());
}

void Form1::LayOutRow(const LineControls& row, const Grid& grid) {
    const std::int16_t number = row.line.number;
    const double top = grid.Top(number);
    const double drop = rowReadOutDrops.at(static_cast<std::size_t>(number - 1));
    MoveTo(*row.readOut, grid.PitchLeft(lastPitch) + rowReadOutShift, grid.PitchTop(number - 1) + drop);
    MoveTo(*row.marker, grid.Right() - markerOverlap, top);
    // In the first row, the strike line keeps its designed vertical position.
    const QLineF design = Design::Strike(row.line);
    const double middle = number == 1 ? design.y1() : top + Design::cell.height() / 2;
    row.strike->SetEnds({grid.Left(Board::Side), middle, design.x2(), middle});
}

void Form1::LayOutColumn(const LineControls& column, const Grid& grid) {
    const std::int16_t number = column.line.number;
    const double left = grid.Left(number);
    // In the first column, the strike line and the marker keep their designed horizontal position.
    const bool isFirst = number == 1;
    const QLineF design = Design::Strike(column.line);
    const double middle = isFirst ? design.x1() : left + Design::cell.width() / 2;
    const double markerLeft = isFirst ? left : middle - Design::columnMarker.width() / 2;
    MoveTo(*column.readOut, left, grid.PitchTop(lastPitch) + columnReadOutDrop);
    MoveTo(*column.marker, markerLeft, grid.Bottom() - markerOverlap);
    column.strike->SetEnds({middle, grid.Top(Board::Side), middle, design.y2()});
}

void Form1::LayOutStrip(const QSizeF& outer, double gridRight) {
    const double separator = outer.height() - separatorHeight;
    line1_->SetEnds({0, separator, outer.width(), separator});

    const double buttonTop = outer.height() - buttonHeight;
    const double flushWithGrid = gridRight - Design::newGameButton.width();
    const double besideRollButton = Design::rollButton.right() + buttonGap;
    MoveTo(*image1_, Design::rollButton.left(), buttonTop);
    MoveTo(*imgNewGame_, qMax(flushWithGrid, besideRollButton), buttonTop);

    const double rollTop = outer.height() - rollHeight;
    MoveTo(*imgRolled1_, Design::firstDie.left(), rollTop);
    MoveTo(*imgRolled2_, Design::secondDie.left(), rollTop);
    MoveTo(*lblRolled_, Design::sum.left(), rollTop);
}

void Form1::StartLayout() {
    isFrameKnown_ = true;
    frame_ = windowHandle()->frameMargins();
    Form_Resize();
    // The window manager is told the minimum size too, so that the window does not flicker as it is enlarged again.
    windowHandle()->setMinimumSize(EnlargedToMinimum(QSize()));
    windowHandle()->setFramePosition(ScreenPlace(OuterSize(), *screen()));
}

// A window manager may add the frame late, and it removes the frame in full screen. When it puts the frame back, it has
// already resized the window.
void Form1::UpdateFrame() {
    if (!isFrameKnown_ || windowHandle()->frameMargins() == frame_) {
        return;
    }
    const bool isEnlarged = size() == EnlargedToMinimum(enlargedFrom_);
    frame_ = windowHandle()->frameMargins();
    // The minimum is only ever lowered: a window manager that maximises a window first removes its frame, and later it
    // must be able to restore the old size.
    windowHandle()->setMinimumSize(windowHandle()->minimumSize().boundedTo(EnlargedToMinimum(QSize())));
    if (isEnlarged) {
        resize(size().boundedTo(EnlargedToMinimum(enlargedFrom_)));
    }
    LayOut();
}

QSize Form1::OuterSize() const {
    return size().grownBy(frame_);
}
