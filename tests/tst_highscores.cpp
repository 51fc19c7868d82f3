// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#include "GameDriver.h"
#include "highscores/DateTimeText.h"
#include "highscores/HighScoreTable.h"
#include "highscores/ScoreText.h"
#include "platform/IniText.h"
#include "platform/Int16.h"

#include <QDir>
#include <QFile>
#include <QPushButton>
#include <QTemporaryDir>

#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>

namespace {

constexpr int keeps = 99'999;

QString TableText(const HighScoreTable& table) {
    QStringList entries;
    for (std::int16_t rank = 1; rank <= HighScoreTable::Ranks; ++rank) {
        entries << table.Caption(rank);
    }
    return entries.join('|');
}

// 50, 40, 30, 20 and 10 points, with the texts a to e.
HighScoreTable SomeTable() {
    HighScoreTable table;
    for (std::int16_t rank = 1; rank <= HighScoreTable::Ranks; ++rank) {
        table.Enter(static_cast<std::int16_t>(60 - 10 * rank), [=] { return QString(QChar('a' + rank - 1)); });
    }
    return table;
}

HighScoreTable Reloaded(const QString& fileName) {
    SettingsStore store(fileName);
    HighScoreTable table = SomeTable();
    table.Load(store);
    return table;
}

const QString resetStore = "Score1=0 Score2=0 Score3=0 Score4=0 Score5=0 User1= User2= User3= User4= User5=";

void WriteFile(const QString& name, const QByteArray& bytes) {
    QFile file(name);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(bytes);
}

} // namespace

class tst_highscores : public QObject {
    Q_OBJECT

private slots:
    void scoreTexts() {
        const std::initializer_list<std::pair<const char*, int>> rows{
            {"", 0},           {"120", 120},     {"-7", -7},         {"+7", 7},
            {" 1 2 ", 12},     {"- 7", -7},      {"abc", 0},         {"12abc34", 12},
            {"12.5", 12},      {"13.5", 14},     {"-12.5", -12},     {"-13.5", -14},
            {"12.51", 13},     {".5", 0},        {"1.5.9", 2},       {"2.50000000000000000001", 3},
            {"40000", keeps},  {"32767", 32767}, {"32767.5", keeps}, {"-32768.5", -32768},
            {"-32769", keeps}, {"1e3", 1},       {"1,000", 1},       {"&H10", 0},
            {"--5", 0},        {"\t1\r\n2", 12}, {"0x10", 0},        {"999999999999999999999", keeps},
        };
        for (const auto& [text, expected] : rows) {
            const auto score = ReadScore(QString(text));
            QVERIFY2((score ? int{*score} : keeps) == expected, text);
        }
    }

    void dateTimeTexts() {
        FakePlatform platform;
        QCOMPARE(DateTimeText(platform), "2026/1/5 9:05");
        platform.clock.month = 12;
        platform.clock.day = 31;
        platform.clock.hour = 0;
        platform.clock.minute = 59;
        QCOMPARE(DateTimeText(platform), "2026/12/31 0:59");
        QCOMPARE(TwoDigits(-5), "0-5");
    }

    void entering() {
        const std::initializer_list<std::tuple<const char*, std::int16_t, const char*>> rows{
            {"best", 60, "60  new|50  a|40  b|30  c|20  d"},
            {"tie goes below the older entry", 30, "50  a|40  b|30  c|30  new|20  d"},
            {"last rank", 15, "50  a|40  b|30  c|20  d|15  new"},
            {"tie with the last does not enter", 10, "50  a|40  b|30  c|20  d|10  e"},
        };
        for (const auto& [name, score, expected] : rows) {
            HighScoreTable table = SomeTable();
            table.Enter(score, [] { return "new"; });
            QVERIFY2(TableText(table) == expected, name);
        }
        QVERIFY_THROWS_EXCEPTION(SubscriptError, SomeTable().At(0));
    }

