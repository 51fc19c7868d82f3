// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#include "Model.h"
#include "Player.h"

namespace {

// The steps of the random scripts. A step that is listed twice is chosen twice as often.
QStringList RandomSteps() {
    QString steps =
        QString("Space Space Return Image1 Ctrl+R mnuGameRoll 1:Space 2:Space 1:Image1 2:Ctrl+R 1:Up ").repeated(10)
        + QString("Tab Shift+Tab Left Right Up Down Home End Escape No again 1:Ctrl+N 2:mnuGameHigh ").repeated(4)
        + "Ctrl+N imgNewGame Ctrl+Q mnuGameHigh F1 mnuHelpAbout Yes OK ResetScores close "
          "copy:-3 copy:150 copy:300 copy:40000 ";
    for (int cell = 0; cell < 25; ++cell) {
        const QString name = QString("img%1_%2 ").arg(cell / 5 + 1).arg(cell % 5 + 1);
        const QString dice = QString("%1+%2 ").arg(cell % 6 + 1).arg(cell / 4 % 6 + 1);
        steps += name + "double:" + name + "1:" + name + "2:" + name + dice;
    }
    return steps.split(' ', Qt::SkipEmptyParts);
}

} // namespace

// The window: what happens in it, where its controls are, and what is drawn.
class tst_game : public QObject {
    Q_OBJECT

private slots:
    void scripts_data() {
        QTest::addColumn<QString>("script");
        const QString round = QString("Space Return ").repeated(25); // rolls, and places the roll in the next open cell

        QTest::newRow("cells") << "img2_4 3+4 Image1 Image1 img2_4 img2_4 Ctrl+R img2_4 img1_1 Image1 img5_5 "
                                  "showMinimized showNormal Left Image1 Return";
        QTest::newRow("hints and the focus") << "Image1 Right Right Return Image1 1:Up Down Tab Tab Left img5_5 "
                                                "focus:img3_3 Right focus:img2_2 Tab Left focus:img4_4 Image1 Return";
        QTest::newRow("nested rolls") << (QString("1:Space 1:Return ").repeated(25) + "1:close 1:Space ").repeated(3);
        QTest::newRow("a tie") << "copy:500 again " + round + "Escape Tab wait Return Space";
        QTest::newRow("a reset") << "copy:400 again mnuGameHigh ResetScores " + round + "Return mnuGameHigh";
        QTest::newRow("a bad round overwrites a copy's") << "copy:600 again copy:700 " + round + "Ctrl+R Ctrl+N Ctrl+R";
        QTest::newRow("more than 16 bits") << "copy:90 again copy:40000 mnuGameHigh OK again copy:150 mnuGameHigh";
        QTest::newRow("the end in a pause")
            << QString("Space Return ").repeated(24)
                   + "Image1 1:Ctrl+R 1:Return 1:Escape 1:OK 1:Image1 Ctrl+R Ctrl+Q Return";
        QTest::newRow("questions")
            << "Image1 1:Ctrl+N 1:mnuGameHigh No 1:Ctrl+N Yes 2:img1_1 Image1 2:imgNewGame 2:Ctrl+Q img3_3 Escape "
               "imgNewGame Tab Return Ctrl+N Return Ctrl+Q close Ctrl+Q Tab Space Image1 "
               "mnuGameExit Yes img1_1 again Image1 1:close img2_2";
        QTest::newRow("keys")
            << "Tab Tab Left Num+Left Up Home Down End Right Down Shift+Tab Up Tab Tab Enter Tab Tab Left "
               "Tab Shift+Tab Enter Image1 img5_5 Ctrl+N Yes Right";
        QTest::newRow("dialogs") << "F1 mnuGameHigh mnuHelpAbout mnuHelpHow mnuGameExit mnuNewGame Escape Tab Enter "
                                    "mnuHelpAbout Tab Escape mnuHelpAbout OK F1 close mnuGameHigh";

        // By default the 600 random steps are always the same. KELVARO_STEPS sets their number, from 600 up, and
        // makes them differ.
        const int count = qEnvironmentVariableIntValue("KELVARO_STEPS");
        QRandomGenerator random = count > 0 ? QRandomGenerator::securelySeeded() : QRandomGenerator(20'261'115);
        const QStringList choices = RandomSteps();
        for (int number = 1; number <= qMax(3, count / 200); ++number) {
            QStringList script;
            while (script.size() < 200) {
                script << choices[random.bounded(choices.size())];
            }
            QTest::addRow("random %d", number) << script.join(' ');
        }
    }

    // The player and the model perform the same scripts. A script has no expected results; the model works them out.
    void scripts() {
        QFETCH(QString, script);
        // The random scripts are typed on a keyboard that sends no timestamps.
        const bool hasTimes = !QString(QTest::currentDataTag()).startsWith("random");
        const QStringList seen = Player(hasTimes).Perform(script);
        const QStringList expected = Model().Perform(script);
        if (seen != expected) {
            qWarning().noquote() << "The script is:" << script;
        }
        QCOMPARE(seen, expected);
    }

