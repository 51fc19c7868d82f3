// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#include "GameDriver.h"
#include "controls/LineShape.h"
#include "controls/Twips.h"

#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QWindow>

namespace {

void ResizeOuter(Form1& form, int width, int height) {
    form.resize(QSize(width, height).shrunkBy(form.windowHandle()->frameMargins()));
}

QSize Outer(const Form1& form) {
    return form.size().grownBy(form.windowHandle()->frameMargins());
}

const QColor table(0, 128, 0);

bool IsTableGreen(const QColor& colour) {
    return colour.red() <= 2 && qAbs(colour.green() - 128) <= 2 && colour.blue() <= 2;
}

// The contrast ratio of WCAG 2, 1 to 21.
double Contrast(const QColor& a, const QColor& b) {
    const auto luminance = [](const QColor& colour) {
        const auto linear = [](double part) {
            return part <= 0.03928 ? part / 12.92 : qPow((part + 0.055) / 1.055, 2.4);
        };
        return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF());
    };
    const auto [darker, lighter] = std::minmax({luminance(a), luminance(b)});
    return (lighter + 0.05) / (darker + 0.05);
}

// The weakest and the strongest contrast of the image's pixels with `other`.
std::pair<double, double> Contrasts(const QImage& image, const QColor& other) {
    std::pair range(21.0, 1.0);
    for (int at = 0; at < image.width() * image.height(); ++at) {
        const double contrast = Contrast(image.pixelColor(at % image.width(), at / image.width()), other);
        range = {qMin(range.first, contrast), qMax(range.second, contrast)};
    }
    return range;
}

