// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#include "GameDriver.h"
#include "mainwindow/LineShape.h"
#include "mainwindow/Twips.h"

#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QWindow>

namespace {

using Names = QHash<QString, double>;

void ResizeOuter(Form1& form, int width, int height) {
    form.resize(QSize(width, height).shrunkBy(form.windowHandle()->frameMargins()));
}

QSize Outer(const Form1& form) {
    return form.size().grownBy(form.windowHandle()->frameMargins());
}

} // namespace

class tst_window : public QObject {
    Q_OBJECT

private slots:
    void menus() {
        GameDriver game;
        QStringList entries;
        for (const QMenu* menu : game.form.menuBar()->findChildren<QMenu*>(Qt::FindDirectChildrenOnly)) {
            entries << menu->objectName() + ' ' + menu->title();
            for (const QAction* entry : menu->actions()) {
                entries << entry->objectName() + ' ' + entry->text() + ' ' + entry->shortcut().toString();
            }
        }
        QCOMPARE(entries, QStringList({"mnuGame &Game", "mnuNewGame &New Game Ctrl+N", "mnuGameRoll &Roll Dice Ctrl+R",
                                       "mnuGameHigh High Scores ", "mnuspace  ", "mnuGameExit E&xit Ctrl+Q",
                                       "mnuHelp &Help", "mnuHelpHow How To Play F1", "mnuHelpAbout &About Kelvaro "}));
        QVERIFY(game.Find<QAction>("mnuspace").isSeparator());
        QStatusTipEvent tip("not a prompt");
        QApplication::sendEvent(&game.form, &tip);
        QVERIFY(game.Find<QStatusBar>("StatusBar1").currentMessage().isEmpty());
    }

    void composition() {
        GameDriver game;
        QCOMPARE(game.form.windowTitle(), "Kelvaro");
        QCOMPARE(game.form.windowIcon().availableSizes(), QList{QSize(16, 16)});
        QCOMPARE(game.Find("StatusBar1").height(), 17);
        QCOMPARE(game.Find("img1_1").geometry(), QRect(16, 24, 50, 50));
        QCOMPARE(game.Find("Image1").size(), QSize(197, 75));
        QCOMPARE(game.Find("imgNewGame").size(), QSize(197, 75));
        QCOMPARE(game.Find("lblRolled").size(), QSize(87, 55));
        QCOMPARE(game.Find("lblTotal").size(), QSize(73, 33));
        QCOMPARE(game.Find("lbl_col3").size(), QSize(49, 17));
        QCOMPARE(game.Find("img_row2").size(), QSize(32, 48));
        QCOMPARE(game.Find("img_col2").size(), QSize(48, 40));
        QCOMPARE(game.Find("lblTotal").font().pixelSize(), 32);
    }

    void layout_data() {
        QTest::addColumn<QSize>("outer");
        QTest::addColumn<Names>("lefts");
        QTest::addColumn<Names>("tops");
        QTest::newRow("the floor") << QSize(418, 541)
                                   << Names{{"img3_2", 1085},   {"img1_5", 3620},   {"lbl_row4", 4765},
                                            {"lblTotal", 4765}, {"img_row1", 4220}, {"imgNewGame", 3055},
                                            {"Image1", 0},      {"lbl_col4", 2775}}
                                   << Names{{"img2_1", 1215.83},   {"img5_5", 3783.33},   {"lbl_row2", 1455.83},
                                            {"lbl_row3", 2311.67}, {"lbl_row4", 3167.5},  {"lbl_row5", 4043.33},
                                            {"lbl_col1", 5114.17}, {"lblTotal", 5039.17}, {"img_col3", 4383.33},
                                            {"Image1", 5715},      {"imgRolled2", 5815},  {"lblRolled", 5815},
                                            {"img_row3", 2071.67}};
        QTest::newRow("9000 by 10005 twips")
            << QSize(600, 667) << Names{{"img3_2", 1540},   {"img1_5", 5440},     {"lbl_row4", 7040},
                                        {"img_row1", 6040}, {"imgNewGame", 3235}, {"img_col2", 1540 + 375 - 360},
                                        {"img_col1", 240}}
            << Names{{"img2_1", 1530.83},   {"img5_5", 5043.33}, {"lbl_row5", 5304.17},
                     {"lbl_col1", 6689.17}, {"Image1", 7605},    {"imgRolled2", 7705}};
    }
    void layout() {
        QFETCH(QSize, outer);
        QFETCH(Names, lefts);
        QFETCH(Names, tops);
        GameDriver game;
        ResizeOuter(game.form, 900, 900);
        ResizeOuter(game.form, outer.width(), outer.height());
        for (auto left = lefts.constBegin(); left != lefts.constEnd(); ++left) {
            QVERIFY2(game.Find(left.key()).x() == ToPixels(left.value()), qPrintable(left.key()));
        }
        for (auto top = tops.constBegin(); top != tops.constEnd(); ++top) {
            QVERIFY2(game.Find(top.key()).y() == ToPixels(top.value()), qPrintable(top.key()));
        }
        // Strike lines run from a fixed end to the last cell, through the middle of theirs.
        const QRect row = game.Find("lin_row4").geometry();
        QCOMPARE(row.left(), 40);
        QCOMPARE(row.right() + 1, game.Find("img4_5").x());
        QVERIFY(qAbs(row.center().y() - game.Find("img4_5").geometry().center().y()) <= 1);
        const QRect column = game.Find("lin_col3").geometry();
        QCOMPARE(column.top(), 48);
        QCOMPARE(column.bottom() + 1, game.Find("img5_3").y());
        QVERIFY(qAbs(column.center().x() - game.Find("img5_3").geometry().center().x()) <= 1);
        QCOMPARE(game.Find("Line1").width(), outer.width());
    }