    void windowAndMenus() {
        Player player;
        Form1& window = player.Window();
        QCOMPARE(window.windowHandle()->minimumSize().grownBy(window.windowHandle()->frameMargins()), QSize(418, 541));
        QCOMPARE(window.frameGeometry().topLeft(), QPoint(191, 0)); // in the middle, but its top stays on the screen
        QString entries = window.windowTitle() + '|';
        for (const QAction* entry : window.menuBar()->findChildren<QAction*>()) {
            entries += entry->text() + entry->shortcut().toString() + '|';
        }
        QVERIFY2(entries.startsWith(
                     "Kelvaro|&Game|&New GameCtrl+N|&Roll DiceCtrl+R|High Scores||E&xitCtrl+Q|&Help|How To PlayF1|"
                     "&About Kelvaro|"),
                 qPrintable(entries)); // some styles add an entry
    }

    // A minimised window keeps its layout until it is restored.
    void minimised() {
        Player player;
        const QWidget& lastCell = player.Find("img5_5");
        const QPoint place = lastCell.pos();
        player.Perform("showMinimized enlarge");
        QCOMPARE(lastCell.pos(), place);
        player.Perform("showNormal");
        QTRY_VERIFY(lastCell.pos() != place);
    }

    // The order in which a screen reader reads the table.
    void readingOrder() {
        Player player;
        QWidget& table = *player.Window().centralWidget();
        QCOMPARE(Accessible(table).text(QAccessible::Name), "Game table");
        QCOMPARE(Player::Texts(table).mid(23).join('|'), // the last two cells, and what follows them
                 "Row 5, column 4: empty (Button)|Row 5, column 5: empty (Button)|Total: 0 points (StaticText)|"
                 "No roll (StaticText)|Roll Dice (Button)|New Game (Button)");
        const QPoint overlap = player.Find("lblRolled").mapToGlobal(QPoint(9, 9));
        QCOMPARE(Accessible(table).childAt(overlap.x(), overlap.y())->text(QAccessible::Name), "Roll Dice");
    }

    void pictures_data() {
        QTest::addColumn<QString>("script");
        const QString round = QString("Ctrl+R Return ").repeated(25) + "close ";
        QTest::newRow("start")
            << "Tab Line1 Meta photo"; // a click on the bare table hides the focus, and Meta does not show it
        QTest::newRow("roll-pressed") << "press:Image1 photo";
        QTest::newRow("first-pause") << "3+4 Space 1:photo";
        QTest::newRow("hovered") << "img3_3 6+6 Ctrl+R photo";
        QTest::newRow("pressed") << "3+4 Ctrl+R press:img3_3 photo";
        QTest::newRow("placed") << "3+4 Ctrl+R img3_3 photo";
        QTest::newRow("focused") << "3+4 Ctrl+R img3_3 5+6 Ctrl+R Left photo"; // a cell that is filled
        QTest::newRow("roll-focused") << "Ctrl+R Ctrl+N Yes photo";
        QTest::newRow("over") << round + "img1_1 photo";
        QTest::newRow("new-game-pressed") << round + "press:imgNewGame photo";
        QTest::newRow("large") << round + "enlarge photo";
        QTest::newRow("high-scores") << "copy:150 mnuGameHigh photo";
        QTest::newRow("how-to-play") << "F1 photo";
        QTest::newRow("about") << "mnuHelpAbout photo";
    }

    // The photo must look like the picture with the row's name. With KELVARO_DRAW set, the pictures are drawn again.
    void pictures() {
        QFETCH(QString, script);
        Player player;
        player.Perform(script);
        const QImage seen = player.Photo();
        const QString file = QString(PICTURES "/%1-%2.png").arg(QTest::currentDataTag()).arg(qApp->devicePixelRatio());
        QVERIFY(!qEnvironmentVariableIsSet("KELVARO_DRAW") || seen.save(file));
        const QImage expected = QImage(file).convertToFormat(seen.format());
        QCOMPARE(seen.size(), expected.size());
        int largest = 0; // difference of a colour
        for (qsizetype at = 0; at < seen.sizeInBytes(); ++at) {
            largest = qMax(largest, qAbs(seen.constBits()[at] - expected.constBits()[at]));
        }
        QVERIFY2(largest < 16, qPrintable(QString("The largest difference of a colour is %1.").arg(largest)));
    }
};

int main(int argc, char* argv[]) {
    PlayersApplication application(argv);
    QApplication::setFont(QFont("Sans", 12)); // so large that captions must be made smaller
    tst_game test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_game.moc"
