// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#include "Model.h"
#include "Player.h"

namespace {

QString Times(int count, const QString& words) {
    return QString(words + ' ').repeated(count);
}

// What a player may do, the likelier the more often it is here.
QStringList MadeUpWords() {
    QString words = Times(10, "Space Space Return Image1 Ctrl+R mnuGameRoll 1:Space 2:Space 1:Image1 2:Ctrl+R 1:Up")
                    + Times(4, "Tab Shift+Tab Left Right Up Down Home End Escape No again 1:Ctrl+N 2:mnuGameHigh")
                    + "Ctrl+N imgNewGame Ctrl+Q mnuGameHigh F1 mnuHelpAbout Yes OKButton CancelButton cmdOK close "
                      "copy:-3 copy:150 copy:300 copy:40000 300x1500 1200x700 555x555 ";
    for (int cell = 0; cell < 25; ++cell) {
        const QString name = QString("img%1_%2").arg(cell / 5 + 1).arg(cell % 5 + 1);
        words += QString("%1 %1 1:%1 2:%1 %2+%3 ").arg(name).arg(cell % 6 + 1).arg(cell / 5 + 2);
    }
    return words.split(' ', Qt::SkipEmptyParts);
}

// In the middle, and on a screen that is smaller than the frame in its upper left corner.
bool IsPlaced(const QWidget& window) {
    const QRect frame = window.frameGeometry();
    const QRect room =
        window.screen()->geometry() | QRect(window.screen()->availableGeometry().topLeft(), frame.size());
    return (frame.center() - room.center()).manhattanLength() <= 6;
}

// What of a control has come to the screen.
QImage Shown(const QWidget& control) {
    const QPoint corner = control.mapTo(control.window(), QPoint());
    return control.screen()
        ->grabWindow(control.window()->winId(), corner.x(), corner.y(), control.width(), control.height())
        .toImage();
}

} // namespace

// What can be told in words, row by row, and what is only to be looked at.
class tst_window : public QObject {
    Q_OBJECT

private slots:
    void rows_data() {
        QTest::addColumn<QString>("words");
        const QString round = Times(25, "Space Return");
        QTest::newRow("cells")
            << "img2_4 3+4 Image1 Image1 img2_4 img2_4 Ctrl+R img2_4 img1_1 Image1 img5_5 Left Image1 Return";
        QTest::newRow("a tie") << "copy:500 again " + round + "Escape Tab Return Space";
        QTest::newRow("a reset") << "copy:400 again mnuGameHigh CancelButton " + round + "Return mnuGameHigh";
        QTest::newRow("a bad round, and another copy's") << "copy:600 again copy:700 " + round + "Ctrl+N";
        QTest::newRow("no score") << "copy:90 again copy:40000 mnuGameHigh OKButton again copy:150 mnuGameHigh";
        QTest::newRow("so many rolls within rolls that the last do not pause")
            << "copy:600 again Space " + Times(3, Times(51, "1:Space")) + Times(9, "2:Space") + "1:Space 2:F1";
        QTest::newRow("the end in a pause")
            << Times(24, "Space Return") + "Image1 1:Return 1:Escape 1:OKButton 1:Image1 Ctrl+R Ctrl+Q Return";
        QTest::newRow("questions")
            << "Image1 1:Ctrl+N No 1:Ctrl+N Yes 2:img1_1 Image1 2:imgNewGame 2:Ctrl+Q img3_3 Escape "
               "imgNewGame Tab Return Ctrl+N Return Ctrl+Q close Ctrl+Q Tab Space Image1 "
               "mnuGameExit Yes img1_1 again Image1 1:close img2_2";
        QTest::newRow("keys") << "Tab Tab Left Num+Up Home Down End Right Down Shift+Tab Up Tab Tab Enter Tab Tab Left "
                                 "Tab Shift+Tab Enter Image1 img5_5 Ctrl+N Yes Right";
        QTest::newRow("sizes")
            << round + "Return 417x800 800x540 418x541 1x1 700x701 600x667 1280x1024 419x542 8000x541 Ctrl+N Image1";
        // KELVARO_WORDS says how many words are made up, and has them begin anywhere.
        const int count = qEnvironmentVariableIntValue("KELVARO_WORDS");
        QRandomGenerator random = count > 0 ? QRandomGenerator::securelySeeded() : QRandomGenerator(20'261'115);
        const QStringList choices = MadeUpWords();
        for (int told = 0; told < qMax(count, 600); told += 200) {
            QString words;
            for (int word = 0; word < 200; ++word) {
                words += choices[random.bounded(choices.size())] + ' ';
            }
            QTest::addRow("made up %d", told) << words;
        }
    }

    void rows() {
        QFETCH(QString, words);
        const QStringList row = words.split(' ', Qt::SkipEmptyParts);
        const QStringList seen = Player().Tell(row), expected = Model().Tell(row);
        if (seen != expected) {
            qWarning().noquote() << "told:" << words;
        }
        QCOMPARE(seen, expected);
    }

