// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QMap>
#include <QStringList>

struct Dialog {
    QString title;
    QStringList buttons;
    QString escapePresses; // a button, if any
    QString texts;         // a line each, in the order in which a screen reader reads them
};

// By the menu entry that opens them.
inline const QMap<QString, Dialog> dialogs{
    {"mnuNewGame",
     {"Kelvaro", {"Yes", "No"}, "No", "Are you sure you want to quit this game and start a new one? (StaticText)"}},
    {"mnuGameExit", {"Kelvaro", {"Yes", "No"}, "No", "Are you sure you want to quit? (StaticText)"}},
    // The model puts the ranks before the buttons.
    {"mnuGameHigh", {"High Scores", {"OK", "ResetScores"}, "", R"(
OK (Button)
Reset Scores (Button)
)"}},
    {"mnuHelpAbout", {"About Kelvaro", {"OK"}, "OK", R"(
Kelvaro (StaticText)
Kelvaro, version VERSION (StaticText)
A red disc and a die (Graphic)
Support: the Kelvaro issue tracker (StaticText)
Copyright © 2026 the Kelvaro developers (StaticText)
OK (Button)
)"}},
    {"mnuHelpHow", {"How To Play Kelvaro", {"OK"}, "", R"(
Game Play (StaticText)
Kelvaro is played on a five by five grid. On each turn, you roll the dice by clicking on "Roll", then place the roll in any available spot on the grid by clicking that spot. (StaticText)
The object is to create the best possible dice poker hand on each column and row. The round's score is the sum of the scores from each column and row when all spots are filled. Scoring is calculated according to the following chart: (StaticText)
Pair = 5 points: Two rolls with the same number (StaticText)
Three of a Kind = 10 points: Three rolls with the same number (StaticText)
Two Pair = 15 points: Two sets of two rolls with the same number (StaticText)
Four of a Kind = 20 points: Four rolls with the same number (StaticText)
Full House = 25 points: One pair and one Three of a Kind (StaticText)
Small Straight = 30 points: Four rolls in numeric sequence (StaticText)
Large Straight = 40 points: Five rolls in numeric sequence (StaticText)
Five of a Kind = 50 points: Five rolls with the same number (StaticText)
OK (Button)
)"}},
};
