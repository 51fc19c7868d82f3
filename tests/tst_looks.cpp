// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#include "Model.h"
#include "Player.h"
#include "controls/Accessibility.h"

namespace {

QAccessibleInterface& Heard(QWidget& control) {
    return *QAccessible::queryAccessibleInterface(&control);
}

// What a screen reader finds below `parent`, in its order.
QString Spoken(QWidget& parent) {
    QString spoken;
    for (int index = 0; index < Heard(parent).childCount(); ++index) {
        spoken += Heard(parent).child(index)->text(QAccessible::Name) + '|';
    }
    return spoken;
}

// In the middle, and on a screen that is smaller than the frame in its upper left corner.
bool IsPlaced(const QRect& frame, const QScreen& screen) {
    const QRect room = screen.geometry() | QRect(screen.availableGeometry().topLeft(), frame.size());
    return (frame.center() - room.center()).manhattanLength() <= 6;
}

// Runs `look` on the dialog that `entry` opens, then closes it.
void InDialog(Player& player, const QString& entry, const std::function<void(QDialog&)>& look) {
    QTimer::singleShot(0, &player.Window(), [&] {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        look(*dialog);
        dialog->close();
    });
    player.Find<QAction>(entry).trigger();
}

// What of `control` has come to the screen.
QImage Shown(const QWidget& control) {
    const QPoint corner = control.mapTo(control.window(), QPoint());
    QScreen& screen = *control.screen();
    return screen.grabWindow(control.window()->winId(), corner.x(), corner.y(), control.width(), control.height())
        .toImage();
}

} // namespace

