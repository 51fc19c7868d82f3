// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>
#include <QString>
#include <QStringList>

#include <array>
#include <optional>

// The game once more, written apart from it and without a window, for the two to be compared: what a player's action
// does, and what the window shows then. It shares no code with the game.
class RulesModel {
public:
    struct Entry {
        int score = 0;
        QString text;
        bool operator==(const Entry&) const = default;
    };
    using Table = std::array<Entry, 5>;

    // Where a roll is, a roll inside its pauses included.
    void BeginRoll(int firstDie, int secondDie);
    void ShowSecondDie() { showsSecond = true; }
    void EndRoll();

    bool CanPlace(int row, int column) const { return pending != 0 && At(row, column) == 0; }
    // Returns whether the high-score dialog is shown.
    bool Place(int row, int column, const QString& now);
    void StartNewGame();
    void ResetStore() { stored = {}; }
    void LoadTable() { table = stored; }

    void PressArrow(int rowStep, int columnStep);
    void PressHomeOrEnd(int column);
    void PressTab(int direction);

    // The name of the control that a click at a point acts on; empty for none. The point is in pixels from the corner
    // of the area below the menu bar, the window's size in pixels with its frame.
    QString ControlAt(const QPoint& point, const QSize& outer) const;
    static QRect CellPlace(int row, int column, const QSize& outer);

    bool IsFull() const;
    // Rows 1 to 5, then columns 1 to 5; nothing for a line with an empty cell.
    std::array<std::optional<int>, 10> LineScores() const;
    int Total() const;
    int At(int row, int column) const { return board[static_cast<std::size_t>((row - 1) * 5 + column - 1)]; }

    std::array<int, 25> board{};
    int pending = 0;
    bool canRoll = true;
    int firstDie = 0;
    int secondDie = 0;
    bool showsFirst = false;
    bool showsSecond = false;
    QString sum;
    QString prompt = "Roll The Dice";
    QString focus = "Image1";
    Table table; // in memory
    Table stored;

private:
    void EnterCell(int row, int column);

    int row_ = 1; // where the keyboard is in the grid
    int column_ = 1;
};
