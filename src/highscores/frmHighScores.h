// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#pragma once

#include "dialogs/GreenDialog.h"
#include "highscores/HighScoreTable.h"

#include <array>

class SettingsStore;

// The list of the five best rounds.
class frmHighScores final : public GreenDialog {
public:
    // Shows `table` as it stands. "Reset Scores" empties `store`, which outlives the dialog, and leaves
    // `table` alone.
    frmHighScores(const HighScoreTable& table, const SettingsStore& store);

    bool HasReset() const { return hasReset_; }

private:
    void OKButton_Click();
    void CancelButton_Click();

    const SettingsStore& store_;
    bool hasReset_ = false;
    std::array<Label*, HighScoreTable::Ranks> lblHighScore_{};
};
