// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#include "highscores/DateTimeText.h"
#include "highscores/frmHighScores.h"
#include "mainwindow/Form1.h"

void Form1::LoadHighScores() {
    highScores_.Load(*platform_.openSettings());
}

void Form1::SaveHighScores() {
    highScores_.Save(*platform_.openSettings());
}

void Form1::RecordHighScore(std::int16_t score) {
    const auto rank = highScores_.Enter(score, [this] { return DateTimeText(platform_); });
    // Now, so that the round is not lost however the program ends.
    SaveHighScores();
    speech_.RoundRanked(rank);
    if (rank) {
        ShowHighScores();
    }
}

void Form1::mnuGameHigh_Click() {
    LoadHighScores();
    ShowHighScores();
}

void Form1::ShowHighScores() {
    if (IsDialogOpen()) {
        return; // the round itself is still announced
    }
    const auto store = platform_.openSettings();
    frmHighScores dialog(highScores_, *store);
    speech_.AnnounceIn(dialog);
    dialog.ShowModal(*this);
    if (dialog.HasReset()) {
        speech_.ScoresReset();
        speech_.Announce();
    }
}
