// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>
#include <QFont>

// The game's own colours, whatever the desktop's theme.
namespace Colours {
inline constexpr QColor table{0, 128, 0};
inline constexpr QColor white{255, 255, 255};
inline constexpr QColor black{0, 0, 0};
inline constexpr QColor grey{128, 128, 128};
inline constexpr QColor heading{224, 224, 224};
inline constexpr QColor chart{255, 255, 192};
} // namespace Colours

// Font sizes in pixels at 96 dots per inch. Sizes in points would depend on the desktop's font resolution, and text
// would lose its proportion to the controls.
enum class TypeSize {
    Text = 11,    // 8.25 pt
    Chart = 13,   // 9.75 pt
    Heading = 18, // 13.5 pt
    Numeral = 32, // 24 pt
};

// A font of the first installed family that has the widths the labels are designed for, or else of the desktop's
// family.
QFont LabelFont(TypeSize size, QFont::Weight weight);
