// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#include "RulesModel.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <vector>

namespace {

int Points(std::array<int, 5> hand) {
    std::sort(hand.begin(), hand.end());
    std::vector<int> counts;
    int run = 1;
    int longestRun = 1;
    for (std::size_t at = 0; at < hand.size(); ++at) {
        if (at == 0 || hand[at] != hand[at - 1]) {
            counts.push_back(0);
            run = at > 0 && hand[at] == hand[at - 1] + 1 ? run + 1 : 1;
            longestRun = std::max(longestRun, run);
        }
        ++counts.back();
    }
    std::sort(counts.rbegin(), counts.rend());
    if (counts[0] == 5) {
        return 50;
    }
    if (longestRun >= 4) {
        return longestRun == 5 ? 40 : 30;
    }
    if (counts[0] == 4) {
        return 20;
    }
    if (counts[0] == 3) {
        return counts[1] == 2 ? 25 : 10;
    }
    return counts[0] == 1 ? 0 : counts[1] == 2 ? 15 : 5;
}

int Pixels(double twips) {
    return static_cast<int>(std::lround(twips / 15));
}

int Wrapped(int number) {
    return (number + 4) % 5 + 1;
}

QString CellName(int row, int column) {
    return QString("img%1_%2").arg(row).arg(column);
}

} // namespace

void RulesModel::BeginRoll(int first, int second) {
    for (int tried = 0; tried < 25 && At(row_, column_) != 0; ++tried) {
        column_ = Wrapped(column_ + 1);
        row_ = column_ == 1 ? Wrapped(row_ + 1) : row_;
    }
    focus = CellName(row_, column_);
    canRoll = false;
    firstDie = first;
    secondDie = second;
    pending = first + second;
    showsFirst = true;
}

void RulesModel::EndRoll() {
    sum = QString("= %1").arg(pending);
    prompt = "Select A Location for the Roll on the Grid";
}

bool RulesModel::Place(int row, int column, const QString& now) {
    board[static_cast<std::size_t>((row - 1) * 5 + column - 1)] = pending;
    pending = 0;
    showsFirst = showsSecond = false;
    sum.clear();
    canRoll = !IsFull();
    focus = canRoll ? "Image1" : "imgNewGame";
    prompt = canRoll ? "Roll The Dice" : "Game Over!";
    row_ = row;
    column_ = column;
    if (canRoll) {
        return false;
    }
    const auto rank = std::find_if(table.begin(), table.end(), [&](const Entry& e) { return e.score < Total(); });
    const bool enters = rank != table.end();
    if (enters) {
        std::move_backward(rank, table.end() - 1, table.end());
        *rank = {Total(), now};
    }
    stored = table;
    return enters;
}

void RulesModel::StartNewGame() {
    RulesModel fresh;
    fresh.table = table;
    fresh.stored = stored;
    // A roll in its pause goes on, and shows the die that it has thrown.
    fresh.firstDie = firstDie;
    fresh.secondDie = secondDie;
    *this = fresh;
}

void RulesModel::EnterCell(int row, int column) {
    // From a button the first key only enters the grid.
    if (focus.contains('_')) {
        row_ = row;
        column_ = column;
    }
    focus = CellName(row_, column_);
}

void RulesModel::PressArrow(int rowStep, int columnStep) {
    EnterCell(Wrapped(row_ + rowStep), Wrapped(column_ + columnStep));
}

void RulesModel::PressHomeOrEnd(int column) {
    EnterCell(row_, column);
}

void RulesModel::PressTab(int direction) {
    QStringList stops{CellName(row_, column_), "Image1", "imgNewGame"};
    if (!canRoll) {
        stops.removeAt(1);
    }
    const auto count = stops.size();
    focus = stops[(stops.indexOf(focus) + direction + count) % count];
}

QRect RulesModel::CellPlace(int row, int column, const QSize& outer) {
    const double left = 240 + (column - 1) * ((outer.width() * 15 - 240) / 6.0 - 160);
    const double top = 360 + (row - 1) * ((outer.height() * 15 - 2500) / 6.0 - 80);
    return {Pixels(left), Pixels(top), 50, 50};
}

QString RulesModel::ControlAt(const QPoint& point, const QSize& outer) const {
    const int stripTop = Pixels(outer.height() * 15 - 2400);
    if (canRoll && QRect(0, stripTop, 197, 75).contains(point)) {
        return "Image1";
    }
    const double gridRight = 240 + 4 * ((outer.width() * 15 - 240) / 6.0 - 160) + 750;
    if (QRect(Pixels(std::max(gridRight - 2955, 2955.0 + 100)), stripTop, 197, 75).contains(point)) {
        return "imgNewGame";
    }
    for (int row = 1; row <= 5; ++row) {
        for (int column = 1; column <= 5; ++column) {
            if (CellPlace(row, column, outer).contains(point)) {
                return CellName(row, column);
            }
        }
    }
    return {};
}

bool RulesModel::IsFull() const {
    return std::find(board.begin(), board.end(), 0) == board.end();
}

std::array<std::optional<int>, 10> RulesModel::LineScores() const {
    std::array<std::optional<int>, 10> scores;
    for (int line = 0; line < 10; ++line) {
        std::array<int, 5> hand{};
        for (int step = 0; step < 5; ++step) {
            hand[static_cast<std::size_t>(step)] = line < 5 ? At(line + 1, step + 1) : At(step + 1, line - 4);
        }
        if (std::find(hand.begin(), hand.end(), 0) == hand.end()) {
            scores[static_cast<std::size_t>(line)] = Points(hand);
        }
    }
    return scores;
}

int RulesModel::Total() const {
    const auto scores = LineScores();
    return std::accumulate(scores.begin(), scores.end(), 0,
                           [](int total, auto score) { return total + score.value_or(0); });
}
