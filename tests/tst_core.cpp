// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#include "Model.h"
#include "highscores/DateTimeText.h"
#include "highscores/HighScoreTable.h"
#include "highscores/ScoreText.h"
#include "platform/EntropyGenerator.h"
#include "platform/Platform.h"
#include "scoring/EvaluateHand.h"

#include <csignal>
#include <pwd.h>
#include <sys/resource.h>
#include <sys/stat.h>

static std::function<int()> onSync = [] { return 0; };
static QByteArray passwordFileHome;

// Two of the system's calls, answered here.
extern "C" int fsync(int) {
    errno = EIO;
    return onSync();
}

extern "C" passwd* getpwuid(uid_t) {
    static passwd user{};
    user.pw_dir = passwordFileHome.data();
    return &user;
}

// What works behind the window: hands, dice, the machine, and the store with its texts.
class tst_core : public QObject {
    Q_OBJECT

private slots:
    void init() {
        folder_ = std::make_unique<QTemporaryDir>();
        store_ = folder_->filePath("KVR.ini");
    }

    void hands() {
        for (int code = 0; code < 161'051; ++code) {
            Sums hand;
            for (int rest = code; hand.size() < 5; rest /= 11) {
                hand << static_cast<RollValue>(2 + rest % 11);
            }
            const auto points = EvaluateHand(hand[0], hand[1], hand[2], hand[3], hand[4]);
            QCOMPARE(QString("%1 %2").arg(points).arg(HandName(points)), WorthOf(hand));
        }
    }

    // Two players who begin in the same second roll different dice.
    void dice() {
        EntropyGenerator one, other;
        one.Reseed(30);
        other.Reseed(30);
        QVERIFY(one.Next() != other.Next());
    }

    void scoreTexts() {
        const QString rows =
            "=0|-7=-7|+7=7| 1 2 =12|- 7=-7|\t1\r\n2=12|abc=0|12abc34=12|1e3=1|1,000=1|0x10=0|١=0|--5=0|"
            "12.5=12|13.5=14|-12.5=-12|-13.5=-14|12.51=13|.5=0|1.5.9=2|2.50000000000000000001=3|"
            "32767=32767|32767.5=none|-32768.5=-32768|-32769=none|99999999999=none";
        for (const QString& row : rows.split('|')) {
            const auto score = ReadScore(row.section('=', 0, 0));
            QVERIFY2((score ? QString::number(*score) : "none") == row.section('=', 1), qPrintable(row));
        }
    }

