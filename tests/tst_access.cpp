// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#include "GameDriver.h"
#include "controls/AccessibleTable.h"

#include <QAccessible>
#include <QPushButton>

namespace {

void Press(GameDriver& game, Qt::Key key) {
    QTest::keyClick(game.form.focusWidget(), key);
}

QString Focused(const GameDriver& game) {
    return game.form.focusWidget()->objectName();
}

// The names of everything below `parent` that can be pressed or read; the test fails on one that has none.
QStringList Names(QAccessibleInterface* parent) {
    QStringList names;
    for (int index = 0; index < parent->childCount(); ++index) {
        QAccessibleInterface* child = parent->child(index);
        const bool isSilent = child->role() == QAccessible::Separator || child->childCount() > 0
                              || child->role() == QAccessible::StatusBar || child->state().invisible;
        if (!isSilent) {
            names << child->text(QAccessible::Name);
            if (names.last().isEmpty()) {
                QTest::qFail(qPrintable("no name: " + child->object()->objectName()), __FILE__, __LINE__);
            }
        }
        names << Names(child);
    }
    return names;
}

QStringList Names(QObject& window) {
    return Names(QAccessible::queryAccessibleInterface(&window));
}

} // namespace

class tst_access : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { InstallAccessibleTables(); }

    void keysMoveTheFocus() {
        GameDriver game;
        QCOMPARE(Focused(game), "Image1");
        for (const auto& [key, focused] :
             std::initializer_list<std::pair<Qt::Key, const char*>>{{Qt::Key_Tab, "imgNewGame"},
                                                                    {Qt::Key_Tab, "img1_1"},
                                                                    {Qt::Key_Left, "img1_5"},
                                                                    {Qt::Key_Up, "img5_5"},
                                                                    {Qt::Key_Home, "img5_1"},
                                                                    {Qt::Key_Down, "img1_1"},
                                                                    {Qt::Key_End, "img1_5"},
                                                                    {Qt::Key_Right, "img1_1"},
                                                                    {Qt::Key_Down, "img2_1"},
                                                                    {Qt::Key_Backtab, "imgNewGame"},
                                                                    {Qt::Key_Up, "img2_1"},
                                                                    {Qt::Key_Tab, "Image1"}}) {
            Press(game, key);
            QCOMPARE(Focused(game), focused);
        }
        // Hidden by a roll, the button hands the focus to the grid; after New Game and its dialog it is back.
        Press(game, Qt::Key_Return);
        QCOMPARE(Focused(game), "img2_1");
        Press(game, Qt::Key_Tab);
        QCOMPARE(Focused(game), "imgNewGame");
        GameDriver::InDialog([&] { Press(game, Qt::Key_Space); },
                             [](QDialog& box) { QTest::keyClick(&box, Qt::Key_Escape); });
        QCOMPARE(Focused(game), "imgNewGame");
        GameDriver::InDialog([&] { Press(game, Qt::Key_Space); },
                             [](QDialog& box) { QTest::keyClick(&box, Qt::Key_Return); });
        QCOMPARE(Focused(game), "Image1");
    }

    void focusIsDrawnForKeysOnly() {
        GameDriver game;
        QWidget& button = game.Find("imgNewGame");
        const auto picture = [&] { return button.grab().toImage(); };
        const QImage plain = picture();
        Press(game, Qt::Key_Tab);
        QVERIFY(picture() != plain);
        QTest::mouseClick(&game.Find("img1_1"), Qt::LeftButton);
        QCOMPARE(picture(), plain);
    }

    // From the start to the closed high-score dialog, the last roll placed inside its pause.
    void roundByKeysAlone() {
        GameDriver game;
        game.platform.generator.dice = {1, 2, 3, 4, 5, 6, 6, 5, 4, 3, 2, 1, 1, 1, 2, 2, 3, 3, 4, 4, 5, 5, 6, 6, 1};
        for (int turn = 1; turn <= 24; ++turn) {
            Press(game, Qt::Key_Space);
            Press(game, turn % 2 == 0 ? Qt::Key_Return : Qt::Key_Space);
            QCOMPARE(game.form.PendingRoll(), 0);
            QCOMPARE(Focused(game), "Image1");
        }
        game.platform.pump.actions[game.platform.pump.passes + 1] = [&] {
            GameDriver::InDialog([&] { Press(game, Qt::Key_Return); },
                                 [](QDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Return); });
        };
        Press(game, Qt::Key_Space);
        QVERIFY(game.form.GameBoard().IsFull());
        QCOMPARE(game.form.HighScores().Score(1), game.Caption("lblTotal").toInt());
        QCOMPARE(Focused(game), "imgNewGame");
    }

    void everyControlSpeaks() {
        GameDriver game;
        QStringList names = Names(game.form);
        QVERIFY(names.contains("Row 2, column 4: empty") && names.contains("Roll Dice") && names.contains("New Game"));
        QVERIFY(names.contains("Total: 0 points") && names.contains("Roll The Dice"));
        QVERIFY(!names.join('|').contains("die:") && !names.join('|').contains("Row 1:"));

        game.Fill("6 6 6 9 9 / 2");
        game.Roll(3, 4);
        names = Names(game.form);
        for (const char* name : {"Row 1, column 4: 9", "Row 2, column 1: 2", "Row 1: 25 points, Full House",
                                 "First die: 3", "Second die: 4", "Sum of the roll: 7", "Total: 25 points",
                                 "Select A Location for the Roll on the Grid"}) {
            QVERIFY2(names.contains(name), name);
        }
        QVERIFY(!Names(*game.form.centralWidget()).contains("Roll Dice"));

        auto* cell = QAccessible::queryAccessibleInterface(&game.Find("img2_4"));
        QCOMPARE(cell->role(), QAccessible::Button);
        cell->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        QTRY_COMPARE(game.form.GameBoard().At(2, 4), 7);
        QCOMPARE(cell->text(QAccessible::Name), "Row 2, column 4: 7");

        // In a dialog the texts come first, line by line.
        GameDriver::InDialog([&] { game.Choose("mnuHelpHow"); },
                             [](QDialog& dialog) {
                                 const QStringList lines = Names(dialog);
                                 QCOMPARE(lines.first(), "Game Play");
                                 QVERIFY(lines[3].startsWith("Pair = 5 points"));
                                 QCOMPARE(lines.last(), "OK");
                             });
        for (const char* entry : {"mnuHelpAbout", "mnuGameHigh", "mnuNewGame"}) {
            GameDriver::InDialog([&] { game.Choose(entry); },
                                 [](QDialog& dialog) { QVERIFY(Names(dialog).size() > 2); });
        }
    }
};

QTEST_MAIN(tst_access)
#include "tst_access.moc"