    void floors() {
        GameDriver game;
        const QSize smallest(418, 541);
        for (const QSize wanted : {QSize(417, 540), QSize(100, 800), QSize(800, 100), QSize(1, 1)}) {
            ResizeOuter(game.form, wanted.width(), wanted.height());
            QCOMPARE(Outer(game.form), wanted.expandedTo(smallest));
            QCOMPARE(game.Find("Line1").width(), Outer(game.form).width());
        }
    }

    void minimisedWindowKeepsItsLayout() {
        GameDriver game;
        ResizeOuter(game.form, 700, 700);
        const QRect before = game.Find("img5_5").geometry();
        game.form.setWindowState(Qt::WindowMinimized);
        QResizeEvent resize(QSize(10, 10), game.form.size());
        QApplication::sendEvent(&game.form, &resize);
        QCOMPARE(game.Find("img5_5").geometry(), before);
    }

    void greenDialogs_data() {
        QTest::addColumn<QString>("entry");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("caption");
        QTest::addColumn<QSize>("size");
        QTest::addColumn<bool>("escapeCloses");
        QTest::newRow("help") << "mnuHelpHow"
                              << "frmHelp"
                              << "How To Play Kelvaro" << QSize(426, 396) << false;
        QTest::newRow("about") << "mnuHelpAbout"
                               << "frmAbout"
                               << "About Kelvaro" << QSize(320, 166) << true;
        QTest::newRow("scores") << "mnuGameHigh"
                                << "frmHighScores"
                                << "High Scores" << QSize(402, 143) << false;
    }
    void greenDialogs() {
        QFETCH(bool, escapeCloses);
        QFETCH(QString, entry);
        GameDriver game;
        GameDriver::InDialog([&] { game.Choose(entry); },
                             [&](QDialog& dialog) {
                                 QTEST(dialog.objectName(), "name");
                                 QTEST(dialog.windowTitle(), "caption");
                                 QTEST(dialog.size(), "size");
                                 QCOMPARE(dialog.minimumSize(), dialog.maximumSize());
                                 QVERIFY(dialog.parentWidget() == nullptr && dialog.isModal());
                                 QCOMPARE(dialog.grab().toImage().pixelColor(3, 3), QColor(0, 128, 0));
                                 // The copyright line is the last label of the shortest dialog: none may be covered.
                                 for (const QLabel* label : dialog.findChildren<QLabel*>()) {
                                     const QFontMetrics metrics(label->font());
                                     const bool wraps = metrics.horizontalAdvance(label->text()) > label->width();
                                     QVERIFY2(!wraps || label->height() >= 33, qPrintable(label->objectName()));
                                 }
                                 QTest::keyClick(&dialog, Qt::Key_Escape);
                                 QCOMPARE(dialog.isVisible(), !escapeCloses);
                                 dialog.close();
                             });
    }

    // The list pictures' indices, sizes and depths; and no visible box: their corners are the table's green.
    void pictureLists() {
        GameDriver game;
        QSet<QByteArray> different;
        for (const auto& [name, count, size] :
             {std::tuple("ImageList1", 6, QSize(100, 100)), std::tuple("ImageList2", 13, QSize(50, 50))}) {
            const auto& list = *dynamic_cast<PictureList*>(&game.Find<QObject>(name));
            QCOMPARE(list.Count(), count);
            for (std::int16_t index = 1; index <= count; ++index) {
                const QImage& image = list.Image(index);
                QCOMPARE(image.size(), size);
                QVERIFY(!image.hasAlphaChannel() && image.depth() >= 24);
                different.insert(QByteArray(reinterpret_cast<const char*>(image.constBits()), image.sizeInBytes()));
                for (const QImage& shown :
                     {image, list.Rendering(index, {50, 50}).toImage(), list.Rendering(index, {150, 150}).toImage()}) {
                    const QColor corner = shown.pixelColor(0, 0);
                    QVERIFY(corner.red() <= 2 && qAbs(corner.green() - 128) <= 2 && corner.blue() <= 2);
                }
            }
        }
        QCOMPARE(different.size(), 19);
    }
};

QTEST_MAIN(tst_window)
#include "tst_window.moc"
