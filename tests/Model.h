// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#pragma once

#include "Teller.h"

#include <algorithm>

// A pattern in the steps from each of five sums, in order of size, to the next; the points; the hand's name and rule.
using Worth = std::tuple<const char*, int, const char*, const char*>;

inline const QList<Worth> worths{{"0000", 50, "Five of a Kind", "Five rolls with the same number"},
                                 {"1111", 40, "Large Straight", "Five rolls in numeric sequence"},
                                 {"10*10*1", 30, "Small Straight", "Four rolls in numeric sequence"},
                                 {"00[^0]0|0[^0]00", 25, "Full House", "One pair and one Three of a Kind"},
                                 {"000", 20, "Four of a Kind", "Four rolls with the same number"},
                                 {"0[^0]+0", 15, "Two Pair", "Two sets of two rolls with the same number"},
                                 {"00", 10, "Three of a Kind", "Three rolls with the same number"},
                                 {"0", 5, "Pair", "Two rolls with the same number"},
                                 {"", 0, "No hand", ""}};

using Sums = QList<std::int16_t>; // of two dice; 0 for an empty cell

inline Worth WorthOf(Sums line) {
    std::ranges::sort(line);
    QString steps;
    for (int at = 1; at < 5; ++at) {
        steps += QString::number(qMin(9, line[at] - line[at - 1]));
    }
    const auto holds = [&](const Worth& worth) { return steps.contains(QRegularExpression(std::get<0>(worth))); };
    static QHash<QString, Worth> known; // a pattern takes its time
    if (!known.contains(steps)) {
        known[steps] = *std::ranges::find_if(worths, holds);
    }
    return known[steps];
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
        const bool isEnter = IsOneOf(word, "Space Return Enter");
        if (IsDialogOpen()) {
            Answer(isEnter ? dialogs[open_][1 + button_] : word);
        } else {
            const QString name = isEnter ? Focused() : word;
            Act(entries.value(name, name));
        }
    }

    QStringList See() const override {
        QString list;
        for (const auto& [score, text] : table_) {
            list += QString("%1  %2|").arg(score).arg(text);
        }
        const QString open = dialogs.value(open_, {""}).first() + (open_ == "mnuGameHigh" ? list : "");
        return QStringList{"prompt " + prompt_,  QString("menu %1").arg(CanRoll()),
                           "focus " + Focused(), "table " + list,
                           "store " + store_,    "open " + open}
               + SeeTable() + SeeStrip();
    }