    void window() {
        Player player;
        Form1& window = player.Window();
        QString entries;
        for (const QAction* entry : window.menuBar()->findChildren<QAction*>()) {
            entries += entry->text() + entry->shortcut().toString() + '|';
        }
        QCOMPARE(entries, "&Game|&New GameCtrl+N|&Roll DiceCtrl+R|High Scores||E&xitCtrl+Q|&Help|How To PlayF1|"
                          "&About Kelvaro|");
        QVERIFY(IsPlaced(window) && window.statusBar()->height() == 17);
        QCOMPARE(window.windowHandle()->minimumSize().grownBy(window.windowHandle()->frameMargins()), QSize(418, 541));
        for (auto* control : window.centralWidget()->findChildren<QWidget*>()) {
            control->show();
            const bool isHit = control->parentWidget()->childAt(control->geometry().center()) == control;
            QVERIFY(!isHit || qobject_cast<QAbstractButton*>(control) != nullptr);
        }

        player.Tell({"6+6", "Ctrl+R"});
        QStatusTipEvent tip("no prompt");
        QApplication::sendEvent(&window, &tip);
        window.showMinimized();
        window.showNormal();
        QVERIFY(window.PendingRoll() == 12 && window.statusBar()->currentMessage().isEmpty());
        player.Find("img3_3").setFocus(); // as a screen reader moves it
        player.Tell({"Shift+Tab"});
        QCOMPARE(window.focusWidget(), &player.Find("imgNewGame"));
    }

    // Whatever fonts there are, every text is whole and clear of the buttons, and the chart is of one size.
    void dialogs() {
        Player player;
        const auto look = [&] {
            auto& dialog = *qobject_cast<QDialog*>(QApplication::activeModalWidget());
            const auto buttons = dialog.findChildren<QPushButton*>();
            QSet<int> chartSizes;
            for (const auto* label : dialog.findChildren<QLabel*>()) {
                const QRect place = label->geometry();
                const QRect text = label->fontMetrics().boundingRect(place, Qt::TextWordWrap, label->text());
                QVERIFY2(dialog.rect().contains(text) && text.height() <= place.height() + 3
                             && !text.intersects(buttons[0]->geometry()),
                         qPrintable(label->text()));
                QCOMPARE(label->textFormat(), Qt::PlainText);
                chartSizes << (label->text().contains(" points:") ? label->font().pixelSize() : 0);
            }
            QVERIFY(chartSizes.size() <= 2);
            for (const auto* button : buttons) {
                QCOMPARE(button->isDefault(), dialog.objectName() == "frmAbout");
                QVERIFY(button->fontMetrics().horizontalAdvance(button->text()) < button->width() - 8);
            }
            QVERIFY(dialog.maximumSize() == dialog.minimumSize() && !dialog.windowIcon().isNull() && IsPlaced(dialog));
            QVERIFY(dialog.windowFlags().testFlag(Qt::WindowCloseButtonHint)
                    && dialog.windowHandle()->transientParent() == player.Window().windowHandle());
            dialog.close();
        };
        for (const char* entry : {"mnuGameHigh", "mnuHelpHow", "mnuHelpAbout"}) {
            QTimer::singleShot(0, &player.Window(), look);
            player.Find<QAction>(entry).trigger();
        }
    }

    // Pictures show what is next, light up under the pointer and change when pressed, but only where a click would do
    // something. The focus is drawn for keys only.
    void lights() {
        Player player;
        QWidget &cell = player.Find("img3_3"), &next = player.Find("img3_4"), &button = player.Find("imgNewGame");
        PictureButton::ShowFocus(false);
        QWindow* window = player.Window().windowHandle();
        const QPoint middle = cell.mapTo(&player.Window(), QPoint(25, 25));
        const auto painted = [&] { return player.Window().grab().toImage(); };
        const QImage plain = painted(), closed = Shown(next), unlit = button.grab().toImage();
        QTest::mouseMove(window, middle);
        QTest::keyClick(window, Qt::Key_Control);
        QCOMPARE(painted(), plain);
        player.Tell({"Tab", "Tab"});
        QVERIFY(painted() != plain);
        QTest::mouseClick(window, Qt::LeftButton, {}, middle);
        QCOMPARE(painted(), plain);

        player.Tell({"Ctrl+R"});
        QTRY_VERIFY(Shown(next) != closed && Shown(cell) != Shown(next));
        const QImage lit = Shown(cell);
        QTest::mousePress(window, Qt::LeftButton, {}, middle);
        QTRY_VERIFY(Shown(cell) != lit);
        QTest::mouseRelease(window, Qt::LeftButton, {}, middle);
        QTRY_COMPARE(Shown(next), closed);
        player.Tell({"Ctrl+R", "img3_4", "Ctrl+R"});
        QCOMPARE(next.grab().toImage(), cell.grab().toImage()); // a filled one, the pointer is over it
        player.Tell(Times(23, "Return Image1").split(' ', Qt::SkipEmptyParts));
        QVERIFY(button.grab().toImage() != unlit);
    }

    // At every scale a control shows its picture in device pixels, on whole ones, from the larger rendering if need be.
    void pictures() {
        Player player;
        player.Tell({"627x701", "3+4", "Image1", "img2_3"});
        QImage seen = player.Window().grab().toImage();
        const double ratio = std::exchange(seen, seen.convertToFormat(QImage::Format_RGB32)).devicePixelRatio();
        const auto& cell = player.Find("img2_3");
        const QRect place((QPointF(cell.mapTo(&player.Window(), QPoint())) * ratio).toPoint(), cell.size() * ratio);
        QImage picture(ratio > 1 ? ":/pictures/large/cell7.png" : ":/pictures/cell7.png");
        picture = picture.scaled(place.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        picture.setDevicePixelRatio(ratio);
        const QRect inside(1, 1, place.width() - 2, place.height() - 2); // the table may have half a pixel
        QCOMPARE(seen.copy(inside.translated(place.topLeft())),
                 picture.convertToFormat(QImage::Format_RGB32).copy(inside));
    }
};

int main(int argc, char* argv[]) {
    PlayersApplication application(argc, argv);
    tst_window test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_window.moc"
