// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#include "Worths.h"
#include "game/Dice.h"
#include "highscores/DateTimeText.h"
#include "highscores/HighScoreTable.h"
#include "highscores/ScoreText.h"
#include "platform/Platform.h"
#include "scoring/EvaluateHand.h"

#include <QtTest>

// What works behind the window: hands, dice, the machine, and the store with its texts.
class tst_core : public QObject {
    Q_OBJECT

    const Platform machine_ = SystemPlatform();

private slots:
    void allHands() {
        for (int code = 0; code < 161'051; ++code) { // five times eleven sums
            Sums line;
            for (int rest = code; line.size() < 5; rest /= 11) {
                line << 2 + rest % 11;
            }
            const Worth worth = WorthOf(line);
            QCOMPARE(EvaluateHand(line[0], line[1], line[2], line[3], line[4]), worth.points);
            QCOMPARE(HandName(worth.points), worth.name);
        }
    }

    // The sums are spread as with real dice, even if the clock that re-seeds them stands still.
    void dice() {
        constexpr int rolls = 12'000;
        QMap<int, int> sums;
        for (int roll = 0; roll < rolls; ++roll) {
            machine_.reseed(30);
            ++sums[RollDie(machine_.nextUniform()) + RollDie(machine_.nextUniform())];
        }
        for (int sum = 2; sum <= 12; ++sum) {
            const int expected = rolls / 36 * (6 - qAbs(sum - 7));
            QVERIFY(qAbs(sums[sum] - expected) < 7 * std::sqrt(expected));
        }
    }

    void machine() {
        // Two starts give different games.
        QVERIFY(SystemPlatform().nextUniform() != SystemPlatform().nextUniform());
        QTRY_COMPARE(DateTimeText(machine_), QDateTime::currentDateTime().toString("yyyy/M/d H:mm"));
        // One call dispatches what is pending.
        bool isDispatched = false;
        QMetaObject::invokeMethod(
            qApp, [&] { isDispatched = true; }, Qt::QueuedConnection);
        machine_.pumpEvents();
        QVERIFY(isDispatched);
    }

    void scoreTexts() {
        const auto compare = [](std::optional<int> score, const QStringList& texts) {
            for (const QString& text : texts) {
                QVERIFY2(ReadScore(text) == score, qPrintable(text));
            }
        };
        compare(0, {"", "abc", "0x10", "١", "--5", ".5"});
        compare(2, {"2e3", "2,000", "1.5.9", "\t2\r\n"});
        compare(-12, {"-12", "- 12.5"});
        compare(14, {"+14", " 1 4 ", "14abc56", "13.5", "14.5", "13.500001"});
        compare(-32'768, {"-32768.5"});
        compare(std::nullopt, {"32767.5", "-32769", "99999999999"}); // more than 16 bits
    }

    // The place and the format are those of earlier versions. Players have edited the file by hand.
    void storeFile() {
        const QTemporaryDir folder;
        qputenv("XDG_CONFIG_HOME", folder.path().toUtf8());
        // A file that is not the game's.
        QSettings(QSettings::IniFormat, QSettings::UserScope, "Kelvaro").setValue("HighScores/Score4", "9");
        QDir(folder.path()).mkdir("Kelvaro");
        QFile file(folder.filePath("Kelvaro/KVR.ini"));
        QVERIFY(file.open(QIODevice::ReadWrite));
        file.write("[HighScores]\nScore1=77\nScore2=13.5\nScore3=1,5\nUser2=a, b\n[nonsense\n");
        file.close();

        HighScoreTable table;
        table.Load(*machine_.openSettings());
        QCOMPARE(table.Caption(2), "14  a,b");
        QCOMPARE(table.Caption(3), "1  ");
        table.Enter(70, [] { return "2026/11/22 2:33"; });
        table.Save(*machine_.openSettings());
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), "[HighScores]\nScore1=77\nScore2=70\nScore3=14\nScore4=1\nScore5=0\n"
                                 "User1=\nUser2=2026/11/22 2:33\nUser3=\"a,b\"\nUser4=\nUser5=\n");

        QSettings unreadable(folder.path(), QSettings::IniFormat); // a folder in the file's place
        table.Load(unreadable);
        QCOMPARE(table.Caption(2), "70  2026/11/22 2:33");
    }
};

QTEST_GUILESS_MAIN(tst_core)
#include "tst_core.moc"