    void clock() {
        qputenv("TZ", "Nowhere-5:45");
        const Platform machine = SystemPlatform();
        const QTime time(machine.hour(), machine.minute(), machine.second());
        const QDateTime read({machine.year(), machine.month(), machine.day()}, time, Qt::OffsetFromUTC, 20'700);
        QVERIFY(read.isValid() && qAbs(read.secsTo(QDateTime::currentDateTimeUtc())) <= 1);
        QCOMPARE(TwoDigits(9) + TwoDigits(10), "0910");
    }

    // A folder that is not absolute counts as none. What is made is its owner's, what was there keeps its mode.
    void whereTheScoresAre() {
        const QString home = folder_->path();
        passwordFileHome = home.toUtf8() + "/own";
        for (const auto& [moved, homeSet, place] : QList<std::tuple<QString, QString, QString>>{
                 {home + "/a/b", "here", "/a/b"}, {"here", home, "/.config"}, {"", "here", "/own/.config"}}) {
            qputenv("XDG_CONFIG_HOME", moved.toUtf8());
            qputenv("HOME", homeSet.toUtf8());
            const QString name = home + place + "/Kelvaro/KVR.ini";
            for (const unsigned mode : {0x6600U, 0x6640U}) {
                umask(mode == 0x6600U ? 0 : 0777);
                SystemPlatform().store.Write({{"Score1", "7"}});
                QVERIFY(QFile::permissions(home + place) == 0x7700 && QFile::permissions(name) == mode);
                chmod(qPrintable(name), 0640);
            }
            QCOMPARE(Bytes(name), "[HighScores]\nScore1=7\n");
        }
        umask(022);
    }

    void foreignFiles() {
        const QMap<QByteArray, QString> captions{
            {"", "0  |0  |0  |0  |0  |"},
            {"\xef\xbb\xbf[HighScores]\nScore5=3\n; mine\r\n[Other]\nScore2=9\n[HighScores]\r\nScore1 = 40000\r\n"
             "User1=a, b; \"c\" \\d\nScore2=\" 1 2 \"\nUser2=@home\nScore3=4\nScore3=5\nUser3=\"x\\x41\\ty\\\\\"\n"
             "User5=\"\\x\xc3\xa9\"\nScore4=abc\nnonsense\nScore4=-7",
             "77  a, b; \"c\" \\d|12  @home|5  xA\ty\\|-7  |3  x\xc3\xa9|"},
            {"[HighScores]\nScore1=7\nUser1=\"abc\\\"", "7  \"abc\\\"|0  |0  |0  |0  |"},
            {"\xff[HighScores]\n\xc3\nScore1=5\n[HighScores]\nScore2=\xc3\x35", "0  |0  |0  |0  |0  |"}};
        for (const auto& [bytes, expected] : captions.asKeyValueRange()) {
            Replace(store_, bytes);
            QCOMPARE(CaptionsOf(store_), expected);
        }
        Replace(store_, "[A]\nk=v\n[HighScores]\nScore1=3\nmine=\"\\x1\"\n");
        SettingsStore(store_).Write({{"Score1", "-4"}});
        QCOMPARE(Bytes(store_), "[A]\nk=v\n[HighScores]\nScore1=-4\nmine=\"\\x0001\"\n");
    }

    // A folder, a pipe, a file whose reading fails, and one that would fill the memory.
    void whatCannotBeReadIsLeftAlone() {
        const QString pipe = folder_->filePath("pipe");
        Replace(store_, "[HighScores]\nScore1=1\n");
        QVERIFY(mkfifo(qPrintable(pipe), 0600) == 0 && QFile::resize(store_, qint64{1} << 40));
        for (const QString& name : {folder_->path(), pipe, QString("/proc/self/mem"), store_}) {
            SettingsStore(name).Write({{"Score1", "2"}});
            QVERIFY2(CaptionsOf(name).startsWith("77  before|"), qPrintable(name));
        }
        QVERIFY(QFileInfo(store_).size() == qint64{1} << 40 && !QFileInfo(pipe).isFile());
    }

    // A file is on disk before it takes the name, and its folders after; another copy that writes meanwhile tears
    // nothing. More than will be read again, a full disk and one that fails to sync leave the old file.
    void writes() {
        const SettingsStore store(store_);
        Replace(store_, "[HighScores]\nUser1=old");
        QByteArrayList seen;
        onSync = [&] {
            seen << Bytes(store_).split('=').last();
            if (seen.size() == 1) {
                store.Write({{"User1", "b"}});
            }
            return 0;
        };
        store.Write({{"User1", "a"}});
        QCOMPARE(seen, QByteArrayList({"old", "old", "b\n", "b\n", "a\n", "a\n"}));

        store.Write({{"User1", QString(600'000, '"')}});
        signal(SIGXFSZ, SIG_IGN);
        for (const rlim_t room : {rlim_t{20}, RLIM_INFINITY}) {
            const rlimit limit{room, RLIM_INFINITY};
            QVERIFY(setrlimit(RLIMIT_FSIZE, &limit) == 0);
            onSync = [=] { return room == 20 ? 0 : -1; };
            store.Write({{"User1", "new"}});
        }
        QCOMPARE(Bytes(store_), "[HighScores]\nUser1=a\n");
        QCOMPARE(QDir(folder_->path()).entryList(QDir::Files).size(), 1);
        onSync = [] { return 0; };
    }

private:
    // What a table that had an entry before shows once it is loaded from the file.
    static QString CaptionsOf(const QString& fileName) {
        HighScoreTable table;
        table.Enter(77, [] { return "before"; });
        table.Load(SettingsStore(fileName));
        QString captions;
        for (std::int16_t rank = 1; rank <= 5; ++rank) {
            captions += table.Caption(rank) + '|';
        }
        return captions;
    }

    std::unique_ptr<QTemporaryDir> folder_;
    QString store_;
};

QTEST_GUILESS_MAIN(tst_core)
#include "tst_core.moc"