class tst_looks : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { InstallAccessibility(); }

    void window() {
        Player player;
        Form1& window = player.Window();
        QString entries;
        for (const QAction* entry : window.menuBar()->findChildren<QAction*>()) {
            entries += entry->text() + ' ' + entry->shortcut().toString() + '|';
        }
        QCOMPARE(entries, "&Game |&New Game Ctrl+N|&Roll Dice Ctrl+R|High Scores | |E&xit Ctrl+Q|&Help |How To Play F1|"
                          "&About Kelvaro |");
        QVERIFY(window.statusBar()->height() == 17 && window.windowTitle() == "Kelvaro");
        QCOMPARE(window.windowIcon().availableSizes(), QList{QSize(16, 16)});
        QVERIFY(IsPlaced(window.frameGeometry(), *window.screen()));
        QCOMPARE(window.windowHandle()->minimumSize().grownBy(window.windowHandle()->frameMargins()), QSize(418, 541));

        player.Tell({"6+6", "Image1"});
        QStatusTipEvent tip("no prompt");
        QApplication::sendEvent(&window, &tip);
        window.showMinimized();
        window.showNormal();
        QCOMPARE(window.PendingRoll(), 12);
        QVERIFY(window.statusBar()->currentMessage().isEmpty());

        player.Find("img3_3").setFocus(); // as a screen reader moves it
        player.Tell({"Shift+Tab"});
        QCOMPARE(window.focusWidget(), &player.Find("imgNewGame"));
    }

    void controls() {
        Player player;
        for (auto* control : player.Window().centralWidget()->findChildren<QWidget*>()) {
            control->show();
            const bool isHit = control->parentWidget()->childAt(control->geometry().center()) == control;
            QVERIFY(!isHit || qobject_cast<QAbstractButton*>(control) != nullptr);
        }
        for (const char* name : {"lblTotal", "lblRolled", "lbl_row2", "lbl_col4"}) {
            const auto& label = player.Find<QLabel>(name);
            const bool isSum = name == QString("lblRolled"), isLine = QString(name).contains('_');
            QCOMPARE(label.font().pixelSize(), isLine ? 13 : 32);
            QCOMPARE(label.alignment(), Qt::AlignTop | (isSum ? Qt::AlignLeft : Qt::AlignHCenter));
            QVERIFY(label.font().bold() && label.textFormat() == Qt::PlainText);
            QCOMPARE(label.palette().color(QPalette::WindowText), Qt::white);
        }
    }

    void dialogs_data() {
        QTest::addColumn<QString>("looks");
        QTest::newRow("mnuGameHigh") << "High Scores 0 0 402 143|304 8 89 25|304 40 89 25|8 8 281 25|8 32 281 25|"
                                        "8 56 281 25|8 80 281 25|8 104 281 25|";
        QTest::newRow("mnuHelpHow") << "How To Play Kelvaro 0 0 426 396|336 360 81 25|8 8 145 25|8 32 401 41|"
                                       "8 80 401 41|8 128 361 25|8 152 417 33|8 192 417 33|8 232 417 33|8 256 417 33|"
                                       "8 280 417 33|8 304 417 33|8 328 417 33|";
        QTest::newRow("mnuHelpAbout") << "About Kelvaro 0 0 320 166|8 8 72 76|7 120 305 2|6 120 306 1|216 128 84 23|"
                                         "8 128 258 23|88 8 259 32|88 32 259 15|88 56 265 33|";
    }

    // Whatever fonts there are, every text is whole and clear of the button, and the chart is of one size.
    void dialogs() {
        Player player;
        InDialog(player, QTest::currentDataTag(), [&](QDialog& dialog) {
            QString looks = dialog.windowTitle() + ' ' + Place(dialog.rect()) + '|';
            QSet<int> chartSizes;
            for (const auto* control : dialog.findChildren<QWidget*>()) {
                looks += Place(control->geometry()) + '|';
            }
            QTEST(looks, "looks");
            for (const auto* label : dialog.findChildren<QLabel*>()) {
                const QRect place = label->geometry();
                const QRect text = label->fontMetrics().boundingRect(place, Qt::TextWordWrap, label->text());
                QVERIFY2(dialog.rect().contains(text) && text.height() <= place.height() + 3
                             && !text.intersects(dialog.findChild<QPushButton*>()->geometry()),
                         qPrintable(label->text()));
                if (label->text().contains(" points:")) {
                    chartSizes << label->font().pixelSize();
                }
            }
            QVERIFY(chartSizes.size() <= 1);
            QVERIFY(dialog.maximumSize() == dialog.minimumSize() && dialog.parentWidget() == nullptr);
            QVERIFY(dialog.windowFlags().testFlag(Qt::WindowCloseButtonHint) && !dialog.windowIcon().isNull());
            for (const auto* button : dialog.findChildren<QPushButton*>()) {
                QCOMPARE(button->isDefault(), dialog.objectName() == "frmAbout");
                QVERIFY(button->fontMetrics().horizontalAdvance(button->text()) < button->width() - 8);
            }
            QCOMPARE(dialog.windowHandle()->transientParent(), player.Window().windowHandle());
            QVERIFY(IsPlaced(dialog.frameGeometry(), *dialog.screen()));
            const QImage picture = dialog.grab().toImage();
            const auto pixel = [&](QPointF at) {
                return picture.pixelColor((at * picture.devicePixelRatio()).toPoint());
            };
            QCOMPARE(pixel({3, 3}), QColor(0, 128, 0));
            if (dialog.objectName() == "frmAbout") { // an etched groove
                QVERIFY(pixel({100, 120}) == QColor(128, 128, 128) && pixel({100, 121.4}) == Qt::white);
            }
        });
    }

    // What is spoken, in the order in which it is read; the chart says what the model counts.
    void spoken() {
        Player player;
        player.Tell({"6+6", "Space", "Space", "1+2", "Space"});
        QWidget& table = *player.Window().centralWidget();
        QVERIFY(Spoken(table).endsWith("|Row 5, column 4: empty|Row 5, column 5: empty|Total: 0 points|First die: 1|"
                                       "Second die: 2|Sum of the roll: 3|New Game|"));
        QCOMPARE(Heard(player.Find("img1_1")).role(), QAccessible::Button);
        QCOMPARE(Heard(player.Find("imgRolled1")).role(), QAccessible::Graphic);
        const QPoint inSum = Heard(player.Find("lblRolled")).rect().bottomRight() - QPoint(5, 5);
        QCOMPARE(Heard(table).childAt(inSum.x(), inSum.y())->object(), &player.Find("lblRolled"));
        InDialog(player, "mnuHelpHow", [](QDialog& dialog) {
            QString chart = "OK|";
            for (const auto& [steps, points, hand, rule] : worths) {
                chart.prepend(points > 0 ? QString("%1 = %2 points: %3|").arg(hand).arg(points).arg(rule) : "");
            }
            QVERIFY(Spoken(dialog).endsWith(chart));
        });
    }

    // The pointer lights an open cell up while a roll is pending, moved or not; pressed, it darkens.
    void hover() {
        Player player;
        QWidget& cell = player.Find("img3_3");
        QWindow* window = player.Window().windowHandle();
        const QPoint middle = cell.mapTo(&player.Window(), QPoint(25, 25));
        const QImage plain = Shown(cell);
        QTest::mouseMove(window, middle);
        QTRY_VERIFY(cell.underMouse());
        QTRY_COMPARE(Shown(cell), plain);
        for (const char* key : {"Ctrl+R", "Return", "Ctrl+R"}) {
            player.Tell({key});
            QTRY_COMPARE(Shown(cell) != plain, key == QString("Ctrl+R"));
        }
        const QImage lit = Shown(cell);
        QTest::mousePress(window, Qt::LeftButton, {}, middle);
        QTRY_VERIFY(Shown(cell) != lit && Shown(cell) != plain);
        QTest::mouseRelease(window, Qt::LeftButton, {}, middle);
        player.Tell({"Ctrl+R"});
        const QImage filled = cell.grab().toImage();
        QTest::mouseMove(window, middle + QPoint(0, 60));
        QTRY_VERIFY(!cell.underMouse());
        QCOMPARE(cell.grab().toImage(), filled);
    }

    void focusIsDrawnForKeysOnly() {
        Player player;
        QWindow* window = player.Window().windowHandle();
        const auto seen = [&] { return player.Window().grab().toImage(); };
        const QImage plain = seen();
        QTest::keyClick(window, Qt::Key_Control);
        QCOMPARE(seen(), plain);
        player.Tell({"Tab", "Tab"});
        QVERIFY(seen() != plain);
        QTest::mouseClick(window, Qt::LeftButton, {}, QPoint(400, 60));
        QCOMPARE(seen(), plain);
    }

    // Enter acts when it is released, and not again while it is held down.
    void heldEnter() {
        Player player;
        for (const auto& [type, isRepeat] : {std::pair(QEvent::KeyPress, false),
                                             {QEvent::KeyRelease, true},
                                             {QEvent::KeyPress, true},
                                             {QEvent::KeyRelease, false}}) {
            QCOMPARE(player.Window().PendingRoll(), 0);
            QKeyEvent event(type, Qt::Key_Return, Qt::NoModifier, "\r", isRepeat);
            QApplication::sendEvent(&player.Find("Image1"), &event);
        }
        QCOMPARE(player.Window().PendingRoll(), 2);
    }

    // At every scale a control in front shows its picture rendered in device pixels, on whole ones.
    void pictures() {
        Player player;
        player.Tell({"627x701", "3+4", "Image1", "1:img1_2"}); // the second die comes before the roll button
        const QImage seen = player.Window().grab().toImage().convertToFormat(QImage::Format_RGB32);
        const qreal ratio = seen.devicePixelRatio();
        for (const char* name : {"img1_2", "img2_3", "img3_4", "img4_5", "img5_2", "imgRolled2"}) {
            const auto& control = player.Find(name);
            const auto& list = player.Find<PictureList>(name == QString("imgRolled2") ? "ImageList1" : "ImageList2");
            const QRect place((QPointF(control.mapTo(&player.Window(), QPoint())) * ratio).toPoint(),
                              control.size() * ratio);
            const auto index = player.Find<PictureFace>(name).Index();
            QImage picture = list.Rendering(index, place.size()).toImage();
            picture.setDevicePixelRatio(ratio);
            const QRect inside(1, 1, place.width() - 2, place.height() - 2); // the table may have half a pixel
            QCOMPARE(seen.copy(inside.translated(place.topLeft())),
                     picture.convertToFormat(QImage::Format_RGB32).copy(inside));
        }
    }
};

QTEST_MAIN(tst_looks)
#include "tst_looks.moc"
