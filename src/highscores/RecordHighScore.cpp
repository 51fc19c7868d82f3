// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#include "highscores/DateTimeText.h"
#include "highscores/frmHighScores.h"
#include "mainwindow/Form1.h"
#include "mainwindow/SpokenNames.h"

#include <utility>

void Form1::LoadHighScores() {
    highScores_.Load(*platform_.openSettings());
}

void Form1::SaveHighScores() {
    highScores_.Save(*platform_.openSettings());
}

void Form1::RecordHighScore(std::int16_t score) {
    const auto rank = highScores_.Enter(score, [this] { return DateTimeText(platform_); });
    // On disk before anything else happens, so that no end of the program can lose the round.
    SaveHighScores();
    if (rank) {
        Tell(SpokenNames::Entered(*rank));
        ShowHighScores();
    }
}

void Form1::mnuGameHigh_Click() {
    LoadHighScores();
    ShowHighScores();
}

void Form1::ShowHighScores() {
    if (IsDialogOpen()) {
        return; // the news of the round are left to be announced
    }
    const auto store = platform_.openSettings();
    frmHighScores dialog(highScores_, *store);
    // With the dialog's name, because news that are announced now would be heard after all that stands in it.
    dialog.setAccessibleName(std::exchange(news_, {}) + dialog.windowTitle());
    dialog.ShowModal(*this);
    if (dialog.HasReset()) {
        Tell(SpokenNames::reset);
        AnnounceNews();
    }
}
