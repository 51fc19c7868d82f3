// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#include "GameDriver.h"
#include "platform/Int16.h"
#include "scoring/EvaluateHand.h"

#include <map>
#include <set>

namespace {

using Hand = std::array<RollValue, 5>;

int Score(const Hand& hand) {
    return EvaluateHand(hand[0], hand[1], hand[2], hand[3], hand[4]);
}

// Scores a hand from its sorted distinct values and the shape of its repetitions: another way to the same
// rules.
int ExpectedScore(const Hand& hand) {
    std::map<int, int> counts;
    for (const int value : hand) {
        ++counts[value];
    }
    int run = 0;
    int longestRun = 0;
    int previous = -100'000;
    std::multiset<int> shape;
    for (const auto& [value, count] : counts) {
        run = value == previous + 1 ? run + 1 : 1;
        longestRun = qMax(longestRun, run);
        previous = value;
        if (value >= 2 && value <= 12) {
            shape.insert(count);
        }
    }
    const auto has = [&](int count) { return shape.contains(count); };
    return counts.size() == 1    ? 50
           : longestRun == 5     ? 40
           : longestRun == 4     ? 30
           : has(3) && has(2)    ? 25
           : has(4)              ? 20
           : shape.count(2) == 2 ? 15
           : has(3)              ? 10
           : has(2)              ? 5
                                 : 0;
}

} // namespace

class tst_scoring : public QObject {
    Q_OBJECT

private slots:
    void knownHands_data() {
        QTest::addColumn<Hand>("hand");
        QTest::addColumn<int>("points");
        QTest::newRow("order does not matter") << Hand{12, 10, 8, 11, 9} << 40;
        QTest::newRow("small straight from the high end") << Hand{2, 9, 10, 11, 12} << 30;
        QTest::newRow("small straight that holds a pair") << Hand{4, 5, 6, 7, 7} << 30;
        QTest::newRow("two pair beats three of a kind") << Hand{4, 4, 9, 9, 11} << 15;
        QTest::newRow("three of a kind") << Hand{10, 10, 10, 2, 3} << 10;
        QTest::newRow("five zeros") << Hand{0, 0, 0, 0, 0} << 50;
        QTest::newRow("uncounted values form no pair") << Hand{1, 1, 13, 13, 5} << 0;
        QTest::newRow("straight up to the 16-bit limit") << Hand{32767, 32766, 32765, 32764, 32763} << 40;
    }
    void knownHands() {
        QFETCH(Hand, hand);
        QTEST(Score(hand), "points");
    }

    void everyHand() {
        Hand hand{};
        const auto tryAll = [&](auto& self, std::size_t at, RollValue first, RollValue last) -> void {
            if (at == hand.size()) {
                if (Score(hand) != ExpectedScore(hand)) {
                    QFAIL(qPrintable(
                        QString("%1 %2 %3 %4 %5").arg(hand[0]).arg(hand[1]).arg(hand[2]).arg(hand[3]).arg(hand[4])));
                }
                return;
            }
            for (hand[at] = first; hand[at] <= last; ++hand[at]) {
                self(self, at + 1, first, last);
            }
        };
        tryAll(tryAll, 0, 2, 12);
        tryAll(tryAll, 0, -2, 4);
        tryAll(tryAll, 0, 10, 15);
    }

    void straightPastTheRange() {
        QVERIFY_THROWS_EXCEPTION(OverflowError, EvaluateHand(32767, 32767, 32767, 32767, 32766));
        QVERIFY_THROWS_EXCEPTION(OverflowError, CheckedAdd(32767, 1));
        QVERIFY_THROWS_EXCEPTION(OverflowError, CheckedAdd(-32768, -1));
    }

    void readOutsFollowTheBoard_data() {
        QTest::addColumn<QString>("board");
        QTest::addColumn<QString>("shown");
        QTest::addColumn<QString>("total");
        QTest::newRow("four of five filled score nothing") << "7 7 7 7 -"
                                                           << ""
                                                           << "0";
        QTest::newRow("a complete row") << "7 7 7 7 3"
                                        << "_row1=20"
                                        << "20";
        QTest::newRow("a complete line without a hand") << "2 4 6 8 10"
                                                        << "_row1=0"
                                                        << "0";
        QTest::newRow("a complete column") << "- 9 / - 9 / - 9 / - 8 / - 8"
                                           << "_col2=25"
                                           << "25";
        QTest::newRow("a row and a column") << "- - 2 / - - 3 / 4 5 4 7 8 / - - 5 / - - 6"
                                            << "_row3=5 _col3=40"
                                            << "45";
    }
    void readOutsFollowTheBoard() {
        QFETCH(QString, board);
        GameDriver game;
        game.Fill(board);
        QTEST(game.Caption("lblTotal"), "total");
        QStringList visible;
        for (const QString line :
             {"_row1", "_row2", "_row3", "_row4", "_row5", "_col1", "_col2", "_col3", "_col4", "_col5"}) {
            const bool isShown = game.IsShown("lbl" + line);
            QCOMPARE(game.IsShown("img" + line), isShown);
            QCOMPARE(game.IsShown("lin" + line), isShown);
            if (isShown) {
                visible << line + '=' + game.Caption("lbl" + line);
            }
        }
        QTEST(visible.join(' '), "shown");
    }
};

QTEST_MAIN(tst_scoring)
#include "tst_scoring.moc"
