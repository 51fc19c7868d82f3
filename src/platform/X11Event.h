// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>

// Whether a native event of Qt (see QWidget::nativeEvent) is the X11 event PropertyNotify: a property of a window has
// changed. The number is that of the X11 core protocol; the highest bit of the type marks events that another client
// sent.
inline bool IsX11PropertyNotify(const QByteArray& eventType, const void* message) {
    constexpr int propertyNotify = 28;
    constexpr int typeMask = 0x7f;
    return eventType == "xcb_generic_event_t"
           && (*static_cast<const unsigned char*>(message) & typeMask) == propertyNotify;
}
