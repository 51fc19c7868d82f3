// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#pragma once

#include "Teller.h"

#include <algorithm>

// Points and name of a hand, by how often each of a line's sums is there, most often first, or by how many of them
// follow one another.
inline const QString worths =
    "|5=50 Five of a Kind|run of 5=40 Large Straight|run of 4=30 Small Straight|32=25 Full House|41=20 Four of a Kind|"
    "221=15 Two Pair|311=10 Three of a Kind|2111=5 Pair|11111=0 No hand|";

using Sums = QList<std::int16_t>; // of two dice; 0 for an empty cell

inline QString WorthOf(const Sums& line) {
    QString counts, present;
    for (std::int16_t sum = 2; sum <= 12; ++sum) {
        const auto count = line.count(sum);
        present += count > 0 ? 'x' : ' ';
        counts += count > 0 ? QString::number(count) : "";
    }
    std::ranges::sort(counts, std::greater());
    const QString key = present.contains("xxxxx") ? "run of 5" : present.contains("xxxx") ? "run of 4" : counts;
    return worths.section('|' + key + '=', 1).section('|', 0, 0);
}

// The rules of the game told a second time, with nothing of the game's own code. Cells are counted from 0, row by row,
// and lines from 0, rows first.
class Model final : public Teller {
public:
    Model() { Start(); }

protected:
    void Start() override {
        outer_ = floor;
        table_ = Table(5);
        faces_ = {1, 1};
        Load();
        NewGame();
    }

    void SetStore(const QString& content) override { store_ = content; }
    void Resize(const QSize& outer) override { outer_ = outer.expandedTo(floor); }
    bool IsDialogOpen() const override { return !open_.isEmpty(); }

    void Press(const QString& word) override {
        static const QMap<QString, QString> entries{{"Image1", "mnuGameRoll"}, {"imgNewGame", "mnuNewGame"},
                                                    {"Ctrl+R", "mnuGameRoll"}, {"Ctrl+N", "mnuNewGame"},
                                                    {"Ctrl+Q", "mnuGameExit"}, {"F1", "mnuHelpHow"}};
        const QString focused = IsDialogOpen() ? dialogs[open_][1 + button_] : Focused();
        const QString control = IsOneOf(word, "Space Return Enter") ? focused : word;
        const QString name = entries.value(control, control);
        if (IsDialogOpen()) {
            Answer(control);
        } else if (name == "mnuGameRoll" && CanRoll()) {
            Roll();
        } else if (control == "Ctrl+R") {
            said_ = IsFull() ? "The game is over." : isRevealed_ ? QString("%1 to place.").arg(pending_) : said_;
        } else if (name == "mnuNewGame" && IsFull()) {
            NewGame();
        } else if (dialogs.contains(name)) {
            Show(name);
        } else if (name == "close") {
            hasEnded_ = true;
        } else if (name.startsWith("img")) {
            Put(5 * name[3].digitValue() + name[5].digitValue() - 6);
        } else {
            Move(name);
        }
    }

    QStringList See() const override {
        QString open = dialogs.value(open_, {""}).first() + (open_ == "mnuGameHigh" ? title_ : "");
        for (const auto& [score, text] : open_ == "mnuGameHigh" ? table_ : Table()) {
            open += QString("%1  %2|").arg(score).arg(text);
        }
        const QString canRoll = CanRoll() ? "yes" : "no";
        return QStringList{"prompt " + prompt_,  "said " + said_.trimmed(), "menu " + canRoll,
                           "focus " + Focused(), "store " + store_,         "open " + open}
               + SeeGrid() + SeeStrip();
    }

private:
    static bool IsOneOf(const QString& word, const QString& words) { return words.split(' ').contains(word); }
    static QString Name(int cell) { return QString("img%1_%2").arg(cell / 5 + 1).arg(cell % 5 + 1); }

    bool IsFull() const { return !board_.contains(0); }
    bool CanRoll() const { return pending_ == 0 && !IsFull(); }
    QString Focused() const { return focus_ == "grid" ? Name(current_) : focus_; }

    void Move(const QString& key) {
        const int row = current_ / 5 * 5, up = (current_ + 20) % 25, down = (current_ + 5) % 25;
        const QList<int> targets{row + (current_ + 4) % 5, row + (current_ + 1) % 5, up, up, down, row, row + 4};
        const auto target = QString("Left Right Up Num+Up Down Home End").split(' ').indexOf(key);
        const QStringList stops = QString(CanRoll() ? "grid Image1 imgNewGame" : "grid imgNewGame").split(' ');
        if (IsOneOf(key, "Tab Shift+Tab")) {
            focus_ = stops[(stops.indexOf(focus_) + (key == "Tab" ? 1 : stops.size() - 1)) % stops.size()];
        } else if (target >= 0 && std::exchange(focus_, "grid") == "grid") {
            current_ = targets[target];
        }
    }

