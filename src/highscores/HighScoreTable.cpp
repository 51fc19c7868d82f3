// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#include "highscores/HighScoreTable.h"

#include "highscores/ScoreText.h"
#include "platform/Int16.h"
#include "platform/SettingsStore.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

QString ScoreKey(std::int16_t rank) {
    return u"Score"_s + QString::number(rank);
}

// The stored format's name for what is a date-time text.
QString TextKey(std::int16_t rank) {
    return u"User"_s + QString::number(rank);
}

} // namespace

const HighScoreEntry& HighScoreTable::At(std::int16_t rank) const {
    return entries_[static_cast<std::size_t>(CheckedIndex(rank, 1, Ranks) - 1)];
}

std::optional<std::int16_t> HighScoreTable::Enter(std::int16_t score, const std::function<QString()>& text) {
    const auto beaten = std::ranges::find_if(entries_, [=](const auto& entry) { return entry.score < score; });
    if (beaten == entries_.end()) {
        return std::nullopt;
    }
    std::move_backward(beaten, entries_.end() - 1, entries_.end());
    *beaten = {score, text()};
    return ToInt16(beaten - entries_.begin() + 1);
}

QString HighScoreTable::Caption(std::int16_t rank) const {
    return QString::number(At(rank).score) + u"  "_s + At(rank).text;
}

void HighScoreTable::Load(const SettingsStore& store) {
    const auto stored = store.Read();
    if (!stored) {
        return;
    }
    std::int16_t rank = 1;
    for (auto& [score, text] : entries_) {
        score = ReadScore(stored->value(ScoreKey(rank))).value_or(score);
        text = stored->value(TextKey(rank));
        rank = CheckedAdd(rank, 1);
    }
}

void HighScoreTable::Save(const SettingsStore& store) const {
    SettingsMap texts;
    for (std::int16_t rank = 1; rank <= Ranks; rank = CheckedAdd(rank, 1)) {
        texts.insert(ScoreKey(rank), QString::number(At(rank).score));
        texts.insert(TextKey(rank), At(rank).text);
    }
    store.Write(texts);
}
