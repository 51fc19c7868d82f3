// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#include "Model.h"
#include "Player.h"

namespace {

constexpr QSize smallest(418, 541); // of the window with its frame

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

        QTest::newRow("cells")
            << "img2_4 3+4 Image1 Image1 img2_4 img2_4 Ctrl+R img2_4 img1_1 Image1 img5_5 Left Image1 Return";
        QTest::newRow("hints") << "Image1 Right Right Return Image1 1:Up Down Tab Tab Left img5_5";
        QTest::newRow("a tie") << "copy:500 again " + round + "Escape Tab Return Space";
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
        QTest::newRow("keys") << "Tab Tab Left Up Home Down End Right Down Shift+Tab Up Tab Tab Enter Tab Tab Left "
                                 "Tab Shift+Tab Enter Image1 img5_5 Ctrl+N Yes Right";
        QTest::newRow("dialogs") << "F1 mnuGameHigh mnuHelpAbout mnuHelpHow mnuGameExit mnuNewGame Escape Tab Enter "
                                    "mnuHelpAbout Tab Escape mnuHelpAbout OK F1 close mnuGameHigh";

        // By default the 600 random steps are always the same. KELVARO_STEPS sets their number and makes them differ.
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
        const QStringList seen = Player().Perform(script);
        const QStringList expected = Model().Perform(script);
        if (seen != expected) {
            qWarning().noquote() << "The script is:" << script;
        }
        QCOMPARE(seen, expected);
    }

    void titleAndMenus() {
        Player player;
        Form1& window = player.Window();
        QCOMPARE(window.windowTitle(), "Kelvaro");
        QCOMPARE(window.statusBar()->height(), 17);
        QString entries;
        for (const QAction* entry : window.menuBar()->findChildren<QAction*>()) {
            entries += entry->text() + entry->shortcut().toString() + '|';
        }
        QCOMPARE(entries.left(99),
                 "&Game|&New GameCtrl+N|&Roll DiceCtrl+R|High Scores||E&xitCtrl+Q|&Help|How To PlayF1|"
                 "&About Kelvaro|"); // some styles add an entry
    }

    // The order in which a screen reader reads the table.
    void readingOrder() {
        Player player;
        QAccessibleInterface& table = Accessible(*player.Window().centralWidget());
        QStringList names;
        for (int at = 0; at < table.childCount(); ++at) {
            names << table.child(at)->text(QAccessible::Name);
        }
        QCOMPARE(names.mid(4, 2).join('|'), "Row 1, column 5: empty|Row 2, column 1: empty");
        QCOMPARE(names.mid(24).join('|'), "Row 5, column 5: empty|Total: 0 points|No roll|Roll Dice|New Game");
        const QPoint overlap = player.Find("lblRolled").mapToGlobal(QPoint(9, 9));
        QCOMPARE(table.childAt(overlap.x(), overlap.y())->text(QAccessible::Name), "Roll Dice");
    }

    void pictures_data() {
        QTest::addColumn<QString>("script");
        QTest::addColumn<QSize>("size"); // of the window with its frame
        const QString round = QString("Ctrl+R Return ").repeated(25) + "close ";
        QTest::newRow("start") << "" << QSize(1, 1); // too small
        QTest::newRow("roll-pressed") << "press:Image1" << smallest;
        QTest::newRow("hovered") << "img3_3 6+6 Ctrl+R" << smallest;
        QTest::newRow("pressed") << "3+4 Ctrl+R press:img3_3" << smallest;
        QTest::newRow("placed") << "3+4 Ctrl+R img3_3" << smallest;
        QTest::newRow("focused") << "3+4 Ctrl+R img3_3 5+6 Ctrl+R Left" << smallest; // a cell that is filled
        QTest::newRow("roll-focused") << "Ctrl+R Ctrl+N Yes" << smallest;
        QTest::newRow("over") << round + "img1_1" << smallest;
        QTest::newRow("new-game-pressed") << round + "press:imgNewGame" << smallest;
        QTest::newRow("large") << round << QSize(700, 750);
    }

    // The table must look like the picture with the row's name. With KELVARO_DRAW set, the pictures are drawn again.
    void pictures() {
        QFETCH(QString, script);
        QFETCH(QSize, size);
        Player player;
        Form1& window = player.Window();
        window.menuBar()->setFixedHeight(20); // whatever its font
        // On the bare table, so that no control shows its focus.
        QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, QPoint(2, 100));
        player.Perform(script);
        if (size != smallest) {
            // A minimised window keeps its layout. It is laid out when it is restored.
            window.showMinimized();
            window.resize(size.shrunkBy(window.windowHandle()->frameMargins()));
            QCOMPARE(player.Find("img5_5").pos(), QPoint(241, 252));
            window.showNormal();
        }
        QCoreApplication::processEvents();

        QImage seen = Photograph(window, size == smallest);
        const QString file = QString(PICTURES "/%1-%2.png").arg(QTest::currentDataTag()).arg(window.devicePixelRatio());
        QVERIFY(!qEnvironmentVariableIsSet("KELVARO_DRAW") || seen.save(file));
        const QImage expected(file);
        QCOMPARE(seen.size(), expected.size());
        QPainter painter(&seen);
        painter.setCompositionMode(QPainter::CompositionMode_Difference);
        painter.drawImage(0, 0, expected);
        for (int y = 0; y < seen.height(); ++y) {
            for (int x = 0; x < seen.width(); ++x) {
                if ((seen.pixel(x, y) & 0xf0f0f0) != 0) { // smaller differences come from the version of Qt
                    QFAIL(qPrintable(QString("The pixel at %1,%2 is different.").arg(x).arg(y)));
                }
            }
        }
    }

private:
    // The table, with black in place of its texts: fonts differ. grab() paints everything; the screen also shows
    // whether the game has repainted what changed.
    static QImage Photograph(QMainWindow& window, bool fromScreen) {
        const qreal ratio = window.devicePixelRatio();
        const QWidget& table = *window.centralWidget();
        QImage image = window.grab().toImage();
        if (fromScreen && ratio == 1) {
            window.backingStore()->flush(window.rect());
            image = window.screen()->grabWindow(window.winId()).toImage();
        }
        QPainter painter(&image);
        painter.translate(table.pos());
        for (const auto* label : table.findChildren<QLabel*>()) {
            painter.fillRect(label->isVisible() && !label->text().isEmpty() ? label->geometry() : QRect(), Qt::black);
        }
        image.setDevicePixelRatio(1);
        return image.copy(QRectF(QPointF(table.pos()) * ratio, QSizeF(table.size()) * ratio).toRect());
    }
};

int main(int argc, char* argv[]) {
    PlayersApplication application(argv);
    QApplication::setFont(QFont("Sans", 12)); // so large that captions must be made smaller
    tst_game test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_game.moc"
