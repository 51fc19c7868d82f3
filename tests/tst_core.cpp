// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#include "Model.h"
#include "game/Dice.h"
#include "highscores/DateTimeText.h"
#include "highscores/HighScoreTable.h"
#include "highscores/ScoreText.h"
#include "platform/EntropyGenerator.h"
#include "platform/IniText.h"
#include "platform/Platform.h"
#include "scoring/EvaluateHand.h"

#include <QtTest>

#include <csignal>
#include <pwd.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

static int syncs = 0;
static bool canSync = true;

// In front of the system's call of this name: counts, and fails when a test says so.
extern "C" int fsync(int file) {
    ++syncs;
    errno = EIO;
    return canSync ? static_cast<int>(syscall(SYS_fsync, file)) : -1;
}

static QByteArray passwordFileHome;

extern "C" passwd* getpwuid(uid_t) {
    static passwd user{};
    user.pw_dir = passwordFileHome.data();
    return &user;
}

// What works behind the window: hands, dice, the machine, and the store with its texts.
class tst_core : public QObject {
    Q_OBJECT

private slots:
    void init() { folder_ = std::make_unique<QTemporaryDir>(); }

    void hands() {
        for (int code = 0; code < 161'051; ++code) {
            Sums hand;
            for (int rest = code; hand.size() < 5; rest /= 11) {
                hand << static_cast<RollValue>(2 + rest % 11);
            }
            QCOMPARE(EvaluateHand(hand[0], hand[1], hand[2], hand[3], hand[4]), std::get<int>(WorthOf(hand)));
        }
    }

    // With the clock stuck at one second, as between two quick rolls, the sums still follow 1-2-3-4-5-6-5-4-3-2-1.
    void dice() {
        EntropyGenerator generator(7);
        QList<int> sums(13);
        for (int roll = 0; roll < 36'000; ++roll) {
            generator.Reseed(30);
            ++sums[RollDie(generator.Next()) + RollDie(generator.Next())];
        }
        for (int sum = 2; sum <= 12; ++sum) {
            const double expected = 1000.0 * (6 - qAbs(7 - sum));
            QVERIFY(qAbs(sums[sum] - expected) < 4 * qSqrt(expected));
        }
        QVERIFY(EntropyGenerator().Next() != EntropyGenerator().Next());
    }

    void scoreTexts() {
        const QString rows =
            "=0|120=120|-7=-7|+7=7| 1 2 =12|- 7=-7|\t1\r\n2=12|abc=0|12abc34=12|1e3=1|1,000=1|0x10=0|١=0|"
            "--5=0|12.5=12|13.5=14|-12.5=-12|-13.5=-14|12.51=13|.5=0|1.5.9=2|2.50000000000000000001=3|"
            "32767=32767|32767.5=none|-32768.5=-32768|-32769=none|99999999999=none";
        for (const QString& row : rows.split('|')) {
            const auto score = ReadScore(row.section('=', 0, 0));
            QVERIFY2((score ? QString::number(*score) : "none") == row.section('=', 1), qPrintable(row));
        }
        QCOMPARE(TwoDigits(0) + TwoDigits(9) + TwoDigits(10), "000910");
    }

    void machine() {
        qputenv("TZ", "Nowhere-5:45");
        const Platform machine = SystemPlatform();
        const QDateTime before = QDateTime::currentDateTime();
        const QDateTime read({machine.year(), machine.month(), machine.day()},
                             {machine.hour(), machine.minute(), machine.second()});
        QVERIFY(before.addSecs(-1) <= read && read <= QDateTime::currentDateTime() && before.offsetFromUtc() == 20'700);
    }

    // A folder that is not absolute counts as none. What is made is its owner's, what was there keeps its mode.
    void whereTheScoresAre() {
        const QString home = folder_->path();
        passwordFileHome = home.toUtf8() + "/own";
        umask(0);
        for (const auto& [moved, homeSet, place] : QList<std::tuple<QString, QString, QString>>{
                 {home + "/a/b", "here", "a/b"}, {"here", home, ".config"}, {"", "here", "own/.config"}}) {
            qputenv("XDG_CONFIG_HOME", moved.toUtf8());
            qputenv("HOME", homeSet.toUtf8());
            const QString name = place + "/Kelvaro/KVR.ini";
            SystemPlatform().store.Write({{"Score1", "7"}});
            QCOMPARE(Bytes(name), "[HighScores]\nScore1=7\n");
            QVERIFY(Mode(place) == 0x7700 && Mode(name) == 0x6600);
            chmod(qPrintable(folder_->filePath(name)), 0640);
            umask(0777);
            SystemPlatform().store.Write({{"Score1", "8"}});
            QCOMPARE(Mode(name), 0x6640);
        }
        umask(022);
    }

    // Whatever characters a text is made of, it comes back.
    void madeUpTexts() {
        QRandomGenerator random(5);
        const QString alphabet = QString::fromUtf8(" \t\r\n\x01\"\"\\\\=;#[]@,x0aé🎲<b>n");
        for (int tried = 0; tried < 10'000; ++tried) {
            QString text;
            for (int left = random.bounded(8); left > 0; --left) {
                text += alphabet[random.bounded(alphabet.size())];
            }
            const IniMap map{{{"HighScores", "User1"}, text}, {{"HighScores", "User2"}, text + text}};
            QCOMPARE(ParseIni(ComposeIni(map)), map);
        }
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
            QCOMPARE(CaptionsOf(File("KVR.ini", bytes)), expected);
        }
        SettingsStore(File("KVR.ini", "[A]\nk=v\n[HighScores]\nScore1=3\nmine=\"\\x1\"\n")).Write({{"Score1", "-4"}});
        QCOMPARE(Bytes("KVR.ini"), "[A]\nk=v\n[HighScores]\nScore1=-4\nmine=\"\\x0001\"\n");
    }

