// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#include "highscores/DateTimeText.h"
#include "highscores/frmHighScores.h"
#include "mainwindow/Form1.h"

void Form1::LoadHighScores() {
    highScores_.Load(platform_.store);
}

void Form1::SaveHighScores() {
    highScores_.Save(platform_.store);
}

void Form1::RecordHighScore(std::int16_t score) {
    const bool hasEntered = highScores_.Enter(score, [this] { return DateTimeText(platform_); });
    // On disk before anything else happens, so that no end of the program can lose the round.
    SaveHighScores();
    if (hasEntered) {
        ShowHighScores();
    }
}

void Form1::mnuGameHigh_Click() {
    LoadHighScores();
    ShowHighScores();
}

void Form1::ShowHighScores() {
    frmHighScores(highScores_, platform_.store).ShowModal(*this);
}
