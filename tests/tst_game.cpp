// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#include "GameDriver.h"
#include "game/Dice.h"
#include "platform/EntropyGenerator.h"
#include "platform/Int16.h"

#include <QMessageBox>
#include <QPushButton>

namespace {

constexpr int firstPause = ScriptedPump::passesPerPause / 2;
constexpr int secondPause = firstPause + ScriptedPump::passesPerPause;

void Answer(QDialog& box, QMessageBox::StandardButton button) {
    auto& question = dynamic_cast<QMessageBox&>(box);
    QCOMPARE(question.windowTitle(), "Kelvaro");
    QCOMPARE(question.icon(), QMessageBox::NoIcon);
    QCOMPARE(question.defaultButton(), question.button(QMessageBox::Yes));
    QCOMPARE(question.standardButtons(), QMessageBox::Yes | QMessageBox::No);
    question.button(button)->click();
}

void ExpectFreshGame(const GameDriver& game) {
    QVERIFY(game.form.GameBoard() == Board());
    QCOMPARE(game.form.PendingRoll(), 0);
    QVERIFY(game.CanRoll() && !game.IsShown("imgRolled1") && !game.IsShown("imgRolled2") && !game.IsShown("lbl_row1"));
    QCOMPARE(game.Caption("lblRolled"), "");
    QCOMPARE(game.Caption("lblTotal"), "0");
    QCOMPARE(game.Prompt(), "Roll The Dice");
    for (int cell = 0; cell < 25; ++cell) {
        QCOMPARE(game.Find<PictureButton>(GameDriver::CellName(1 + cell / 5, 1 + cell % 5)).Index(), 1);
    }
}

} // namespace

class tst_game : public QObject {
    Q_OBJECT

private slots:
    void boardAddressing() {
        Board board;
        board.Set(2, 4, 9);
        QCOMPARE(board.At(2, 4), 9);
        QCOMPARE(board.At(4, 2), 0);
        for (const auto wrong : std::initializer_list<std::int16_t>{0, 6, -1}) {
            QVERIFY_THROWS_EXCEPTION(SubscriptError, board.At(wrong, 1));
            QVERIFY_THROWS_EXCEPTION(SubscriptError, board.Set(1, wrong, 2));
        }
        GameDriver game;
        QVERIFY_THROWS_EXCEPTION(SubscriptError, game.form.PlaceRoll(game.Find<PictureButton>("img1_1"), 6, 1));
    }

    // With the clock stuck and with one second a roll, seeded for good: 99.9 % of honest dice stay below 29.59.
    void diceFollowTheirDistribution() {
        constexpr int rolls = 100'000;
        for (const int secondsPerRoll : {0, 1}) {
            EntropyGenerator generator(20261121);
            std::array<int, 13> seen{};
            for (int roll = 0; roll < rolls; ++roll) {
                generator.Reseed(roll * secondsPerRoll % 60);
                const int first = RollDie(generator.Next());
                ++seen.at(static_cast<std::size_t>(first + RollDie(generator.Next())));
            }
            double chiSquare = 0;
            for (int sum = 2; sum <= 12; ++sum) {
                const double expected = rolls * (6.0 - qAbs(sum - 7)) / 36;
                chiSquare += qPow(seen[static_cast<std::size_t>(sum)] - expected, 2) / expected;
            }
            QVERIFY2(chiSquare > 0.5 && chiSquare < 29.59, qPrintable(QString::number(chiSquare)));
        }
    }

    void oneTurn() {
        GameDriver game;
        game.Click("img3_5");
        QCOMPARE(game.Find<PictureButton>("img3_5").Index(), 1);

        game.platform.pump.actions[ScriptedPump::passesPerPause] = [&] {
            QVERIFY(game.IsShown("imgRolled1") && !game.IsShown("imgRolled2"));
        };
        game.platform.pump.actions[ScriptedPump::passesPerPause + 1] = [&] {
            QVERIFY(game.IsShown("imgRolled2"));
            QCOMPARE(game.Caption("lblRolled"), "");
            QCOMPARE(game.Prompt(), "Roll The Dice");
        };
        game.Roll(3, 4);
        QCOMPARE(game.platform.pump.passes, 2 * ScriptedPump::passesPerPause);
        QVERIFY(game.platform.pump.actions.empty());
        QCOMPARE(game.platform.generator.lastSeed, 30);
        QCOMPARE(game.Find<Picture>("imgRolled1").Index(), 3);
        QCOMPARE(game.Find<Picture>("imgRolled2").Index(), 4);
        QCOMPARE(game.Caption("lblRolled"), "= 7");
        QCOMPARE(game.Prompt(), "Select A Location for the Roll on the Grid");
        QVERIFY(!game.IsShown("Image1") && !game.Find<QAction>("mnuGameRoll").isEnabled());

        // Only a left click released inside the cell places the roll.
        auto& cell = game.Find("img3_5");
        QTest::mouseClick(&cell, Qt::RightButton);
        QTest::mousePress(&cell, Qt::LeftButton);
        QTest::mouseRelease(&cell, Qt::LeftButton, {}, QPoint(-5, 10));
        QCOMPARE(game.form.PendingRoll(), 7);
        game.Click("img3_5");
        Board expected;
        expected.Set(3, 5, 7);
        QVERIFY(game.form.GameBoard() == expected);
        QCOMPARE(game.Find<PictureButton>("img3_5").Index(), 7);
        QCOMPARE(game.form.PendingRoll(), 0);
        QCOMPARE(game.Caption("lblRolled"), "");
        QVERIFY(!game.IsShown("imgRolled1") && !game.IsShown("imgRolled2"));
        QVERIFY(game.CanRoll());

        game.Roll(6, 6);
        game.Click("img3_5");
        QCOMPARE(game.form.PendingRoll(), 12);
        QCOMPARE(game.form.GameBoard().At(3, 5), 7);
    }

