// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#include "GameDriver.h"
#include "platform/Int16.h"
#include "scoring/EvaluateHand.h"

#include <array>
#include <map>

namespace {

int Score(const Hand& hand) {
    return EvaluateHand(hand[0], hand[1], hand[2], hand[3], hand[4]);
}

} // namespace

class tst_scoring : public QObject {
    Q_OBJECT

private slots:
    void knownHands() {
        const std::initializer_list<std::tuple<const char*, Hand, int>> rows{
            {"order does not matter", {12, 10, 8, 11, 9}, 40},
            {"small straight that holds a pair", {4, 5, 6, 7, 7}, 30},
            {"two pair beats three of a kind", {4, 4, 9, 9, 11}, 15},
            {"five zeros", {0, 0, 0, 0, 0}, 50},
            {"straight below the range", {0, 1, 2, 3, 9}, 30},
            {"uncounted values form no pair", {1, 1, 13, 13, 5}, 0},
            {"a pair beside uncounted values", {1, 1, 1, 5, 5}, 5},
            {"straight up to the 16-bit limit", {32767, 32766, 32765, 32764, 32763}, 40},
        };
        for (const auto& [name, hand, points] : rows) {
            QVERIFY2(Score(hand) == points, name);
        }
    }

    // How often each score occurs among all 11^5 hands, counted from the rules with another program.
    void everyHand() {
        std::map<int, int> tally;
        for (int code = 0; code < 161'051; ++code) {
            Hand hand{};
            for (int at = 0, rest = code; at < 5; ++at, rest /= 11) {
                hand[static_cast<std::size_t>(at)] = static_cast<RollValue>(2 + rest % 11);
            }
            ++tally[Score(hand)];
        }
        const std::map<int, int> expected{{0, 49'560}, {5, 77'280}, {10, 9'900}, {15, 14'850}, {20, 550},
                                          {25, 1'100}, {30, 6'960}, {40, 840},   {50, 11}};
        QVERIFY(tally == expected);
    }

    void arithmeticBeyondSixteenBits() {
        QVERIFY_THROWS_EXCEPTION(OverflowError, EvaluateHand(32767, 32767, 32767, 32767, 32766));
        QVERIFY_THROWS_EXCEPTION(OverflowError, CheckedAdd(-32768, -1));
    }

    void readOutsFollowTheBoard() {
        const std::initializer_list<std::array<const char*, 4>> rows{
            {"four of five filled score nothing", "7 7 7 7 -", "", "0"},
            {"a complete row", "7 7 7 7 3", "_row1=20", "20"},
            {"a complete line without a hand", "2 4 6 8 10", "_row1=0", "0"},
            {"a complete column", "- 9 / - 9 / - 9 / - 8 / - 8", "_col2=25", "25"},
            {"a row and a column", "- - 2 / - - 3 / 4 5 4 7 8 / - - 5 / - - 6", "_row3=5 _col3=40", "45"},
        };
        for (const auto& [name, board, shown, total] : rows) {
            GameDriver game;
            game.Fill(board);
            QVERIFY2(game.Caption("lblTotal") == total, name);
            QStringList visible;
            for (const QString line :
                 {"_row1", "_row2", "_row3", "_row4", "_row5", "_col1", "_col2", "_col3", "_col4", "_col5"}) {
                const bool isShown = game.IsShown("lbl" + line);
                QVERIFY2(game.IsShown("img" + line) == isShown && game.IsShown("lin" + line) == isShown, name);
                if (isShown) {
                    visible << line + '=' + game.Caption("lbl" + line);
                }
            }
            QCOMPARE(visible.join(' '), shown);
        }
    }
};

QTEST_MAIN(tst_scoring)
#include "tst_scoring.moc"