// The sum of all steps between neighbouring pixels, squared: blurring makes it smaller.
double Detail(const QImage& image) {
    double detail = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 1; x < image.width(); ++x) {
            detail += qPow(qGray(image.pixel(x, y)) - qGray(image.pixel(x - 1, y)), 2);
        }
    }
    return detail;
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
        QCOMPARE(game.Find("img1_1").pos(), QPoint(16, 24));
        QStringList sizes;
        for (const char* name : {"img4_2", "Image1", "imgNewGame", "imgRolled1", "lblRolled", "lblTotal", "lbl_col3",
                                 "lbl_row3", "img_row2", "img_col2"}) {
            const QSize size = game.Find(name).size();
            sizes << QString("%1x%2").arg(size.width()).arg(size.height());
        }
        QCOMPARE(sizes.join(' '), "50x50 197x75 197x75 50x50 87x55 73x33 49x17 33x17 32x48 48x40");
        QCOMPARE(game.Find("lblTotal").font().pixelSize(), 32);
    }

    void layout_data() {
        QTest::addColumn<QSize>("outer");
        QTest::addColumn<QString>("twips");
        QTest::newRow("the floor")
            << QSize(418, 541)
            << "img3_2.x=1085 img1_5.x=3620 lblTotal.x=4765 img_row1.x=4220 imgNewGame.x=3055 "
               "Image1.x=0 img2_1.y=1215.83 img5_5.y=3783.33 lbl_row2.y=1455.83 lbl_row3.y=2311.67 "
               "lbl_row4.y=3167.5 lbl_row5.y=4043.33 lbl_col1.y=5114.17 lblTotal.y=5039.17 "
               "img_col3.y=4383.33 Image1.y=5715 imgRolled2.y=5815 img_row3.y=2071.67";
        QTest::newRow("9000 by 10005 twips")
            << QSize(600, 667)
            << "img3_2.x=1540 img1_5.x=5440 lbl_row4.x=7040 lbl_col4.x=4140 img_row1.x=6040 "
               "img_col2.x=1555 img_col1.x=240 imgNewGame.x=3235 img2_1.y=1530.83 "
               "Image1.y=7605 lblRolled.y=7705";
    }
    void layout() {
        QFETCH(QSize, outer);
        QFETCH(QString, twips);
        GameDriver game;
        ResizeOuter(game.form, 900, 900);
        ResizeOuter(game.form, outer.width(), outer.height());
        for (const QString& entry : twips.split(' ')) {
            const QPoint corner = game.Find(entry.section('.', 0, 0)).pos();
            const int pixels = entry.contains(".x=") ? corner.x() : corner.y();
            QVERIFY2(pixels == ToPixels(entry.section('=', 1).toDouble()), qPrintable(entry));
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

    void floorsAndMinimising() {
        GameDriver game;
        const QSize smallest(418, 541);
        for (const QSize wanted : {QSize(417, 800), QSize(800, 540), smallest, QSize(1, 1), QSize(700, 700)}) {
            ResizeOuter(game.form, wanted.width(), wanted.height());
            QCOMPARE(Outer(game.form), wanted.expandedTo(smallest));
            QCOMPARE(game.Find("Line1").width(), Outer(game.form).width());
        }
        const QRect before = game.Find("img5_5").geometry();
        game.form.setWindowState(Qt::WindowMinimized);
        QResizeEvent resize(QSize(10, 10), game.form.size());
        QApplication::sendEvent(&game.form, &resize);
        QCOMPARE(game.Find("img5_5").geometry(), before);
    }

    void greenDialogs() {
        GameDriver game;
        for (const auto& [entry, name, caption, size, escapeCloses] :
             {std::tuple("mnuHelpHow", "frmHelp", "How To Play Kelvaro", QSize(426, 396), false),
              std::tuple("mnuHelpAbout", "frmAbout", "About Kelvaro", QSize(320, 166), true),
              std::tuple("mnuGameHigh", "frmHighScores", "High Scores", QSize(402, 143), false)}) {
            const auto check = [&, name = name, caption = caption, size = size,
                                escapeCloses = escapeCloses](QDialog& dialog) {
                QCOMPARE(dialog.objectName(), name);
                QCOMPARE(dialog.windowTitle(), caption);
                QCOMPARE(dialog.maximumSize(), size);
                QCOMPARE(dialog.minimumSize(), size);
                QVERIFY(dialog.parentWidget() == nullptr && dialog.isModal());
                const auto* button = dialog.findChild<QPushButton*>();
                QCOMPARE(button->text(), "OK");
                QVERIFY(dialog.focusWidget() == button || !GameDriver::HasKeyboard());
                QCOMPARE(dialog.grab().toImage().pixelColor(3, 3), QColor(0, 128, 0));
                for (const QLabel* label : dialog.findChildren<QLabel*>()) {
                    const QRect text =
                        label->fontMetrics().boundingRect(label->geometry(), Qt::TextWordWrap, label->text());
                    QVERIFY2(!text.intersects(button->geometry()), qPrintable(label->objectName()));
                }
                QTest::keyClick(&dialog, Qt::Key_Escape);
                QCOMPARE(dialog.isVisible(), !escapeCloses);
            };
            GameDriver::InDialog([&, entry = entry] { game.Choose(entry); }, check);
        }
    }

    // The list pictures' indices, sizes and depths; no visible box; and shapes that stand out against the table.
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
                for (const int side : {50, 63, 75, 100, 150}) {
                    const QImage shown = list.Rendering(index, {side, side}).toImage();
                    for (const QPoint corner : {QPoint(0, 0), QPoint(side - 1, 0), QPoint(0, side - 1)}) {
                        QVERIFY(IsTableGreen(shown.pixelColor(corner)));
                    }
                    // A disc is told from the table by its rim, not by its hue.
                    const bool isDisc = count == 13 && index > 1;
                    QVERIFY(Contrasts(isDisc ? shown.copy(0, side / 2, side / 8, 1) : shown, table).second >= 3);
                }
            }
        }
        const auto& cells = *dynamic_cast<PictureList*>(&game.Find<QObject>("ImageList2"));
        QVERIFY(Contrasts(cells.Image(13).copy(15, 15, 20, 20), Qt::white).first >= 4.5);
        QCOMPARE(different.size(), 19);
        QVERIFY(Contrast(Qt::white, table) >= 4.5 && Contrast(Qt::black, table) >= 3);
    }

    // At twice the pixels a picture shows detail that scaling up cannot.
    void picturesAreSharpAtEveryRatio() {
        GameDriver game;
        for (const char* name : {"img1_1", "Image1", "imgNewGame"}) {
            QWidget& control = game.Find(name);
            const auto grab = [&](qreal ratio) {
                QImage image((QSizeF(control.size()) * ratio).toSize(), QImage::Format_RGB32);
                image.setDevicePixelRatio(ratio);
                control.render(&image);
                return image;
            };
            const QImage sharp = grab(2);
            const QImage blurred = grab(1).scaled(sharp.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
            QVERIFY2(Detail(sharp) > 1.2 * Detail(blurred), name);
        }
    }
};

QTEST_MAIN(tst_window)
#include "tst_window.moc"
