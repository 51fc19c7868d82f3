// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#pragma once

#include "game/Board.h"
#include "game/RollValue.h"
#include "highscores/HighScoreTable.h"
#include "mainwindow/Speech.h"
#include "pictures/PictureList.h"
#include "platform/Platform.h"
#include "scoring/BoardLines.h"

#include <QMainWindow>
#include <QMargins>
#include <QString>

#include <array>
#include <cstdint>
#include <vector>

class Label;
class LineShape;
class Picture;
class PictureButton;
class QAction;

// The game's main window. It holds all state, and every routine of the game is one of its functions.
//
// The window is composed in this folder; each routine is defined in the folder of its subsystem. Events are processed
// while a roll pauses, so any handler can run in the middle of RollDice.
class Form1 final : public QMainWindow {
public:
    // The window loads the high scores and starts a game when it is first shown.
    explicit Form1(Platform platform);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    bool nativeEvent(const QByteArray& eventType, void* message, qintptr* result) override;
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    bool focusNextPrevChild(bool next) override;
    void closeEvent(QCloseEvent* event) override;

private:
    // The read-out, marker and strike line of one row or column.
    struct LineControls {
        BoardLine line;
        Label* readOut = nullptr;
        Picture* marker = nullptr;
        LineShape* strike = nullptr;
    };

    struct Grid;

    // game/
    void Form_Load();
    void StartNewGame();
    void RollDice();
    void Pause();
    // Places the pending roll in the cell. If the cell is filled or no roll is pending, only tells a screen reader so.
    // Throws SubscriptError unless row and column lie in 1..5.
    void PlaceRoll(PictureButton& cell, std::int16_t row, std::int16_t column);
    void Image1_Click();
    void imgNewGame_Click();
    void mnuGameRoll_Click();
    void mnuNewGame_Click();
    void mnuGameExit_Click();
    void mnuHelpHow_Click();
    void mnuHelpAbout_Click();

    // scoring/
    void UpdateScores();

    // highscores/
    void LoadHighScores();
    void SaveHighScores();
    void RecordHighScore(std::int16_t score);
    void mnuGameHigh_Click();
    void ShowHighScores();

    // mainwindow/: composition
    void Compose();
    void ComposeMenus();
    void ComposeStrikesAndMarkers(QWidget* table);
    void ComposeCells(QWidget* table);
    void ComposeReadOuts(QWidget* table);
    void ComposeButtonStrip(QWidget* table);
    void ComposeStatusBar();

    // mainwindow/: controls
    PictureButton& Cell(std::int16_t row, std::int16_t column) const;
    RollValue RevealedRoll() const { return isRollRevealed_ ? pendingRoll_ : RollValue{0}; }
    // Set what is seen and spoken of a cell, and of the sum of the pending roll.
    void ShowCell(PictureButton& cell, std::int16_t row, std::int16_t column);
    void ShowSum(const QString& caption);
    // Repaints the effects that show what is next and what a click would do.
    void RepaintEffects();

    // mainwindow/: keyboard. The grid, the roll button and the new-game button are one stop of the Tab key each.
    void FollowFocus(); // makes the focused cell the current one: a screen reader moves the focus without a key
    PictureButton& CurrentCell() const;
    void FocusEmptyCell(); // the current cell, or the next empty one in reading order

    // mainwindow/: layout
    void Form_Resize();
    void LayOut();
    static void LayOutRow(const LineControls& row, const Grid& grid);
    static void LayOutColumn(const LineControls& column, const Grid& grid);
    void LayOutStrip(const QSizeF& outer, double gridRight);
    void StartLayout(); // when the window's frame is known for the first time
    void UpdateFrame(); // when the frame may have changed
    QSize OuterSize() const;
    QSize EnlargedToMinimum(const QSize& client) const;

    RollValue pendingRoll_ = 0;
    Board board_;
    HighScoreTable highScores_;

    Platform platform_;
    Speech speech_;
    int nestedPauses_ = 0;
    bool isRollRevealed_ = false; // false while the pauses of a roll run
    bool isLoaded_ = false;
    bool isFrameKnown_ = false;
    QMargins frame_;
    QSize enlargedFrom_;       // the last client size that was below the minimum
    CellPosition currentCell_; // where the arrow keys start

    PictureList imageList1_;
    PictureList imageList2_;
    PictureList rollPicture_;
    PictureList newGamePicture_;
    PictureList rowArrow_;
    PictureList columnArrow_;

    std::array<PictureButton*, boardCells.size()> cells_{}; // at Board::Element(row, column)
    std::vector<LineControls> lines_;                       // in the order in which they are scored
    Picture* imgRolled1_ = nullptr;
    Picture* imgRolled2_ = nullptr;
    Label* lblRolled_ = nullptr;
    PictureButton* image1_ = nullptr;
    PictureButton* imgNewGame_ = nullptr;
    LineShape* line1_ = nullptr;
    Label* lblTotal_ = nullptr;
    QAction* mnuGameRoll_ = nullptr;
    Label* prompt_ = nullptr;
};