    void actionInsideAPause_data() {
        QTest::addColumn<int>("pass");
        QTest::addColumn<QString>("action");
        QTest::addColumn<bool>("showsSecondDie");
        QTest::addColumn<QString>("caption");
        QTest::newRow("placed in the first pause") << firstPause << "img1_1" << true << "= 0";
        QTest::newRow("placed in the second pause") << secondPause << "img1_1" << false << "= 0";
        QTest::newRow("new game in the first pause") << firstPause << "mnuNewGame" << true << "= 0";
        QTest::newRow("second roll refused") << firstPause << "Image1" << true << "= 7";
        QTest::newRow("placed and rolled again") << secondPause << "img1_1 roll" << true << "= 11";
        QTest::newRow("exit in the first pause") << firstPause << "mnuGameExit" << true << "= 7";
    }
    void actionInsideAPause() {
        QFETCH(int, pass);
        QFETCH(QString, action);
        GameDriver game;
        game.platform.pump.actions[pass] = [&] {
            if (action.startsWith("img1_1")) {
                game.Click("img1_1");
                QCOMPARE(game.form.GameBoard().At(1, 1), 7);
                QVERIFY(game.CanRoll() && !game.IsShown("imgRolled1") && !game.IsShown("imgRolled2"));
                if (action.endsWith("roll")) {
                    game.Roll(5, 6);
                }
            } else if (action == "Image1") {
                QTest::keyClick(&game.form, Qt::Key_R, Qt::ControlModifier);
            } else {
                GameDriver::InDialog([&] { game.Choose(action); }, [](QDialog& box) { Answer(box, QMessageBox::Yes); });
            }
        };
        game.Roll(3, 4);
        QTEST(game.IsShown("imgRolled2"), "showsSecondDie");
        QTEST(game.Caption("lblRolled"), "caption");
        QCOMPARE(game.Prompt(), "Select A Location for the Roll on the Grid");
        QCOMPARE(game.platform.process.hasEnded, action == "mnuGameExit");
        QCOMPARE(game.platform.pump.passes, (action.endsWith("roll") ? 4 : 2) * ScriptedPump::passesPerPause);
    }

    void newGameAsksWhileACellIsEmpty() {
        GameDriver game;
        ExpectFreshGame(game);
        const auto newGame = [&] { game.Click("imgNewGame"); };
        GameDriver::InDialog(newGame, [](QDialog& box) {
            QCOMPARE(dynamic_cast<QMessageBox&>(box).text(),
                     "Are you sure you want to quit this game and start a new one?");
            Answer(box, QMessageBox::No);
        });

        game.Place(7, 1, 1);
        game.Roll(1, 2);
        GameDriver::InDialog(newGame, [](QDialog& box) { QTest::keyClick(&box, Qt::Key_Escape); });
        QCOMPARE(game.form.PendingRoll(), 3);
        QCOMPARE(game.form.GameBoard().At(1, 1), 7);

        GameDriver::InDialog(newGame, [](QDialog& box) { Answer(box, QMessageBox::Yes); });
        ExpectFreshGame(game);
    }

    void exitAndClose() {
        GameDriver game;
        const auto exit = [&] { game.Choose("mnuGameExit"); };
        GameDriver::InDialog(exit, [](QDialog& box) {
            QCOMPARE(dynamic_cast<QMessageBox&>(box).text(), "Are you sure you want to quit?");
            Answer(box, QMessageBox::No);
        });
        QVERIFY(!game.platform.process.hasEnded);
        GameDriver closed;
        closed.form.close();
        QVERIFY(closed.platform.process.hasEnded);
        QCOMPARE(closed.platform.StoreText(), "");
    }
};

QTEST_MAIN(tst_game)
#include "tst_game.moc"
