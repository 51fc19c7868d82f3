// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QMap>
#include <QStringList>

struct Dialog {
    QString title;
    QStringList buttons;
    QString escapePresses; // a button, if any
    QString controls;      // one on a line, with its place in pixels; the model adds the high scores
};

// By the menu entry that opens them.
inline const QMap<QString, Dialog> dialogs{
    {"mnuNewGame",
     {"Kelvaro", {"Yes", "No"}, "No", "question | Are you sure you want to quit this game and start a new one?"}},
    {"mnuGameExit", {"Kelvaro", {"Yes", "No"}, "No", "question | Are you sure you want to quit?"}},
    {"mnuGameHigh", {"High Scores", {"OK", "ResetScores"}, "", R"(
size 402x143 | QAccessible::Dialog | QAccessible::Button
304,8 89x25 OKButton | OK
304,40 89x25 CancelButton | ResetScores
)"}},
    {"mnuHelpAbout", {"About Kelvaro", {"OK"}, "OK", R"(
size 320x166 | QAccessible::Dialog | QAccessible::Button
8,8 72x76 Image1 | title.jpg | A red disc and a die (Graphic)
88,8 259x32 lblTitle | Kelvaro | #ffffff left
88,32 259x15 lblVersion | Version VERSION | #ffffff left | Kelvaro, version VERSION (StaticText)
88,56 265x33 Label1 | Support: the Kelvaro issue tracker | #ffffff left
7,120 305x2 Line1(0)
6,120 306x1 Line1(1)
8,128 258x23 lblDisclaimer | Copyright © 2026 the Kelvaro developers | #ffffff left
216,128 84x23 cmdOK | OK (default)
)"}},
    {"mnuHelpHow", {"How To Play Kelvaro", {"OK"}, "", R"(
size 426x396 | QAccessible::Dialog | QAccessible::Button
8,8 145x25 Label1 | Game Play | #e0e0e0 left
8,32 401x41 Label2 | Kelvaro is played on a five by five grid. On each turn, you roll the dice by clicking on "Roll", then place the roll in any available spot on the grid by clicking that spot. | #ffffff left
8,80 401x41 Label3 | The object is to create the best possible dice poker hand on each column and row. The round's score is the sum of the scores from each column and row when all spots are filled. Scoring is calculated according to the following chart: | #ffffff left
8,128 361x25 Label4 | Pair = 5 points: Two rolls with the same number | #ffffc0 left bold
8,152 417x33 Label5 | Three of a Kind = 10 points: Three rolls with the same number | #ffffc0 left bold
8,192 417x33 Label6 | Two Pair = 15 points: Two sets of two rolls with the same number | #ffffc0 left bold
8,232 417x33 Label7 | Four of a Kind = 20 points: Four rolls with the same number | #ffffc0 left bold
8,256 417x33 Label8 | Full House = 25 points: One pair and one Three of a Kind | #ffffc0 left bold
8,280 417x33 Label9 | Small Straight = 30 points: Four rolls in numeric sequence | #ffffc0 left bold
8,304 417x33 Label10 | Large Straight = 40 points: Five rolls in numeric sequence | #ffffc0 left bold
8,328 417x33 Label11 | Five of a Kind = 50 points: Five rolls with the same number | #ffffc0 left bold
336,360 81x25 OKButton | OK
)"}},
};
