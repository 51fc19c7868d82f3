// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#pragma once

#include "dialogs/GreenDialog.h"
#include "highscores/HighScoreTable.h"

#include <array>

class QSettings;

// The list of the five best rounds.
class frmHighScores final : public GreenDialog {
public:
    // Shows `table`. "Reset Scores" clears `store`, which must outlive the dialog, but not `table`.
    frmHighScores(const HighScoreTable& table, QSettings& store);

    bool HasReset() const { return hasReset_; }

private:
    void OKButton_Click();
    void CancelButton_Click();

    QSettings& store_;
    bool hasReset_ = false;
    std::array<Label*, HighScoreTable::Ranks> lblHighScore_{};
};
