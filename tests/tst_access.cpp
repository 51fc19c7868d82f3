// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#include "GameDriver.h"
#include "controls/Accessibility.h"

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
    void initTestCase() { InstallAccessibility(); }

    void keysMoveTheFocus() {
        GameDriver game;
        QString path = Focused(game);
        for (const Qt::Key key : {Qt::Key_Tab, Qt::Key_Tab, Qt::Key_Left, Qt::Key_Up, Qt::Key_Home, Qt::Key_Down,
                                  Qt::Key_End, Qt::Key_Right, Qt::Key_Down, Qt::Key_Backtab, Qt::Key_Up, Qt::Key_Tab}) {
            Press(game, key);
            path += ' ' + Focused(game);
        }
        QCOMPARE(path,
                 "Image1 imgNewGame img1_1 img1_5 img5_5 img5_1 img1_1 img1_5 img1_1 img2_1 imgNewGame img2_1 Image1");
        // A screen reader moves the focus past the keyboard.
        auto* cell = QAccessible::queryAccessibleInterface(&game.Find("img4_4"));
        cell->actionInterface()->doAction(QAccessibleActionInterface::setFocusAction());
        Press(game, Qt::Key_Right);
        QCOMPARE(Focused(game), "img4_5");
        Press(game, Qt::Key_Tab);
        // Hidden by a roll, the button hands the focus to the grid; after New Game and its dialog it is back.
        Press(game, Qt::Key_Return);
        QCOMPARE(Focused(game), "img4_5");
        Press(game, Qt::Key_Tab);
        QCOMPARE(Focused(game), "imgNewGame");
        // Enter acts on release: held down it must not answer the question that it opens.
        QTest::keyPress(game.form.focusWidget(), Qt::Key_Return);
        QVERIFY(QApplication::activeModalWidget() == nullptr);
        QTest::mouseClick(&game.Find("img4_5"), Qt::RightButton);
        GameDriver::InDialog([&] { Press(game, Qt::Key_Space); },
                             [](QDialog& box) { QTest::keyClick(&box, Qt::Key_Escape); });
        QCOMPARE(Focused(game), "imgNewGame");
        GameDriver::InDialog([&] { Press(game, Qt::Key_Space); },
                             [](QDialog& box) { QTest::keyClick(&box, Qt::Key_Return); });
        QCOMPARE(Focused(game), "Image1");
    }

    void focusIsDrawnForKeysOnly() {
        if (!GameDriver::HasKeyboard()) {
            QSKIP("nothing has the focus here");
        }
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
        QVERIFY(game.CanRoll());
        QCOMPARE(game.platform.StoreText(), "");
        const auto checkAndClose = [&](QDialog& dialog) {
            QVERIFY(game.platform.StoreText().contains("User1=2026/1/5 9:05"));
            QCOMPARE(game.Prompt(), "Game Over!");
            const QString first = dialog.findChild<QLabel*>("lblHighScore(0)")->text();
            QCOMPARE(first, game.Caption("lblTotal") + "  2026/1/5 9:05");
            QTest::keyClick(&dialog, Qt::Key_Return);
        };
        game.platform.pump.actions[game.platform.pump.passes + 1] = [&] {
            GameDriver::InDialog([&] { Press(game, Qt::Key_Return); }, checkAndClose);
        };
        Press(game, Qt::Key_Space);
        QVERIFY(game.form.GameBoard().IsFull() && !game.IsShown("Image1"));
        QVERIFY(!game.Find<QAction>("mnuGameRoll").isEnabled());
        QCOMPARE(game.Caption("lblRolled"), "= 0");
        QCOMPARE(game.form.HighScores().At(1).score, game.Caption("lblTotal").toInt());
        // A full board is replaced without a question.
        QCOMPARE(Focused(game), "imgNewGame");
        Press(game, Qt::Key_Space);
        QVERIFY(game.form.GameBoard() == Board());
        QCOMPARE(Focused(game), "Image1");
    }

    // The pointer lights a cell up only while a click would do something.
    void hoverFollowsTheRoll() {
        GameDriver game;
        PictureButton& cell = game.Find<PictureButton>("img3_3");
        const QImage plain = cell.grab().toImage();
        cell.setAttribute(Qt::WA_UnderMouse);
        QCOMPARE(cell.grab().toImage(), plain);
        game.Roll(1, 2);
        QVERIFY(cell.grab().toImage() != plain);
        game.Click("img1_1");
        QCOMPARE(cell.grab().toImage(), plain);
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

        // Dialogs are read from the top, their buttons last.
        for (const auto& [entry, spoken] : std::initializer_list<std::pair<const char*, const char*>>{
                 {"mnuHelpAbout",
                  "Kelvaro|Version " KELVARO_VERSION "|A red disc and a die|Support: the Kelvaro issue tracker|"
                  "Copyright \u00a9 2026 the Kelvaro developers|OK"},
                 {"mnuGameHigh", "0  |0  |0  |0  |0  |OK|Reset Scores"}}) {
            QString heard;
            GameDriver::InDialog([&, name = entry] { game.Choose(name); },
                                 [&](QDialog& dialog) { heard = Names(dialog).join('|'); });
            QCOMPARE(heard, QString::fromUtf8(spoken));
        }
        GameDriver::InDialog([&] { game.Choose("mnuHelpHow"); },
                             [](QDialog& dialog) { QVERIFY(Names(dialog)[3].startsWith("Pair = 5 points")); });
    }
};

QTEST_MAIN(tst_access)
#include "tst_access.moc"
