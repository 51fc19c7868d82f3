// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#pragma once

#include "controls/Picture.h"
#include "scoring/BoardLines.h"

#include <QLineF>
#include <QRectF>

#include <array>

// The places and sizes of the main window's controls when it is created, in twips. The layout moves most of them but
// keeps their sizes.
namespace Design {

// The first cell, and the controls of row 1 and column 1. The next row or column is one pitch away. The first cell
// never moves.
inline constexpr double pitch = 840;
inline constexpr QRectF cell{240, 360, 750, 750};
inline constexpr QRectF rowMarker{4200, 360, 480, 720};
inline constexpr QRectF rowReadOut{4800, 600, 495, 255};
inline constexpr QRectF columnMarker{240, 4320, 720, 600};
inline constexpr QRectF columnReadOut{240, 5160, 735, 255};

// From the last cell of a line to its first; irregular by design.
inline constexpr std::array<QLineF, Board::Side> rowStrikes{{
    {4080, 720, 480, 720},
    {3960, 1560, 600, 1560},
    {3960, 2400, 600, 2400},
    {4080, 3240, 600, 3240},
    {3960, 4080, 600, 4080},
}};
inline constexpr std::array<QLineF, Board::Side> columnStrikes{{
    {585, 4080, 585, 720},
    {1440, 4320, 1440, 720},
    {2280, 4200, 2280, 720},
    {3120, 4200, 3120, 720},
    {3960, 4200, 3960, 720},
}};

inline constexpr QRectF total{4560, 5040, 1095, 495};
inline constexpr QLineF separator{0, 5640, 6120, 5640};
inline constexpr QRectF rollButton{0, 5760, 2955, 1125};
inline constexpr QRectF newGameButton{3120, 5760, 2955, 1125};
inline constexpr QRectF sum{2040, 5880, 1305, 825};
inline constexpr QRectF firstDie{240, 5880, 750, 750};
inline constexpr QRectF secondDie{1080, 5880, 750, 750};

// The parts that light up, in pixels: the inside of a cell's dotted edge, a disc, and the plates of the two buttons.
inline constexpr PictureButton::HotArea emptyCellArea{{2.9, 2.9, 2.9, 2.9}, 3, 0};
inline constexpr PictureButton::HotArea discArea{{2, 2, 2, 2}, 23, 0};
inline constexpr PictureButton::HotArea rollPlate{{18, 6, 14, 17}, 14, 2};
inline constexpr PictureButton::HotArea newGamePlate{{30, 6, 2, 17}, 14, 2};

inline constexpr QLineF Strike(const BoardLine& line) {
    const auto& strikes = line.kind == BoardLine::Kind::Row ? rowStrikes : columnStrikes;
    return strikes[static_cast<std::size_t>(line.number - 1)];
}

} // namespace Design
