// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#pragma once

#include "Dialogs.h"
#include "Performer.h"
#include "Worths.h"

// Works out what must be seen from the rules alone: it shares no code with the game. Cells count from 0, row by row;
// lines count from 0, the five rows first.
class Model final : public Performer {
public:
    Model() { Start(); }

private:
    void Start() override {
        highScores_ = ScoreTable(5);
        LoadHighScores();
        StartNewGame();
    }

    void Press(const QString& step, bool isInDialog) override {
        const bool actsOnFocus = step == "Space" || step == "Return" || step == "Enter";
        if (isInDialog) {
            PressInDialog(actsOnFocus ? dialogs[dialog_].buttons[button_] : step);
        } else if (step.startsWith("focus:")) {
            current_ = CellOf(step.sliced(6));
            focus_ = "grid";
        } else {
            PressInWindow(actsOnFocus ? FocusedControl() : step.section(':', -1)); // a double click is one click
        }
    }

    void PressInWindow(const QString& step) {
        const QMap<QString, QString> entries{{"Image1", "mnuGameRoll"},    {"Ctrl+R", "mnuGameRoll"},
                                             {"imgNewGame", "mnuNewGame"}, {"Ctrl+N", "mnuNewGame"},
                                             {"Ctrl+Q", "mnuGameExit"},    {"F1", "mnuHelpHow"}};
        const QString control = entries.value(step, step);
        if (control == "mnuGameRoll" && CanRoll()) {
            Roll();
        } else if (step == "Ctrl+R" && IsFull()) {
            said_ = "The game is over.";
        } else if (step == "Ctrl+R" && isRevealed_) {
            said_ = QString("%1 to place.").arg(pending_);
        } else if (control == "mnuNewGame" && IsFull()) {
            StartNewGame();
        } else if (dialogs.contains(control)) {
            Open(control);
        } else if (control == "close") {
            hasEnded_ = true;
        } else if (control.startsWith("img")) {
            Place(CellOf(control));
        } else {
            MoveFocus(control);
        }
    }

    bool IsDialogOpen() const override { return !dialog_.isEmpty(); }

    void Open(const QString& entry) {
        const bool isHighScores = entry == "mnuGameHigh";
        if (isHighScores) {
            LoadHighScores();
        }
        if (!IsDialogOpen()) {
            dialog_ = entry;
            button_ = 0;
            shownScores_ = highScores_;
            const QStringList news = isHighScores ? std::exchange(reports_, {}) : QStringList();
            spokenTitle_ = (news + QStringList(dialogs[entry].title)).join(' ');
            PerformDialog();
        }
    }

    void PressInDialog(const QString& step) {
        const auto& [title, buttons, escapePresses, texts] = dialogs[dialog_];
        if (movesFocus.contains(step) && step != "Home" && step != "End") {
            button_ = (button_ + 1) % int(buttons.size()); // of one or two
        } else if (step == "Escape" && !escapePresses.isEmpty()) {
            CloseDialog(escapePresses);
        } else if (step == "close" || buttons.contains(step)) {
            CloseDialog(step);
        } else if (step == "wait") {
            spokenTitle_ = title;
        }
    }

    void CloseDialog(const QString& button) {
        const QString entry = std::exchange(dialog_, "");
        if (button == "ResetScores") {
            Save(ScoreTable(5)); // the window's own table stays
            Report("The scores are reset.");
            Announce();
        } else if (button == "Yes" && entry == "mnuNewGame") {
            StartNewGame();
        } else if (button == "Yes") {
            hasEnded_ = true;
        }
    }

    QString FocusedControl() const { return focus_ == "grid" ? Name(current_) : focus_; }

    void MoveFocus(const QString& key) {
        const QStringList stops =
            CanRoll() ? QStringList{"grid", "Image1", "imgNewGame"} : QStringList{"grid", "imgNewGame"};
        const int row = current_ / 5 * 5;
        const int column = current_ % 5;
        const QMap<QString, int> targets{{"Left", row + (column + 4) % 5},
                                         {"Num+Left", row + (column + 4) % 5},
                                         {"Right", row + (column + 1) % 5},
                                         {"Up", (current_ + 20) % 25},
                                         {"Home", row},
                                         {"End", row + 4},
                                         {"Down", (current_ + 5) % 25}};
        if (key == "Tab" || key == "Shift+Tab") {
            const auto step = key == "Tab" ? 1 : stops.size() - 1;
            focus_ = stops[(stops.indexOf(focus_) + step) % stops.size()];
        } else if (targets.contains(key)) {
            // From a button the first key only enters the grid.
            current_ = focus_ == "grid" ? targets[key] : current_;
            focus_ = "grid";
            ++moves_;
        }
    }

