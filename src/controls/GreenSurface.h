// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#pragma once

#include "controls/Appearance.h"

#include <QPaintEvent>
#include <QPainter>

// A widget painted with the table's green. Its palette stays the theme's, so that push buttons on it look as
// they do everywhere else.
template <typename Base> class GreenSurface : public Base {
public:
    using Base::Base;

protected:
    void paintEvent(QPaintEvent* event) override { QPainter(this).fillRect(event->rect(), Colours::table); }
};
