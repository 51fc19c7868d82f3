// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QMap>
#include <QStringList>

struct Dialog {
    QString title;
    QStringList buttons;
    QString escapePresses; // a button, if any
    QString texts;         // a label a line, with its name for a screen reader; the model adds the high scores
};

// By the menu entry that opens them.
inline const QMap<QString, Dialog> dialogs{
    {"mnuNewGame",
     {"Kelvaro", {"Yes", "No"}, "No", "qt_msgbox_label: Are you sure you want to quit this game and start a new one?"}},
    {"mnuGameExit", {"Kelvaro", {"Yes", "No"}, "No", "qt_msgbox_label: Are you sure you want to quit?"}},
    {"mnuGameHigh", {"High Scores", {"OK", "ResetScores"}, "", ""}},
    {"mnuHelpAbout", {"About Kelvaro", {"OK"}, "OK", R"(lblTitle: Kelvaro
lblVersion: Version )" PROJECT_VERSION R"( | Kelvaro, version )" PROJECT_VERSION R"(
Label1: Support: the Kelvaro issue tracker
lblDisclaimer: Copyright © 2026 the Kelvaro developers)"}},
    {"mnuHelpHow", {"How To Play Kelvaro", {"OK"}, "", R"(Label1: Game Play
Label2: Kelvaro is played on a five by five grid. On each turn, you roll the dice by clicking on "Roll", then place the roll in any available spot on the grid by clicking that spot.
Label3: The object is to create the best possible dice poker hand on each column and row. The round's score is the sum of the scores from each column and row when all spots are filled. Scoring is calculated according to the following chart:
Label4: Pair = 5 points: Two rolls with the same number
Label5: Three of a Kind = 10 points: Three rolls with the same number
Label6: Two Pair = 15 points: Two sets of two rolls with the same number
Label7: Four of a Kind = 20 points: Four rolls with the same number
Label8: Full House = 25 points: One pair and one Three of a Kind
Label9: Small Straight = 30 points: Four rolls in numeric sequence
Label10: Large Straight = 40 points: Five rolls in numeric sequence
Label11: Five of a Kind = 50 points: Five rolls with the same number)"}},
};