    // The game.

    bool IsFull() const { return !board_.contains(0); }
    bool CanRoll() const { return pending_ == 0 && !IsFull(); }

    void StartNewGame() {
        board_ = Sums(25);
        current_ = 0;
        EndTurn();
        Report("New game.");
        Announce();
    }

    void EndTurn() {
        pending_ = 0;
        sum_.clear();
        isDieShown_ = {false, false};
        focus_ = IsFull() ? "grid" : "Image1";
        prompt_ = IsFull() ? "Game Over!" : "Roll The Dice";
    }

    void Roll() {
        focus_ = "grid";
        while (board_[current_] > 0) {
            current_ = (current_ + 1) % 25;
        }
        roll_ = {.seed = clock_.time().second()};
        shownDice_ = dice_;
        pending_ = dice_[0] + dice_[1];
        isRevealed_ = false;
        Report(QString("%1 and %2: %3.").arg(dice_[0]).arg(dice_[1]).arg(pending_));
        for (const int die : {0, 1}) {
            isDieShown_[die] = true;
            if (++nestedPauses_ <= 64) {
                roll_.passes = die * passesOfAPause + 1;
                PerformPause(die + 1);
                roll_.passes = (die + 1) * passesOfAPause;
            }
            --nestedPauses_;
        }
        sum_ = QString("= %1").arg(pending_);
        isRevealed_ = true;
        prompt_ = "Select A Location for the Roll on the Grid";
        Announce();
    }

    void Place(int cell) {
        if (board_[cell] > 0) {
            said_ = "This cell is filled.";
        } else if (pending_ == 0) {
            said_ = "There is no roll to place.";
        } else {
            board_[cell] = pending_;
            current_ = cell;
            Report(QString("%1 in row %2, column %3.").arg(pending_).arg(cell / 5 + 1).arg(cell % 5 + 1));
            EndTurn();
            const QString finished = Spoken(cell / 5) + Spoken(5 + cell % 5);
            if (!finished.isEmpty()) {
                Report(finished + (IsFull() ? "Game Over! " : "") + QString("Total: %1 points.").arg(Total()));
            }
            if (IsFull()) {
                EndRound();
                focus_ = "imgNewGame";
            }
            Announce();
        }
    }

    // What a line is worth; no points and no name while one of its cells is empty.
    Worth WorthOfLine(int line) const {
        Sums sums;
        for (int step = 0; step < 5; ++step) {
            sums << board_[line < 5 ? 5 * line + step : 5 * step + line - 5];
        }
        return sums.contains(0) ? Worth() : WorthOf(sums);
    }

    int Total() const {
        int total = 0;
        for (int line = 0; line < 10; ++line) {
            total += WorthOfLine(line).points;
        }
        return total;
    }

    // The high scores.

    void Save(const ScoreTable& table) override {
        saved_ = table;
        store_ = StoreContent(table);
    }

    void LoadHighScores() {
        for (int at = 0; at < 5; ++at) {
            const bool fits = saved_[at].points <= 32'767; // into 16 bits
            highScores_[at] = {fits ? saved_[at].points : highScores_[at].points, saved_[at].text};
        }
    }

    void EndRound() {
        const auto isAsGood = [this](const Score& score) { return score.points >= Total(); };
        const auto better = std::ranges::count_if(highScores_, isAsGood);
        Report(better < 5 ? QString("Rank %1.").arg(better + 1) : "Not among the five best.");
        highScores_.insert(better, {Total(), clock_.toString("yyyy/M/d H:mm")});
        highScores_.removeLast();
        Save(highScores_);
        if (better < 5) {
            Open("mnuGameHigh");
        }
    }

    // What is heard.

    void Report(const QString& news) { reports_ << news; }

    void Announce() {
        if (!reports_.isEmpty()) {
            said_ = std::exchange(reports_, {}).join(' ');
            moves_ = 0;
        }
    }

    // "Row 2: 15 points, Two Pair. ", or nothing while one of its cells is empty.
    QString Spoken(int line) const {
        const QString name = QString(line < 5 ? "Row %1" : "Column %1").arg(line % 5 + 1);
        const auto [points, hand, pattern] = WorthOfLine(line);
        return hand ? QString("%1: %2 points, %3. ").arg(name).arg(points).arg(hand) : "";
    }

    // What is seen.

    static int CellOf(const QString& control) { return 5 * control[3].digitValue() + control[5].digitValue() - 6; }
    static QString Name(int cell) { return QString("img%1_%2").arg(cell / 5 + 1).arg(cell % 5 + 1); }