private:
    static bool IsOneOf(const QString& word, const QString& words) { return words.split(' ').contains(word); }
    static QString Name(int cell) { return QString("img%1_%2").arg(cell / 5 + 1).arg(cell % 5 + 1); }

    bool IsFull() const { return !board_.contains(0); }
    bool CanRoll() const { return pending_ == 0 && !IsFull(); }
    QString Focused() const { return focus_ == "grid" ? Name(current_) : focus_; }

    void Act(const QString& name) {
        if (name == "mnuGameRoll" && CanRoll()) {
            Roll();
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

    void Move(const QString& key) {
        const int row = current_ / 5 * 5;
        const QMap<QString, int> targets{
            {"Left", row + (current_ + 4) % 5},  {"Up", (current_ + 20) % 25},  {"Home", row},
            {"Right", row + (current_ + 1) % 5}, {"Down", (current_ + 5) % 25}, {"End", row + 4},
            {"Num+Up", (current_ + 20) % 25}};
        const QStringList stops = QString(CanRoll() ? "grid Image1 imgNewGame" : "grid imgNewGame").split(' ');
        if (IsOneOf(key, "Tab Shift+Tab")) {
            focus_ = stops[(stops.indexOf(focus_) + (key == "Tab" ? 1 : stops.size() - 1)) % stops.size()];
        } else if (targets.contains(key) && std::exchange(focus_, "grid") == "grid") {
            current_ = targets[key];
        }
    }

    void Show(const QString& entry) {
        open_ = entry;
        button_ = 0;
        if (entry == "mnuGameHigh") {
            Load();
        }
        InDialog();
    }

    void Answer(const QString& word) {
        const QStringList buttons = dialogs[open_].sliced(1);
        if (IsOneOf(word, "Tab Shift+Tab Left Right Up Down")) {
            button_ = (button_ + 1) % int(buttons.size());
        }
        const bool isEscape = word == "Escape" && !IsOneOf(open_, "mnuGameHigh mnuHelpHow");
        if (isEscape || word == "close" || buttons.contains(word)) {
            const QString entry = std::exchange(open_, QString());
            if (word == "CancelButton") {
                Save(Table(5));
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
    }

    // No roll is pending: what both a new game and a placement do.
    void Clear() {
        pending_ = 0;
        sum_.clear();
        isDieShown_ = {false, false};
        focus_ = IsFull() ? "imgNewGame" : "Image1";
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
        for (const int die : {0, 1}) {
            isDieShown_[die] = true;
            passes_ = underWay_ < 64 ? die * pause + 1 : 0;
            if (underWay_ < 64) {
                ++underWay_;
                InPause(die + 1);
                --underWay_;
            }
        }
        passes_ = underWay_ < 64 ? 2 * pause : 0;
        sum_ = QString("= %1").arg(pending_);
        prompt_ = "Select A Location for the Roll on the Grid";
    }

    void Put(int cell) {
        if (pending_ > 0 && board_[cell] == 0) {
            board_[cell] = std::int16_t(pending_);
            current_ = cell;
            Clear();
            if (IsFull()) {
                Record();
            }
        }
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
        }
        Save(table_);
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

    void Save(const Table& table) { store_ = StoreOf(table); }

    // No hand at all while one of the line's cells is empty.
    Worth Score(int line) const {
        Sums sums;
        for (int step = 0; step < 5; ++step) {
            sums << board_[line < 5 ? 5 * line + step : 5 * step + line - 5];
        }
        return sums.contains(0) ? Worth("", 0, "", "") : WorthOf(sums);
    }

    int Total() const {
        int total = 0;
        for (int line = 0; line < 10; ++line) {
            total += std::get<int>(Score(line));
        }
        return total;
    }

    // Places are told in twips, fifteen to the pixel.
    double Across() const { return (outer_.width() * 15 - 240) / 6.0; }
    double Bar() const { return outer_.height() * 15 - 2500; }
    double Left(int column) const { return 240 + column * (Across() - 160); }
    double Top(int row) const { return 360 + row * (Bar() / 6 - 80); }
    static QString Line(const QString& name, const QRectF& twips, const QString& state) {
        return name + ' ' + Place(twips, 15) + ' ' + state;
    }
    static double Whole(double twips) { return qRound(twips / 15) * 15.0; }

    QStringList SeeTable() const {
        QStringList seen;
        for (int cell = 0; cell < 25; ++cell) {
            const QString value = board_[cell] > 0 ? QString::number(board_[cell]) : "empty";
            const QString spoken = QString("%1 Row %2, column %3: ").arg(qMax<int>(1, board_[cell])).arg(cell / 5 + 1);
            seen << Line(Name(cell), {Left(cell % 5), Top(cell / 5), 750, 750}, spoken.arg(cell % 5 + 1) + value);
        }
        for (int at = 0; at < 5; ++at) {
            const double drop = QList<double>{240, 160, 80, 0, -60}[at];
            const double rowMiddle = at == 0 ? 720 : Whole(Top(at) + 375), rowEnd = at == 0 ? 480 : 600;
            const double middle = at == 0 ? 585 : Left(at) + 375;
            seen += SeeLine(at, {5 * Across() - 260, 360 + at * Bar() / 6 + drop, 495, 255},
                            {Left(4) + 600, Top(at), 480, 720}, {rowEnd, rowMiddle - 60, Whole(Left(4)) - rowEnd, 120});
            seen += SeeLine(5 + at, {Left(at), 5 * Bar() / 6 + 435, 735, 255},
                            {at == 0 ? 240 : middle - 360, Top(4) + 600, 720, 600},
                            {Whole(middle) - 60, 720, 120, Whole(Top(4)) - 720});
        }
        return seen;
    }

    QStringList SeeLine(int line, const QRectF& readOut, const QRectF& marker, const QRectF& strike) const {
        const auto [steps, points, hand, rule] = Score(line);
        const bool isHidden = *hand == 0;
        const QString kind = line < 5 ? "Row" : "Column", number = QString::number(line % 5 + 1);
        const QString name = "_" + kind.left(3).toLower() + number;
        const QString spoken = QString("%1 %2 %3: %1 points, %4").arg(points).arg(kind, number, hand);
        return {Line("lbl" + name, readOut, isHidden ? "hidden" : spoken),
                Line("img" + name, marker, isHidden ? "hidden" : "1"),
                Line("lin" + name, strike, isHidden ? "hidden" : "")};
    }

    QStringList SeeStrip() const {
        const auto die = [this](int at, const QString& nth) {
            const QString spoken = QString("%1 %2 die: %1").arg(faces_[at]).arg(nth);
            return Line(QString("imgRolled%1").arg(at + 1), {240.0 + 840 * at, Bar() + 200, 750, 750},
                        isDieShown_[at] ? spoken : "hidden");
        };
        const QString spokenSum = sum_.isEmpty() || sum_ == "= 0" ? " No roll" : " Sum of the roll: " + sum_.sliced(2);
        const QString total = QString("%1 Total: %1 points").arg(Total());
        return {die(0, "First"),
                die(1, "Second"),
                Line("lblRolled", {2040, Bar() + 200, 1305, 825}, (sum_ + spokenSum).trimmed()),
                Line("lblTotal", {5 * Across() - 260, 5 * Bar() / 6 + 360, 1095, 495}, total),
                Line("Line1", {0, Whole(Bar()) - 30, outer_.width() * 15.0, 60}, ""),
                Line("Image1", {0, Bar() + 100, 2955, 1125}, CanRoll() ? "1 Roll Dice" : "hidden"),
                Line("imgNewGame", {qMax(Left(4) - 2205, 3055.0), Bar() + 100, 2955, 1125}, "1 New Game")};
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
    QString prompt_, sum_, open_, focus_, store_;
    QSize outer_;
    Table table_;
};