    void Show(const QString& entry) {
        open_ = entry;
        button_ = 0;
        if (entry == "mnuGameHigh") {
            title_ = news_.isEmpty() ? "" : std::exchange(news_, {}) + "High Scores";
            Load();
        }
        InDialog();
    }

    void Answer(const QString& word) {
        const QStringList buttons = dialogs[open_].sliced(1);
        const bool isEscape = word == "Escape" && !IsOneOf(open_, "mnuGameHigh mnuHelpHow");
        if (IsOneOf(word, "Tab Shift+Tab Left Right Up Down")) {
            button_ = (button_ + 1) % int(buttons.size());
        } else if (isEscape || word == "close" || buttons.contains(word)) {
            const QString entry = std::exchange(open_, QString());
            if (word == "CancelButton") {
                store_ = StoreOf(Table(5));
                Announce("The scores are reset.");
            } else if (word == "Yes" && entry == "mnuNewGame") {
                NewGame();
            } else if (word == "Yes") {
                hasEnded_ = true;
            }
        }
    }

    void NewGame() {
        board_ = Sums(25);
        current_ = 0;
        Clear();
        Announce("New game.");
    }

    // Everything that is new since the last time.
    void Announce(const QString& last) { said_ = std::exchange(news_, {}) + last; }

    // No roll is pending: what both a new game and a placement do.
    void Clear() {
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
        seed_ = ReadClock().time().second();
        faces_ = dice_;
        pending_ = dice_[0] + dice_[1];
        isRevealed_ = false;
        news_ += QString("%1 and %2: %3. ").arg(dice_[0]).arg(dice_[1]).arg(pending_);
        const bool pauses = underWay_ < 64;
        ++underWay_;
        for (const int die : {0, 1}) {
            isDieShown_[die] = true;
            passes_ = pauses ? die * pause + 1 : 0;
            InPause(pauses ? die + 1 : 0);
        }
        --underWay_;
        passes_ = pauses ? 2 * pause : 0;
        sum_ = QString("= %1").arg(pending_);
        prompt_ = "Select A Location for the Roll on the Grid";
        isRevealed_ = true;
        Announce(news_.isEmpty() ? said_ : "");
    }

    void Put(int cell) {
        if (pending_ > 0 && board_[cell] == 0) {
            board_[cell] = std::int16_t(pending_);
            current_ = cell;
            news_ += QString("%1 in row %2, column %3. ").arg(pending_).arg(cell / 5 + 1).arg(cell % 5 + 1);
            Clear();
            const QString lines = Spoken(cell / 5) + Spoken(5 + cell % 5), over = IsFull() ? prompt_ + ' ' : "";
            news_ += lines + over + (lines.isEmpty() ? "" : QString("Total: %1 points. ").arg(Total()));
            if (IsFull()) {
                Record();
                focus_ = "imgNewGame";
            }
            Announce(news_.isEmpty() ? said_ : "");
        } else {
            said_ = board_[cell] > 0 ? "This cell is filled." : "There is no roll to place.";
        }
    }

    // What a complete line is worth.
    QString Spoken(int line) const {
        const QString name = QString(line < 5 ? "Row %1" : "Column %1").arg(line % 5 + 1);
        return Score(line).replace(QRegularExpression("^(\\d+) (.+)"), name + ": \\1 points, \\2. ");
    }

    void Record() {
        const bool isEntered = Total() > table_.last().first;
        if (isEntered) {
            QString text;
            for (const char* field : {"yyyy/", "M/", "d ", "H:", "mm"}) {
                text += ReadClock().toString(field);
            }
            table_.last() = {Total(), text};
            std::ranges::stable_sort(table_, std::greater(), &Table::value_type::first);
            const auto isAbove = [this](const auto& entry) { return entry.first >= Total(); };
            news_ += QString("Rank %1. ").arg(std::ranges::count_if(table_, isAbove));
        } else {
            news_ += "Not among the five best. ";
        }
        store_ = StoreOf(table_);
        if (isEntered) {
            Show("mnuGameHigh");
        }
    }

    QString Stored(const QString& key) const { return store_.section(key + '=', 1).section('\n', 0, 0); }