    QStringList See() override {
        QStringList seen{"prompt: " + prompt_ + " (Client)",
                         "said: " + (said_.isEmpty() ? "" : std::exchange(said_, "") + " (Notification)"),
                         "focus: " + FocusedControl(), "store: " + store_};
        seen += SeeStrip() + (IsDialogOpen() ? SeeDialog() : QStringList());
        for (int cell = 0; cell < 25; ++cell) {
            const QString sum = board_[cell] > 0 ? QString::number(board_[cell]) : "empty";
            const QString spoken =
                QString("Row %1, column %2: %3 (Button)").arg(cell / 5 + 1).arg(cell % 5 + 1).arg(sum);
            const bool hasHint = cell == current_ && pending_ > 0 && isRevealed_ && moves_ == 1;
            const QString hint = hasHint ? QString("%1 to place").arg(pending_) : "";
            seen << Seen(Name(cell), {QString("cell%1.png").arg(qMax(1, board_[cell])), spoken, hint});
        }
        for (int line = 0; line < 10; ++line) {
            const auto [points, hand, pattern] = WorthOfLine(line);
            const QString name = QString(line < 5 ? "_row%1" : "_col%1").arg(line % 5 + 1);
            if (hand) {
                seen << Seen("lbl" + name, {QString::number(points), Spoken(line).chopped(2) + " (StaticText)"});
                seen << Seen("img" + name, {line < 5 ? "arrow-right.ico" : "arrow-down.ico"}) << Seen("lin" + name, {});
            }
        }
        return seen;
    }

    QStringList SeeStrip() const {
        const QString total = QString::number(Total());
        // The sum is "= 0" if the roll was placed in one of its pauses.
        const QString spokenSum = sum_.isEmpty() || sum_ == "= 0" ? "No roll" : "Sum of the roll: " + sum_.sliced(2);
        const auto seeDie = [this](int die, const QString& spoken) {
            const QString control = QString("imgRolled%1").arg(die + 1);
            const QString picture = QString("die%1.jpg").arg(shownDice_[die]);
            return isDieShown_[die] ? Seen(control, {picture, spoken.arg(shownDice_[die])}) : "";
        };
        return {Seen("Line1", {}),
                Seen("imgNewGame", {"newgame.png", "New Game (Button)"}),
                Seen("lblRolled", {sum_, spokenSum + " (StaticText)"}),
                Seen("lblTotal", {total, "Total: " + total + " points (StaticText)"}),
                CanRoll() ? Seen("Image1", {"roll.png", "Roll Dice (Button)"}) : "",
                seeDie(0, "First die: %1 (Graphic)"),
                seeDie(1, "Second die: %1 (Graphic)")};
    }

    QStringList SeeDialog() const {
        const Dialog& dialog = dialogs[dialog_];
        QStringList texts = QString(dialog.texts).replace("VERSION", PROJECT_VERSION).split('\n', Qt::SkipEmptyParts);
        for (int rank = dialog_ == "mnuGameHigh" ? 5 : 0; rank > 0; --rank) {
            const auto& [points, text] = shownScores_[rank - 1];
            const QString score = QString("Rank %1: %2 points").arg(rank).arg(points);
            texts.prepend(score + (text.isEmpty() ? "" : ", " + text) + " (StaticText)");
        }
        const QString role = dialog.buttons.contains("Yes") ? " (AlertMessage)" : " (Dialog)";
        return {Seen("dialog", {dialog.title, dialog.buttons[button_], spokenTitle_ + role}), Seen("texts", texts)};
    }

    // The game.
    Sums board_;
    int pending_ = 0;
    bool isRevealed_ = false; // the pending roll
    int nestedPauses_ = 0;    // of rolls that started in another's pause
    QList<bool> isDieShown_;
    QList<int> shownDice_{1, 1};
    QString sum_, prompt_;

    // The keyboard: the focus is in the "grid", or on "Image1" or "imgNewGame".
    QString focus_;
    int current_ = 0; // the cell that has the focus or gets it
    int moves_ = 0;   // of the focus over the grid, since the last announcement

    QStringList reports_;                                         // to be announced
    QString said_;                                                // since the last look
    ScoreTable highScores_, shownScores_, saved_ = ScoreTable(5); // the window's, the open dialog's, the file's
    QString store_;                                               // the content of the file
    QString dialog_, spokenTitle_; // the menu entry of the open dialog; what a screen reader says for its title
    int button_ = 0;               // that has the focus
};
