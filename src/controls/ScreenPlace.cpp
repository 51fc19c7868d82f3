// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#include "controls/ScreenPlace.h"

#include <QScreen>
#include <QStyle>

QPoint ScreenPlace(const QSize& outer, const QScreen& screen) {
    const QPoint centred = QStyle::alignedRect(Qt::LeftToRight, Qt::AlignCenter, outer, screen.geometry()).topLeft();
    const QPoint first = screen.availableGeometry().topLeft();
    return {qMax(centred.x(), first.x()), qMax(centred.y(), first.y())};
}
