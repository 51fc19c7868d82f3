// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <array>
#include <cstdint>
#include <optional>

class SettingsStore;

// The five best rounds, rank 1 first: each a score and the date-time text of its round. A new table is all
// zeros with empty texts, which is also what an unused rank looks like.
//
// Ranks are 1..5 throughout; any other throws SubscriptError.
class HighScoreTable {
public:
    static constexpr std::int16_t Ranks = 5;

    std::int16_t Score(std::int16_t rank) const;
    const QString& Text(std::int16_t rank) const;
    void Set(std::int16_t rank, std::int16_t score, const QString& text);

    // The rank at which `score` would enter: the first whose score is less, so a tie goes below the older
    // entry. Nothing when no rank has a lower score.
    std::optional<std::int16_t> RankFor(std::int16_t score) const;

    // Moves the entries from `rank` on one rank down; the last one is dropped.
    void MakeRoomAt(std::int16_t rank);

    // What a list of the best rounds reads at the rank: the score, two blanks and the text.
    QString Caption(std::int16_t rank) const;

    // Replaces the table with what the store holds, in the store's order. A table that cannot be read, and
    // an entry whose score needs more than 16 bits, keep what they had.
    void Load(const SettingsStore& store);

    // Writes all entries; they are on disk when the call returns, if they can be.
    void Save(const SettingsStore& store) const;

private:
    std::array<std::int16_t, Ranks> scores_{};
    std::array<QString, Ranks> texts_;
};

// Empties the stored table, whatever a table in memory holds.
void ResetStoredScores(const SettingsStore& store);
