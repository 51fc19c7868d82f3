// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

// Round after round and dialog after dialog in one process: memory, handles and the event queue have to stay as they
// are. KELVARO_ROUNDS and KELVARO_OPENINGS say how many; 2000 and 1000 without them.

#include "GameDriver.h"
#include "platform/IniSettingsStore.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <unistd.h>

namespace {

constexpr int warmUp = 100;

qint64 ResidentKilobytes() {
    QFile file("/proc/self/statm");
    return file.open(QIODevice::ReadOnly) ? file.readAll().split(' ')[1].toLongLong() * sysconf(_SC_PAGESIZE) / 1024
                                          : 0;
}

qsizetype OpenHandles() {
    return QDir("/proc/self/fd").entryList(QDir::Files | QDir::System).size();
}

struct EventCounter final : QObject {
    int events = 0;
    bool eventFilter(QObject*, QEvent*) override {
        ++events;
        return false;
    }
};

// How many events are left when all that were queued, and what they queued in turn, have been dispatched.
int EventsThatStay() {
    for (int pass = 0; pass < 5; ++pass) {
        QCoreApplication::processEvents();
    }
    EventCounter counter;
    qApp->installEventFilter(&counter);
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    return counter.events;
}

// Does the step as often as the variable says, or `fullTimes`; a full run may take a megabyte more in the end.
template <typename Step> void Repeat(const char* what, const char* variable, int fullTimes, Step step) {
    const int times = qEnvironmentVariable(variable, QString::number(fullTimes)).toInt();
    qint64 memory = 0;
    qsizetype handles = 0;
    for (int done = 0; done < warmUp + times; ++done) {
        if (done == warmUp) {
            memory = ResidentKilobytes();
            handles = OpenHandles();
        }
        step();
    }
    const qint64 growth = ResidentKilobytes() - memory;
    qInfo("%s, %d times: %lld kB after the first %d, %+lld kB since; %lld handles, %+lld since", what, times, memory,
          warmUp, growth, static_cast<long long>(handles), static_cast<long long>(OpenHandles() - handles));
    QVERIFY(memory > 0 && growth < 1024 * times / fullTimes);
    QCOMPARE(OpenHandles(), handles);
    QCOMPARE(EventsThatStay(), 0);
}

} // namespace

class soak : public QObject {
    Q_OBJECT

private slots:
    void rounds() {
        GameDriver game;
        Repeat("round", "KELVARO_ROUNDS", 2000, [&] {
            game.platform.store.writes.clear();
            game.Fill("2 4 6 8 10 / 4 6 8 10 12 / 6 8 10 12 3 / 8 10 12 3 5 / 10 12 3 5 7");
            QVERIFY(game.form.GameBoard().IsFull());
            game.Choose("mnuNewGame");
            QCoreApplication::processEvents();
        });
    }

    void saves() {
        const QTemporaryDir folder;
        IniSettingsStore store(folder.filePath("KVR.ini"));
        HighScoreTable table;
        Repeat("load and save", "KELVARO_ROUNDS", 2000, [&] {
            table.Load(store);
            table.Set(1, 1, "2026/1/5 9:05");
            table.Save(store);
        });
    }

    void dialogs_data() {
        QTest::addColumn<QString>("entry");
        for (const char* entry : {"mnuGameHigh", "mnuHelpHow", "mnuHelpAbout", "mnuNewGame", "mnuGameExit"}) {
            QTest::newRow(entry) << entry;
        }
    }
    void dialogs() {
        QFETCH(QString, entry);
        GameDriver game;
        Repeat(qPrintable(entry), "KELVARO_OPENINGS", 1000, [&] {
            GameDriver::InDialog([&] { game.Choose(entry); }, [](QDialog& dialog) { dialog.grab(); });
            QCoreApplication::processEvents();
        });
    }
};

QTEST_MAIN(soak)
#include "soak.moc"
