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
        const QString dice = QString("%1+%2 ").arg(cell % 5 + 1).arg(cell / 5 + 2);
        steps += name + name + "1:" + name + "2:" + name + dice;
    }
    return steps.split(' ', Qt::SkipEmptyParts);
}

} // namespace

// The player and the model perform the same scripts. A script has no expected results; the model works them out.
class tst_game : public QObject {
    Q_OBJECT

private slots:
    void scripts_data() {
        QTest::addColumn<QString>("script");
        const QString round = QString("Space Return ").repeated(25); // rolls, and places the roll in the next open cell

        QTest::newRow("cells")
            << "img2_4 3+4 Image1 Image1 img2_4 img2_4 Ctrl+R img2_4 img1_1 Image1 img5_5 Left Image1 Return";
        QTest::newRow("hints") << "Image1 Right Right Return Image1 1:Up Down Tab Tab Left img5_5";
        QTest::newRow("a tie") << "copy:500 again " + round + "Escape Tab Return Space";
        QTest::newRow("a reset") << "copy:400 again mnuGameHigh ResetScores " + round + "Return mnuGameHigh";
        QTest::newRow("a bad round, and another copy's") << "copy:600 again copy:700 " + round + "Ctrl+R Ctrl+N";
        QTest::newRow("no score") << "copy:90 again copy:40000 mnuGameHigh OK again copy:150 mnuGameHigh";
        QTest::newRow("the end in a pause")
            << QString("Space Return ").repeated(24)
                   + "Image1 1:Ctrl+R 1:Return 1:Escape 1:OK 1:Image1 Ctrl+R Ctrl+Q Return";
        QTest::newRow("questions")
            << "Image1 1:Ctrl+N No 1:Ctrl+N Yes 2:img1_1 Image1 2:imgNewGame 2:Ctrl+Q img3_3 Escape "
               "imgNewGame Tab Return Ctrl+N Return Ctrl+Q close Ctrl+Q Tab Space Image1 "
               "mnuGameExit Yes img1_1 again Image1 1:close img2_2";
        QTest::newRow("keys") << "Tab Tab Left Up Home Down End Right Down Shift+Tab Up Tab Tab Enter Tab Tab Left "
                                 "Tab Shift+Tab Enter Image1 img5_5 Ctrl+N Yes Right";
        QTest::newRow("dialogs") << "F1 Escape Tab Return mnuHelpAbout Tab Escape mnuHelpAbout OK F1 close";

        // By default the 600 random steps are always the same. KELVARO_STEPS sets their number and makes them differ.
        const int count = qEnvironmentVariableIntValue("KELVARO_STEPS");
        QRandomGenerator random = count > 0 ? QRandomGenerator::securelySeeded() : QRandomGenerator(20'261'115);
        const QStringList choices = RandomSteps();
        constexpr int stepsOfAScript = 200;
        for (int number = 1; number <= qMax(3, count / stepsOfAScript); ++number) {
            QString script;
            for (int step = 0; step < stepsOfAScript; ++step) {
                script += choices[random.bounded(choices.size())] + ' ';
            }
            QTest::addRow("random %d", number) << script;
        }
    }

    void scripts() {
        QFETCH(QString, script);
        const QStringList seen = Player().Perform(script);
        const QStringList expected = Model().Perform(script);
        if (seen != expected) {
            qWarning().noquote() << "The script is:" << script;
        }
        QCOMPARE(seen, expected);
    }
};

int main(int argc, char* argv[]) {
    PlayersApplication application(argv);
    QApplication::setDoubleClickInterval(0); // two clicks of the player are never a double click
    tst_game test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_game.moc"