    void loadingKeepsWhatCannotBeRead() {
        FakePlatform platform;
        platform.store.Write({{"Score1", "12.5"}, {"Score2", "40000"}, {"User2", "x"}});
        HighScoreTable table = SomeTable();
        table.Load(platform.store);
        QCOMPARE(TableText(table), "12  |40  x|0  |0  |0  ");
        table.Load(SettingsStore(platform.folder.path()));
        QCOMPARE(TableText(table), "12  |40  x|0  |0  |0  ");
    }

    // Every round writes all ten keys, whether or not its score enters the table.
    void worthlessRoundIsSavedWithoutADialog() {
        GameDriver game;
        game.Fill("2 4 6 8 10 / 4 6 8 10 12 / 6 8 10 12 3 / 8 10 12 3 5 / 10 12 3 5 7");
        QCOMPARE(game.Caption("lblTotal"), "0");
        QCOMPARE(game.Prompt(), "Game Over!");
        QCOMPARE(game.platform.StoreText(), resetStore);
    }

    void resetIsUndoneByTheNextRound() {
        GameDriver game;
        const SettingsStore& store = game.platform.store;
        store.Write({{"Score1", "400"}, {"User1", "<b>a</b>, \"b\"; @c"}});
        const auto caption = [](QDialog& dialog) { return dialog.findChild<QLabel*>("lblHighScore(0)")->text(); };
        const auto reset = [&](QDialog& dialog) {
            QCOMPARE(caption(dialog), "400  <b>a</b>, \"b\"; @c");
            QCOMPARE(dialog.findChild<QLabel*>("lblHighScore(0)")->textFormat(), Qt::PlainText);
            dialog.findChild<QPushButton*>("CancelButton")->click();
            QVERIFY(!dialog.isVisible());
        };
        const auto open = [&] { game.Choose("mnuGameHigh"); };
        GameDriver::InDialog(open, reset);
        QCOMPARE(game.platform.StoreText(), resetStore);

        game.Fill("7 7 7 7 7 / 4 6 8 10 12 / 6 8 10 12 3 / 8 10 12 3 5");
        game.Fill("- / - / - / - / 10 12 3 5");
        GameDriver::InDialog([&] { game.Place(7, 5, 5); },
                             [&](QDialog& dialog) {
                                 QCOMPARE(dialog.findChild<QLabel*>("lblHighScore(1)")->text(),
                                          game.Caption("lblTotal") + "  2026/1/5 9:05");
                                 dialog.close();
                             });
        QCOMPARE(store.Read()->value("Score1"), "400");

        GameDriver::InDialog(open, reset);
        GameDriver::InDialog(open, [&](QDialog& dialog) {
            QCOMPARE(caption(dialog), "0  ");
            dialog.close();
        });
    }

