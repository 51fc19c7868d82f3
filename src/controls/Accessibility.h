// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QWidget>

// Sets up what a screen reader finds. Call it once, before the first window is made.
//
// A green surface (a client area or a dialog) lists only its visible children that have something to say: no hidden
// controls, strike lines or arrows. They are listed line by line from the top, push buttons last. The description of a
// picture button is its hint; if it is pressed through the accessibility interface, it acts a moment later.
void InstallAccessibility();

// Call it before a dialog opens. While a screen reader is running it waits a moment, so that the screen reader says the
// key that opens the dialog before the dialog's text; otherwise it may cut off the text.
void AwaitSpokenKey();

// Makes a screen reader say something. It is a widget, because announcements have to come from one; it is never shown.
class Announcer final : public QWidget {
public:
    explicit Announcer(QWidget* parent);

    // The text is said after what is being said now.
    void Announce(const QString& text);
};