    // A folder, a pipe, a file whose reading fails, and one that would fill the memory.
    void whatCannotBeReadIsLeftAlone() {
        const QString pipe = folder_->filePath("pipe"), large = File("large", "[HighScores]\nScore1=1\n");
        QVERIFY(mkfifo(qPrintable(pipe), 0600) == 0 && QFile::resize(large, qint64{1} << 40));
        for (const QString& name : {folder_->path(), pipe, QString("/proc/self/mem"), large}) {
            SettingsStore(name).Write({{"Score1", "2"}});
            QVERIFY2(CaptionsOf(name).startsWith("77  before|"), qPrintable(name));
        }
        QVERIFY(QFileInfo(large).size() == qint64{1} << 40 && !QFileInfo(pipe).isFile());
    }

    // More than will be read again, a disk that fails to sync, and a full one: the old file stays, and a later write
    // succeeds.
    void failedWritesLeaveTheOldFile() {
        const SettingsStore store(File("KVR.ini", "[HighScores]\nUser1=old\n"));
        store.Write({{"User1", QString(600'000, '"')}});
        canSync = false;
        store.Write({{"User1", "new"}});
        canSync = true;
        rlimit before{};
        getrlimit(RLIMIT_FSIZE, &before);
        const rlimit tight{20, before.rlim_max};
        signal(SIGXFSZ, SIG_IGN);
        setrlimit(RLIMIT_FSIZE, &tight);
        store.Write({{"User1", "new"}});
        setrlimit(RLIMIT_FSIZE, &before);
        QCOMPARE(Bytes("KVR.ini"), "[HighScores]\nUser1=old\n");
        QCOMPARE(QDir(folder_->path()).entryList(QDir::Files), QStringList("KVR.ini"));

        syncs = 0;
        store.Write({{"User2", "new"}});
        QCOMPARE(Bytes("KVR.ini"), "[HighScores]\nUser1=old\nUser2=new\n");
        QVERIFY(syncs >= 2); // the file, and the folder that now has it
    }

    // Two copies that write at the same time, and are killed at any moment: what is read is always one's whole table.
    void nothingIsEverTorn() {
        const SettingsStore store(folder_->filePath("KVR.ini"));
        const QList<SettingsMap> tables{{{"User1", QString(90'000, 'a')}, {"User2", "a"}},
                                        {{"User1", "b"}, {"User2", "b"}}};
        store.Write(tables[0]);
        for (int tried = 0; tried < 10; ++tried) {
            const pid_t writers[]{Writer(store, tables[0]), Writer(store, tables[1])};
            for (int read = 0; read < 20; ++read) {
                QVERIFY(tables.contains(store.Read().value()));
            }
            for (const pid_t writer : writers) {
                kill(writer, SIGKILL);
                waitpid(writer, nullptr, 0);
            }
            QVERIFY(tables.contains(store.Read().value()));
        }
    }

private:
    int Mode(const QString& name) { return QFile::permissions(folder_->filePath(name)); }

    QByteArray Bytes(const QString& name) {
        QFile file(folder_->filePath(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    QString File(const QString& name, const QByteArray& bytes) {
        QFile file(folder_->filePath(name));
        return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() ? file.fileName() : QString();
    }

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

    // A process that writes until it is killed.
    static pid_t Writer(const SettingsStore& store, const SettingsMap& table) {
        const pid_t child = fork();
        while (child == 0) {
            store.Write(table);
        }
        return child;
    }

    std::unique_ptr<QTemporaryDir> folder_;
};

QTEST_GUILESS_MAIN(tst_core)
#include "tst_core.moc"
