// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#pragma once

class Label;
class QString;

// Makes green surfaces speak: of its children a surface lists those that are shown and have something to say, so that
// neither hidden controls nor strike lines and arrows are found, from the top down, push buttons last. Surfaces have
// the role of a client area or a dialog, pictures that of a graphic, and the status bar's label that of a notification.
// A picture button's description is its hint, and it is pressed a moment after it was asked to be. Call once, before
// the first window is made.
void InstallAccessibility();

// Has a screen reader say the news after what it is saying. They stay the spoken name of the label, the status bar's,
// whatever its text.
void Announce(Label& label, const QString& news);
