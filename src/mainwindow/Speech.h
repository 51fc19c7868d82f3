// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#pragma once

#include "game/Board.h"
#include "game/RollValue.h"
#include "scoring/BoardLines.h"

#include <QString>

#include <cstdint>
#include <optional>

class Announcer;
class QDialog;
class QStatusBar;

// What a screen reader says about the game. The routines of the game report each event; this class words it and decides
// when it is said.
//
// Reports are collected until a routine calls Announce, so a placement with its lines is one announcement. A roll is
// reported before its pauses and announced after them, or together with its placement if that comes first.
class Speech {
public:
    // Announcements come from the status bar: Orca 43 puts the word "notification" before those from elsewhere.
    explicit Speech(QStatusBar* statusBar);

    void NewGame();
    void Rolled(std::int16_t firstDie, std::int16_t secondDie);
    void Placed(const CellPosition& cell, RollValue value);
    // Call it for every complete line. It mentions only those that the last placement finished.
    void LineScored(const BoardLine& line, std::int16_t points);
    // Mentions the total only if the last placement finished a line.
    void TotalScored(std::int16_t points);
    void GameOver();
    void RoundRanked(std::optional<std::int16_t> rank); // no rank: the score misses the table
    void ScoresReset();

    // Says what has been reported since the last announcement.
    void Announce();

    // Puts the reports at the beginning of the dialog's name for a few seconds, because a screen reader says
    // announcements after the dialog's text.
    void AnnounceIn(QDialog& dialog);

    // Say at once why a command does nothing. `revealedRoll` is 0 if no roll is pending or its pauses are not over;
    // then RefuseRoll is silent, unless the game is over.
    void RefuseCell(bool isFilled);
    void RefuseRoll(RollValue revealedRoll, bool isOver);

    // The hint of the current cell: the roll to place, but only after the first step over the grid since the roll.
    void StepTaken() { ++steps_; }
    QString StepHint(RollValue revealedRoll) const;

private:
    void Report(const QString& sentence);

    Announcer* announcer_; // belongs to the status bar
    QString reports_;
    CellPosition placedCell_;
    bool hasFinishedLine_ = false;
    int steps_ = 0; // over the grid, since Announce last said something
};
