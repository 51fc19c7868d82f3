// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#include "dialogs/frmHelp.h"

#include "mainwindow/Form1.h"

#include <QPushButton>

#include <array>

using namespace Qt::StringLiterals;

namespace {

struct ChartRow {
    const char* name;
    QRect place;
    const char* caption;
};

// By points, as the game counts them: two pair beats three of a kind. The uneven steps leave room for two
// lines.
constexpr std::array<ChartRow, 8> chart{{
    {"Label4", {8, 128, 361, 25}, "Pair = 5 points: Two rolls with the same number"},
    {"Label5", {8, 152, 417, 33}, "Three of a Kind = 10 points: Three rolls with the same number"},
    {"Label6", {8, 192, 417, 33}, "Two Pair = 15 points: Two sets of two rolls with the same number"},
    {"Label7", {8, 232, 417, 33}, "Four of a Kind = 20 points: Four rolls with the same number"},
    {"Label8", {8, 256, 417, 33}, "Full House = 25 points: One pair and one Three of a Kind"},
    {"Label9", {8, 280, 417, 33}, "Small Straight = 30 points: Four rolls in numeric sequence"},
    {"Label10", {8, 304, 417, 33}, "Large Straight = 40 points: Five rolls in numeric sequence"},
    {"Label11", {8, 328, 417, 33}, "Five of a Kind = 50 points: Five rolls with the same number"},
}};

const QString playText = QStringLiteral("Kelvaro is played on a five by five grid. On each turn, you roll "
                                        "the dice by clicking on \"Roll\", then place "
                                        "the roll in any available spot on the grid by clicking that spot.");

const QString objectText = QStringLiteral("The object is to create the best possible dice poker hand on each "
                                          "column and row. The round's score is the sum "
                                          "of the scores from each column and row when all spots are filled. "
                                          "Scoring is calculated according to the "
                                          "following chart:");

} // namespace

frmHelp::frmHelp() : GreenDialog(u"frmHelp"_s, u"How To Play Kelvaro"_s, QSize(426, 396)) {
    auto* okButton = AddButton(u"OKButton"_s, u"OK"_s, {336, 360, 81, 25});
    connect(okButton, &QPushButton::clicked, this, &frmHelp::OKButton_Click);

    AddLabel({u"Label1"_s, {8, 8, 145, 25}, Colours::heading, TypeSize::Heading, QFont::Normal, u"Game Play"_s});
    AddLabel({u"Label2"_s, {8, 32, 401, 41}, Colours::white, TypeSize::Text, QFont::Normal, playText});
    AddLabel({u"Label3"_s, {8, 80, 401, 41}, Colours::white, TypeSize::Text, QFont::Normal, objectText});
    std::vector<Label*> rows;
    rows.reserve(chart.size());
    for (const ChartRow& row : chart) {
        rows.push_back(AddLabel({QLatin1String(row.name), row.place, Colours::chart, TypeSize::Chart, QFont::Bold,
                                 QLatin1String(row.caption)}));
    }
    FitLabels();
    FitAlike(rows);
}

void frmHelp::OKButton_Click() {
    Unload();
}

void Form1::mnuHelpHow_Click() {
    frmHelp dialog;
    dialog.ShowModal(*this);
}
