// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#include "dialogs/frmHelp.h"

#include "scoring/EvaluateHand.h"

#include <QPushButton>

#include <array>

using namespace Qt::StringLiterals;

namespace {

// The places of the chart's rows, the lowest points first. The uneven steps leave room for two lines.
constexpr std::array<QRect, 8> chartPlaces{{
    {8, 128, 361, 25},
    {8, 152, 417, 33},
    {8, 192, 417, 33},
    {8, 232, 417, 33},
    {8, 256, 417, 33},
    {8, 280, 417, 33},
    {8, 304, 417, 33},
    {8, 328, 417, 33},
}};
constexpr int firstChartLabel = 4;

constexpr QLatin1String playText =
    "Kelvaro is played on a five by five grid. On each turn, you roll the dice by clicking on \"Roll\", then place the "
    "roll in any available spot on the grid by clicking that spot."_L1;

constexpr QLatin1String objectText =
    "The object is to create the best possible dice poker hand on each column and row. The round's score is the sum of "
    "the scores from each column and row when all spots are filled. Scoring is calculated according to the following "
    "chart:"_L1;

} // namespace

frmHelp::frmHelp() : GreenDialog(u"frmHelp"_s, u"How To Play Kelvaro"_s, QSize(426, 396)) {
    auto* okButton = AddButton(u"OKButton"_s, u"OK"_s, {336, 360, 81, 25});
    connect(okButton, &QPushButton::clicked, this, &frmHelp::OKButton_Click);

    AddLabel({u"Label1"_s, {8, 8, 145, 25}, Colours::heading, TypeSize::Heading, QFont::Normal, u"Game Play"_s});
    auto* play = AddLabel({u"Label2"_s, {8, 32, 401, 41}, Colours::white, TypeSize::Text, QFont::Normal, playText});
    auto* object = AddLabel({u"Label3"_s, {8, 80, 401, 41}, Colours::white, TypeSize::Text, QFont::Normal, objectText});
    std::vector<Label*> rows;
    rows.reserve(chartPlaces.size());
    for (std::size_t at = 0; at < chartPlaces.size(); ++at) {
        const HandCategory& hand = handCategories[chartPlaces.size() - 1 - at];
        rows.push_back(AddLabel(
            {u"Label%1"_s.arg(firstChartLabel + at), chartPlaces[at], Colours::chart, TypeSize::Chart, QFont::Bold,
             u"%1 = %2 points: %3"_s.arg(QLatin1String(hand.name)).arg(hand.points).arg(QLatin1String(hand.rule))}));
    }
    FitLabels();
    FitAlike({play, object});
    FitAlike(rows);
}

void frmHelp::OKButton_Click() {
    Unload();
}
