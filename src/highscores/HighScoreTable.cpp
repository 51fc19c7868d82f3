// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#include "highscores/HighScoreTable.h"

#include "highscores/ScoreText.h"
#include "platform/Int16.h"

#include <QSettings>
#include <QStringList>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

QString ScoreKey(std::int16_t rank) {
    return u"HighScores/Score%1"_s.arg(rank);
}

// The stored format calls the date-time text "User".
QString TextKey(std::int16_t rank) {
    return u"HighScores/User%1"_s.arg(rank);
}

// QSettings reads a hand-edited value with commas as a list.
QString ReadText(const QSettings& store, const QString& key) {
    return store.value(key).toStringList().join(u',');
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

void HighScoreTable::Load(QSettings& store) {
    if (store.status() == QSettings::AccessError) {
        return;
    }
    std::int16_t rank = 1;
    for (auto& [score, text] : entries_) {
        score = ReadScore(ReadText(store, ScoreKey(rank))).value_or(score);
        text = ReadText(store, TextKey(rank));
        rank = CheckedAdd(rank, 1);
    }
}

void HighScoreTable::Save(QSettings& store) const {
    for (std::int16_t rank = 1; rank <= Ranks; rank = CheckedAdd(rank, 1)) {
        store.setValue(ScoreKey(rank), QString::number(At(rank).score));
        store.setValue(TextKey(rank), At(rank).text);
    }
    store.sync();
}
