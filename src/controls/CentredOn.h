// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QRect>

// Where a window of `size`, its frame included, has to stand to be in the middle of `screen`.
inline QPoint CentredOn(const QRect& screen, const QSize& size) {
    return screen.topLeft() + QPoint((screen.width() - size.width()) / 2, (screen.height() - size.height()) / 2);
}