    // Whatever is written comes back, also through another program's eyes on the same file.
    void textsComeBackToTheLetter() {
        const QTemporaryDir folder;
        const QString name = folder.filePath("deep/KVR.ini");
        for (const QString& text :
             {QString("2026/1/5 9:05"), QString("a, b; c"), QString("\"quoted\""), QString("\"a\" b\""),
              QString("@Invalid()"), QString("\\x41 \\"), QString(" blanks around "), QString("<b>bold</b>"),
              QString("= [x] #"), QString("line\nbreak\r\t\x01"), QString::fromUtf8("\xf0\x9f\x8e\xb2 \xc3\xa9"),
              QString("\""), QString(10'000, 'x'), QString(QChar(0xd83d)) + QChar(0)}) {
            HighScoreTable table;
            table.Enter(4, [&] { return text; });
            SettingsStore store(name);
            table.Save(store);
            QCOMPARE(Reloaded(name).At(1).text, text);
        }
    }

    void foreignFiles_data() {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("table");
        QTest::newRow("empty") << QByteArray() << "0  |0  |0  |0  |0  ";
        QTest::newRow("as a person writes it") << QByteArray(
            "\xef\xbb\xbf[HighScores]\nScore5=3\n; mine\r\n[Other]\nScore1=9\n[HighScores]\r\nScore1 = "
            "12.5\r\nUser1=a, b; \"c\" \\d\n"
            "Score2=\" 1 2 "
            "\"\nUser2=@home\nScore3=40000\nUser3=\"x\\x41\"\nUser5=\"\\x\xc3\xa9\"\nScore4=abc\nnonsense\nScore4=-7")
                                               << "12  a, b; \"c\" \\d|12  @home|30  xA|-7  |3  x\xc3\xa9";
        QTest::newRow("unfinished") << QByteArray("[HighScores]\nScore1=7\nUser1=\"abc\\\"")
                                    << "7  \"abc\\\"|0  |0  |0  |0  ";
        QTest::newRow("bad UTF-8") << QByteArray("\xff[HighScores]\n\xc3\nScore1=5\n[HighScores]\nScore2=\xc3"
                                                 "5")
                                   << "0  |0  |0  |0  |0  ";
    }
    void foreignFiles() {
        QFETCH(QByteArray, bytes);
        const QTemporaryDir folder;
        WriteFile(folder.filePath("KVR.ini"), bytes);
        QTEST(TableText(Reloaded(folder.filePath("KVR.ini"))), "table");
    }

    // The entries that another program has left in the file come back as they were.
    void foreignEntriesSurvive() {
        const QFileInfoList corpus = QFileInfo(QFINDTESTDATA("corpus/bracket")).dir().entryInfoList(QDir::Files);
        QVERIFY(corpus.size() > 10);
        for (const QFileInfo& entry : corpus) {
            QFile file(entry.filePath());
            QVERIFY(file.open(QIODevice::ReadOnly));
            const IniMap map = ParseIni(QString::fromUtf8(file.readAll()));
            QVERIFY2(ParseIni(ComposeIni(map)) == map, qPrintable(entry.fileName()));
        }
    }

    // What cannot be written is skipped: it neither shows later nor overwrites what another copy has written since.
    void failedWritesAreForgotten() {
        const QTemporaryDir folder;
        const QString name = folder.filePath("KVR.ini");
        QVERIFY(QDir().mkdir(name));
        SettingsStore store(name);
        SomeTable().Save(store);
        QVERIFY(QDir().rmdir(name));
        HighScoreTable table = SomeTable();
        table.Load(store);
        QCOMPARE(TableText(table), "0  |0  |0  |0  |0  ");
        QVERIFY(!QFile::exists(name));
    }

    // As on a full disk: the old file stays, and a later write succeeds.
    void unfinishedWritesLeaveTheOldFile() {
        const QTemporaryDir folder;
        const QString name = folder.filePath("KVR.ini");
        SettingsStore store(name);
        SomeTable().Save(store);
        signal(SIGXFSZ, SIG_IGN);
        rlimit before{};
        getrlimit(RLIMIT_FSIZE, &before);
        const rlimit tight{20, before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &tight);
        HighScoreTable().Save(store);
        setrlimit(RLIMIT_FSIZE, &before);
        QCOMPARE(TableText(Reloaded(name)), "50  a|40  b|30  c|20  d|10  e");
        QCOMPARE(QDir(folder.path()).entryList(QDir::Files), QStringList("KVR.ini"));
        HighScoreTable().Save(store);
        QCOMPARE(TableText(Reloaded(name)), "0  |0  |0  |0  |0  ");
    }

    // A folder, a pipe, a file whose reading fails and one that is far too large.
    void whatCannotBeReadIsLeftAlone() {
        const QTemporaryDir folder;
        const QString pipe = folder.filePath("pipe");
        QCOMPARE(mkfifo(qPrintable(pipe), 0600), 0);
        const QString large = folder.filePath("large");
        WriteFile(large, QByteArray(2'000'000, ';') + "\n[HighScores]\nScore1=1\n");
        for (const QString& name : {folder.path(), pipe, QString("/proc/self/mem"), large}) {
            SettingsStore store(name);
            SomeTable().Save(store);
            QCOMPARE(TableText(Reloaded(name)), "50  a|40  b|30  c|20  d|10  e");
        }
    }
};

QTEST_MAIN(tst_highscores)
#include "tst_highscores.moc"
