// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>
#include <QFont>

// The colours of the game; the desktop's theme does not change them.
namespace Colours {
inline constexpr QColor table{0, 128, 0};
inline constexpr QColor white{255, 255, 255};
inline constexpr QColor black{0, 0, 0};
inline constexpr QColor grey{128, 128, 128};
inline constexpr QColor heading{224, 224, 224};
inline constexpr QColor chart{255, 255, 192};
} // namespace Colours

// The game's type sizes in pixels at 96 dots per inch, so that text keeps its proportion to the geometry
// whatever the desktop's font resolution is.
enum class TypeSize {
    Text = 11,    // 8.25 pt
    Chart = 13,   // 9.75 pt
    Heading = 18, // 13.5 pt
    Numeral = 32, // 24 pt
};

// A font of the family that the labels are measured for, or of the nearest to it that is installed.
QFont LabelFont(TypeSize size, QFont::Weight weight);
