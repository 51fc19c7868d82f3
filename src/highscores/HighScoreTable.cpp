// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#include "highscores/HighScoreTable.h"

#include "highscores/ScoreText.h"
#include "platform/Int16.h"
#include "platform/SettingsStore.h"

using namespace Qt::StringLiterals;

namespace {

QString ScoreKey(std::int16_t rank) {
    return u"Score"_s + QString::number(rank);
}

// The stored format's name for what is a date-time text.
QString TextKey(std::int16_t rank) {
    return u"User"_s + QString::number(rank);
}

std::size_t Element(std::int16_t rank) {
    return static_cast<std::size_t>(CheckedIndex(rank, 1, HighScoreTable::Ranks) - 1);
}

} // namespace

std::int16_t HighScoreTable::Score(std::int16_t rank) const {
    return scores_[Element(rank)];
}

const QString& HighScoreTable::Text(std::int16_t rank) const {
    return texts_[Element(rank)];
}

void HighScoreTable::Set(std::int16_t rank, std::int16_t score, const QString& text) {
    scores_[Element(rank)] = score;
    texts_[Element(rank)] = text;
}

std::optional<std::int16_t> HighScoreTable::RankFor(std::int16_t score) const {
    for (std::int16_t rank = 1; rank <= Ranks; rank = CheckedAdd(rank, 1)) {
        if (Score(rank) < score) {
            return rank;
        }
    }
    return std::nullopt;
}

void HighScoreTable::MakeRoomAt(std::int16_t rank) {
    for (std::int16_t from = Ranks - 1; from >= rank; from = CheckedAdd(from, -1)) {
        Set(CheckedAdd(from, 1), Score(from), Text(from));
    }
}

QString HighScoreTable::Caption(std::int16_t rank) const {
    return QString::number(Score(rank)) + u"  "_s + Text(rank);
}

void HighScoreTable::Load(const SettingsStore& store) {
    const auto stored = store.Read();
    if (!stored) {
        return;
    }
    for (std::int16_t rank = 1; rank <= Ranks; rank = CheckedAdd(rank, 1)) {
        Set(rank, ReadScore(stored->value(ScoreKey(rank))).value_or(Score(rank)), stored->value(TextKey(rank)));
    }
}

void HighScoreTable::Save(const SettingsStore& store) const {
    SettingsMap texts;
    for (std::int16_t rank = 1; rank <= Ranks; rank = CheckedAdd(rank, 1)) {
        texts.insert(ScoreKey(rank), QString::number(Score(rank)));
        texts.insert(TextKey(rank), Text(rank));
    }
    store.Write(texts);
}

void ResetStoredScores(const SettingsStore& store) {
    HighScoreTable().Save(store);
}
