// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <array>
#include <cstdint>
#include <functional>
#include <optional>

class QSettings;

// One row of the table: a round's score and the date-time text of its end.
struct HighScoreEntry {
    std::int16_t score = 0;
    QString text;
};

// The five best rounds, rank 1 first. A new table is all zeros with empty texts, which is also what an unused
// rank looks like.
//
// Ranks are 1..5 throughout; any other throws SubscriptError.
class HighScoreTable {
public:
    static constexpr std::int16_t Ranks = 5;

    const HighScoreEntry& At(std::int16_t rank) const;

    // Puts a score that beats one of the table's above the first that is less, so a tie goes below the older entry, and
    // drops the last entry. The rank, if it has one; `text` is asked for only then.
    std::optional<std::int16_t> Enter(std::int16_t score, const std::function<QString()>& text);

    // What a list of the best rounds reads at the rank: the score, two blanks and the text.
    QString Caption(std::int16_t rank) const;

    // Replaces the table with what the store holds now, in the store's order. If the store cannot be read, the table
    // stays as it is; so does an entry whose stored score needs more than 16 bits. `store` has had no error yet.
    void Load(QSettings& store);

    // Writes all entries to disk before it returns. If the store cannot be written, nothing is reported.
    void Save(QSettings& store) const;

private:
    std::array<HighScoreEntry, Ranks> entries_;
};
