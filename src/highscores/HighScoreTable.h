// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <array>
#include <cstdint>
#include <functional>
#include <optional>

class QSettings;

// One row of the table: the score of a round, and the date and time of its end.
struct HighScoreEntry {
    std::int16_t score = 0;
    QString text;
};

// The five best rounds, rank 1 first. An unused rank has a score of 0 and an empty text; in a new table all ranks are
// unused.
//
// Ranks are 1..5; any other throws SubscriptError.
class HighScoreTable {
public:
    static constexpr std::int16_t Ranks = 5;

    const HighScoreEntry& At(std::int16_t rank) const;

    // Enters a score above the first entry with a lower one, so a tie goes below the older entry, and drops the last
    // entry. Returns the rank, or nothing if the score misses the table. Calls `text` only if the score enters.
    std::optional<std::int16_t> Enter(std::int16_t score, const std::function<QString()>& text);

    // The entry as the list of high scores shows it: the score, two blanks and the text.
    QString Caption(std::int16_t rank) const;

    // Replaces the table with what the store holds now, in the store's order. If the store cannot be read, the table
    // stays as it is; so does an entry whose stored score needs more than 16 bits. Pass a newly opened store: a
    // QSettings keeps its first error.
    void Load(QSettings& store);

    // Writes all entries to disk before it returns. If the store cannot be written, nothing is reported.
    void Save(QSettings& store) const;

private:
    std::array<HighScoreEntry, Ranks> entries_;
};