    void Load() {
        for (int at = 0; at < 5; ++at) {
            const int score = Stored(QString("Score%1").arg(at + 1)).toInt();
            table_[at] = {score > 32'767 ? table_[at].first : score, Stored(QString("User%1").arg(at + 1))};
        }
    }

    // No hand at all while one of the line's cells is empty.
    QString Score(int line) const {
        Sums sums;
        for (int step = 0; step < 5; ++step) {
            sums << board_[line < 5 ? 5 * line + step : 5 * step + line - 5];
        }
        return sums.contains(0) ? QString() : WorthOf(sums);
    }

    int Total() const {
        int total = 0;
        for (int line = 0; line < 10; ++line) {
            total += Score(line).section(' ', 0, 0).toInt();
        }
        return total;
    }

    // Places are told in twips, fifteen to the pixel; lines are drawn on whole pixels.
    double Across() const { return (outer_.width() * 15 - 240) / 6.0; }
    double Bar() const { return outer_.height() * 15 - 2500; }
    double Left(int column) const { return 240 + column * (Across() - 160); }
    double Top(int row) const { return 360 + row * (Bar() / 6 - 80); }
    static double Whole(double twips) { return qRound(twips / 15) * 15.0; }
    static QString At(const QRectF& twips, const QString& name, const QString& state) {
        return (name + ' ' + Place(twips, 15) + ' ' + state).trimmed();
    }

    QStringList SeeGrid() const {
        QStringList seen;
        for (int cell = 0; cell < 25; ++cell) {
            const QString value = board_[cell] > 0 ? QString::number(board_[cell]) : "empty";
            const QString spoken = QString("%1 Row %2, column %3: ").arg(qMax<int>(1, board_[cell])).arg(cell / 5 + 1);
            seen << At({Left(cell % 5), Top(cell / 5), 750, 750}, Name(cell), spoken.arg(cell % 5 + 1) + value);
        }
        const double right = Left(4), lowest = Top(4);
        for (int at = 0; at < 5; ++at) {
            const double x = at == 0 ? 585 : Left(at) + 375, y = at == 0 ? 720 : Top(at) + 375;
            const double from = at == 0 ? 480 : 600, drop = QList<double>{240, 160, 80, 0, -60}[at];
            seen += SeeLine(at, QString("_row%1").arg(at + 1),
                            {{5 * Across() - 260, 360 + at * Bar() / 6 + drop, 495, 255},
                             {right + 600, Top(at), 480, 720},
                             {from, Whole(y) - 60, Whole(right) - from, 120}});
            seen += SeeLine(5 + at, QString("_col%1").arg(at + 1),
                            {{Left(at), 5 * Bar() / 6 + 435, 735, 255},
                             {at == 0 ? 240 : x - 360, lowest + 600, 720, 600},
                             {Whole(x) - 60, 720, 120, Whole(lowest) - 720}});
        }
        return seen;
    }

    QStringList SeeLine(int line, const QString& name, const QList<QRectF>& places) const {
        const QString points = Score(line).section(' ', 0, 0);
        const QStringList seen{At(places[0], "lbl" + name, points + ' ' + Spoken(line).section('.', 0, 0)),
                               At(places[1], "img" + name, "1"), At(places[2], "lin" + name, "")};
        return points.isEmpty() ? QStringList() : seen;
    }

    QStringList SeeStrip() const {
        const QString spokenSum = sum_.isEmpty() || sum_ == "= 0" ? " No roll" : " Sum of the roll: " + sum_.sliced(2);
        const QString total = QString("%1 Total: %1 points").arg(Total());
        QStringList seen(CanRoll() ? 1 : 0, At({0, Bar() + 100, 2955, 1125}, "Image1", "1 Roll Dice"));
        seen += {At({2040, Bar() + 200, 1305, 825}, "lblRolled", sum_ + spokenSum),
                 At({5 * Across() - 260, 5 * Bar() / 6 + 360, 1095, 495}, "lblTotal", total),
                 At({0, Whole(Bar()) - 30, outer_.width() * 15.0, 60}, "Line1", ""),
                 At({qMax(Left(4) - 2205, 3055.0), Bar() + 100, 2955, 1125}, "imgNewGame", "1 New Game")};
        const auto nth = [](int die) { return QStringList{"First", "Second"}[die]; };
        for (const int die : {0, 1}) {
            seen << At({240.0 + 840 * die, Bar() + 200, 750, 750}, QString("imgRolled%1").arg(die + 1),
                       QString("%1 %2 die: %1").arg(faces_[die]).arg(nth(die)));
            seen.resize(isDieShown_[die] ? seen.size() : seen.size() - 1);
        }
        return seen;
    }

    static constexpr QSize floor{418, 541};

    // What a menu entry opens, and the buttons in it.
    static inline const QMap<QString, QStringList> dialogs{
        {"mnuNewGame", {"Are you sure you want to quit this game and start a new one?|", "Yes", "No"}},
        {"mnuGameExit", {"Are you sure you want to quit?|", "Yes", "No"}},
        {"mnuGameHigh", {"frmHighScores", "OKButton", "CancelButton"}},
        {"mnuHelpHow", {"frmHelp", "OKButton"}},
        {"mnuHelpAbout", {"frmAbout", "cmdOK"}}};

    Sums board_;
    QList<int> faces_;
    QList<bool> isDieShown_;
    int pending_ = 0, current_ = 0, button_ = 0, underWay_ = 0;
    QString said_, news_, title_, prompt_, sum_, open_, focus_, store_;
    QSize outer_;
    bool isRevealed_ = false;
    Table table_;
};
