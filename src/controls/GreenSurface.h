// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#pragma once

#include "controls/Appearance.h"

#include <QPaintEvent>
#include <QPainter>

// A widget painted in the table's green. Its palette stays that of the theme, so push buttons on it look as usual.
template <typename Base> class GreenSurface : public Base {
public:
    using Base::Base;

protected:
    void paintEvent(QPaintEvent* event) override { QPainter(this).fillRect(event->rect(), Colours::table); }
};
