// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

// A coverage-guided fuzzer's view of what the game reads: the bytes are a store's file, and a score's text.

#include "highscores/ScoreText.h"
#include "platform/IniText.h"

#include <QString>

#include <cstdint>
#include <cstdlib>

using namespace Qt::StringLiterals;

namespace {

void Expect(bool holds) {
    if (!holds) {
        std::abort();
    }
}

// What is written comes back, byte by byte through the file.
void CheckStore(const QString& text) {
    const IniMap map = ParseIni(text);
    Expect(ParseIni(QString::fromUtf8(ComposeIni(map).toUtf8())) == map);
}

// Blanks mean nothing, and a sign in front only turns the number round.
void CheckScore(const QString& text) {
    const auto score = ReadScore(text);
    Expect(ReadScore(u"\t "_s + text + u'\n') == score);
    const bool startsWithDigit = !text.isEmpty() && text.front() >= u'0' && text.front() <= u'9';
    if (score && startsWithDigit) {
        Expect(*score >= 0 && ReadScore(u'-' + text) == -*score && ReadScore(u"+0"_s + text) == score);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    const QString text = QString::fromUtf8(reinterpret_cast<const char*>(bytes), static_cast<qsizetype>(size));
    CheckStore(text);
    CheckScore(text);
    return 0;
}
