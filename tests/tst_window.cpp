// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#include "Player.h"

// What the scripts do not see of the window and its dialogs.
class tst_window : public QObject {
    Q_OBJECT

private slots:
    void menus() {
        Player player;
        QString entries;
        for (const QAction* entry : player.Window().menuBar()->findChildren<QAction*>()) {
            entries += entry->text() + entry->shortcut().toString() + '|';
        }
        QCOMPARE(entries, "&Game|&New GameCtrl+N|&Roll DiceCtrl+R|High Scores||E&xitCtrl+Q|&Help|How To PlayF1|"
                          "&About Kelvaro|");
    }

    void layout_data() {
        QTest::addColumn<QPoint>("atMinimum"); // 418x541 pixels with the frame
        QTest::addColumn<QPoint>("atLarger");  // 800x900
        QTest::newRow("img5_5") << QPoint(241, 252) << QPoint(496, 492);
        QTest::newRow("lbl_row5") << QPoint(318, 270) << QPoint(636, 509);
        QTest::newRow("img_row3") << QPoint(281, 138) << QPoint(536, 258);
        QTest::newRow("lin_col4") << QPoint(206, 48) << QPoint(397, 48);
        QTest::newRow("lblTotal") << QPoint(318, 336) << QPoint(636, 635);
        QTest::newRow("Image1") << QPoint(0, 381) << QPoint(0, 740);
        QTest::newRow("imgNewGame") << QPoint(204, 381) << QPoint(349, 740);
    }

    void layout() {
        QFETCH(QPoint, atMinimum);
        QFETCH(QPoint, atLarger);
        Player player;
        Form1& window = player.Window();
        const QWidget& control = player.Find(QTest::currentDataTag());
        QCOMPARE(control.pos(), atMinimum);
        window.showMinimized();
        window.resize(QSize(800, 900).shrunkBy(window.windowHandle()->frameMargins()));
        QCOMPARE(control.pos(), atMinimum);
        window.showNormal();
        QCOMPARE(control.pos(), atLarger);
        window.resize(1, 1); // smaller than the minimum
        QCOMPARE(control.pos(), atMinimum);
    }

    // In the design's narrow window some controls overlap.
    void backToFront() {
        Player player;
        const QObjectList& order = player.Window().centralWidget()->children();
        const QStringList names{"lin_row1", "img_row1", "img1_1", "imgNewGame", "lblRolled", "Image1", "imgRolled1"};
        QVERIFY(
            std::ranges::is_sorted(names, {}, [&](const QString& name) { return order.indexOf(&player.Find(name)); }));
        const QColor strike = player.Find("lin_row1").grab().toImage().pixelColor(1, 1);
        QCOMPARE(strike, player.Window().palette().windowText().color());
        QCOMPARE(player.Window().centralWidget()->grab().toImage().pixelColor(1, 1), QColor(0, 128, 0));
    }

    void screenReader() {
        Player player;
        QCOMPARE(Spoken(*player.Window().centralWidget()).role(), QAccessible::Client);
        QCOMPARE(Spoken(player.Find("img1_1")).role(), QAccessible::Button);
        QCOMPARE(Spoken(player.Find("Announcer")).role(), QAccessible::Notification);
    }

    // Whatever fonts there are, all text is shown whole and keeps clear of the buttons. A screen reader can use what a
    // dialog covers, but opens no second one.
    void dialogs() {
        Player player;
        const QStringList entries{"mnuGameHigh", "mnuHelpHow", "mnuHelpAbout"};
        const auto checkDialog = [&] {
            QWidget& dialog = *QApplication::activeModalWidget();
            const auto* button = dialog.findChild<QPushButton*>();
            for (const auto* label : dialog.findChildren<QLabel*>()) {
                const QRect place = label->geometry();
                const QRect text = label->fontMetrics().boundingRect(place, Qt::TextWordWrap, label->text());
                QVERIFY(dialog.rect().contains(text));
                QVERIFY(!text.intersects(button->geometry()));
            }
            for (const QString& other : entries + QStringList("mnuNewGame")) {
                player.Find<QAction>(other).trigger();
                QCOMPARE(QApplication::activeModalWidget(), &dialog);
            }
            dialog.close();
        };
        for (const QString& entry : entries) {
            QTimer::singleShot(0, &player.Window(), checkDialog);
            player.Find<QAction>(entry).trigger();
        }
    }

    // A revealed roll is previewed under the pointer, and the open cells show that they are the next to be clicked. The
    // focus is drawn for keys only.
    void effects() {
        Player player;
        const auto look = [](const QWidget& control) { // with what covers it
            return control.window()->grab({control.mapTo(control.window(), QPoint()), control.size()}).toImage();
        };
        const QWidget& window = player.Window();
        const QWidget& cell = player.Find("img3_3");
        const QWidget& next = player.Find("img3_4");
        QTest::mouseMove(window.windowHandle(), cell.mapTo(&window, cell.rect().center()));
        player.Perform("img3_3");
        const QImage plain = look(window);
        const QImage open = look(next);
        player.Perform("Tab Tab");
        QVERIFY(look(window) != plain);
        player.Perform("img3_3");
        QCOMPARE(look(window), plain);

        player.Perform("Ctrl+R");
        QVERIFY(look(next) != open);
        const QImage preview = look(cell);
        player.Perform("Return 6+6 Ctrl+R");
        QVERIFY(look(cell) != preview);
        player.Perform("Return");
        QCOMPARE(look(next), open);
    }

    // Its edge crosses this column, so some pixels are partly transparent.
    void arrowsAreSmooth() {
        const QImage arrow = PictureList("arrow-right", "ico").Rendering(1, {32, 48}).toImage();
        QSet<int> opacities;
        for (int y = 0; y < arrow.height(); ++y) {
            opacities << qAlpha(arrow.pixel(25, y));
        }
        QVERIFY(opacities.size() > 2);
    }

    void doubleClick() {
        Player player;
        player.Perform("Ctrl+R");
        QTest::mouseDClick(player.Window().windowHandle(), Qt::LeftButton, {},
                           player.Find("img3_3").mapTo(&player.Window(), QPoint(9, 9)));
        QCOMPARE(player.Find("Announcer").accessibleName(), "2 in row 3, column 3."); // not: This cell is filled.
    }
};

int main(int argc, char* argv[]) {
    PlayersApplication application(argv);
    tst_window test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_window.moc"
