// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

// How long the game's own steps take. Run it on a display or offscreen, in a release build.

#include "mainwindow/Form1.h"
#include "platform/Clock.h"
#include "platform/EventPump.h"
#include "platform/Process.h"
#include "platform/SettingsStore.h"
#include "platform/UniformGenerator.h"
#include "scoring/EvaluateHand.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QElapsedTimer>
#include <QTest>
#include <QWindow>

#include <limits>

using namespace Qt::StringLiterals;

namespace {

// Its scores cannot be beaten, so that a round ends without a dialog.
struct UnbeatableStore final : SettingsStore {
    void Refresh() override {}
    std::optional<QString> Read(const QString&, const QString&, const QString&) override { return u"32767"_s; }
    void Write(const QString&, const QString&, const QString&) override {}
    void Commit() override {}
};

struct NoPump final : EventPump {
    void Pass() override {}
};

struct NoProcess final : Process {
    void End() override {}
};

// The real window; only what would touch the machine is left out.
struct Game {
    SystemClock clock;
    EntropyGenerator generator;
    UnbeatableStore store;
    NoProcess process;
    Form1 form;

    explicit Game(EventPump& pump) : form({clock, generator, pump, store, process}) {
        form.show();
        [[maybe_unused]] const bool isExposed = QTest::qWaitForWindowExposed(&form);
    }

    void Roll() { form.findChild<QAction*>(u"mnuGameRoll"_s)->trigger(); }
    void Click(int row, int column) { form.findChild<QAbstractButton*>(u"img%1_%2"_s.arg(row).arg(column))->click(); }
};

} // namespace

class kelvaro_bench : public QObject {
    Q_OBJECT

private slots:
    void evaluateHand_data() {
        QTest::addColumn<QList<int>>("hand");
        QTest::newRow("five of a kind, the first test") << QList{7, 7, 7, 7, 7};
        QTest::newRow("no hand, all eight tests") << QList{2, 4, 6, 8, 10};
    }
    void evaluateHand() {
        QFETCH(QList<int>, hand);
        const auto value = [&](int at) { return static_cast<RollValue>(hand[at]); };
        int sum = 0;
        QBENCHMARK {
            sum += EvaluateHand(value(0), value(1), value(2), value(3), value(4));
        }
        QVERIFY(sum >= 0);
    }

    void placement_data() {
        QTest::addColumn<int>("turn");
        QTest::addColumn<bool>("isPainted");
        QTest::newRow("first turn, scored") << 1 << false;
        QTest::newRow("last turn, all ten lines scored") << 25 << false;
        QTest::newRow("last turn, scored and painted") << 25 << true;
    }
    void placement() {
        QFETCH(int, turn);
        QFETCH(bool, isPainted);
        constexpr int rounds = 200;
        NoPump pump;
        Game game(pump);
        qint64 nanoseconds = 0;
        for (int round = 0; round < rounds; ++round) {
            for (int at = 1; at <= 25; ++at) {
                game.Roll();
                QCoreApplication::processEvents();
                QElapsedTimer timer;
                timer.start();
                game.Click(1 + (at - 1) / 5, 1 + (at - 1) % 5);
                if (isPainted) {
                    QCoreApplication::processEvents();
                }
                nanoseconds += at == turn ? timer.nsecsElapsed() : 0;
            }
            game.form.findChild<QAction*>(u"mnuNewGame"_s)->trigger();
        }
        QTest::setBenchmarkResult(static_cast<double>(nanoseconds) / rounds, QTest::WalltimeNanoseconds);
    }

    void resize() {
        NoPump pump;
        Game game(pump);
        int step = 0;
        QBENCHMARK {
            ++step;
            game.form.resize(600 + step % 100, 700 + step % 100);
        }
    }

    // In turn, and the quickest of each, as the machine's speed drifts.
    void rollAgainstItsBarePump() {
        QtEventPump pump;
        Game game(pump);
        const auto quickest = [](qint64& best, const auto& work) {
            QElapsedTimer timer;
            timer.start();
            work();
            best = qMin(best, timer.nsecsElapsed());
        };
        qint64 bare = std::numeric_limits<qint64>::max();
        qint64 roll = bare;
        for (int turn = 0; turn < 15; ++turn) {
            quickest(roll, [&] { game.Roll(); });
            game.Click(1 + turn / 5, 1 + turn % 5);
            quickest(bare, [&] {
                for (int pass = 0; pass < 500'000; ++pass) {
                    pump.Pass();
                }
            });
        }
        qInfo("bare pump %.1f ms, roll %.1f ms, roll / bare %.3f", static_cast<double>(bare) / 1e6,
              static_cast<double>(roll) / 1e6, static_cast<double>(roll) / static_cast<double>(bare));
    }
};

QTEST_MAIN(kelvaro_bench)
#include "kelvaro_bench.moc"
