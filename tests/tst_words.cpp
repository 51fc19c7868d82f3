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

} // namespace

class tst_words : public QObject {
    Q_OBJECT

private slots:
    void rows_data() {
        QTest::addColumn<QString>("words");
        const QString round = Times(25, "Space Return");
        QTest::newRow("only an open cell takes a roll")
            << "img2_4 3+4 Image1 Image1 img2_4 img2_4 Ctrl+R img2_4 img1_1 Image1 img5_5 Left Image1 Return";
        QTest::newRow("a round in the middle of the table, and the next without a question")
            << "copy:502 again 6+6 Space Space " + round + "Return Return Ctrl+R Up Space Ctrl+R";
        QTest::newRow("a tie goes below the older entry") << "copy:500 again " + round + "Escape Tab Space";
        QTest::newRow("a reset is undone by the next round")
            << "copy:400 again mnuGameHigh CancelButton " + round + "Return mnuGameHigh";
        QTest::newRow("a round that is no better is saved too") << "copy:600 again copy:700 " + round + "Ctrl+N";
        QTest::newRow("another copy's table is overwritten")
            << "copy:20 again " + round.chopped(7) + "copy:300 Return CancelButton again";
        QTest::newRow("the table is read anew, but what is no score keeps what was there")
            << "copy:90 again copy:40000 mnuGameHigh OKButton again copy:150 mnuGameHigh";
        QTest::newRow("a roll placed inside a pause")
            << "5+6 Image1 1:img3_3 img3_4 Image1 img3_4 Ctrl+R 2:Return 2:img3_4 mnuGameRoll img3_4";
        QTest::newRow("rolls within rolls")
            << "Space 1:Space 3+4 1:Space 1:Space 6+6 1:Space 2:Space 1:Space 2:Ctrl+R 2:Space Return";
        QTest::newRow("so many rolls within rolls that the last do not pause")
            << "copy:600 again Space " + Times(3, Times(51, "1:Space")) + Times(9, "2:Space") + "1:Space 2:F1";
        QTest::newRow("the end inside a pause")
            << Times(24, "Space Return") + "Image1 1:Return 1:Escape 1:OKButton 1:Image1 Ctrl+R Ctrl+Q Return";
        QTest::newRow("a new game inside a pause")
            << "Image1 1:Ctrl+N No 1:Ctrl+N Yes 2:img1_1 Image1 2:imgNewGame 2:Ctrl+Q img3_3";
        QTest::newRow("questions") << "Ctrl+N No Image1 Ctrl+N Escape imgNewGame Tab Return Ctrl+N Return Ctrl+Q close "
                                      "Ctrl+Q Tab Space Image1 mnuGameExit Yes img1_1 again Image1 1:close img2_2";
        QTest::newRow("dialogs") << "F1 Escape Ctrl+R Return mnuHelpHow Space mnuHelpAbout Escape mnuHelpAbout Space "
                                    "mnuHelpAbout cmdOK mnuGameHigh Escape Tab Tab Return F1 close";
        QTest::newRow("keys") << "Tab Tab Left Num+Up Home Down End Right Down Shift+Tab Up Tab Tab Enter Tab Tab Left "
                                 "Tab Shift+Tab Enter Image1 img5_5 Ctrl+N Yes Right";
        QTest::newRow("sizes")
            << "417x800 Image1 800x540 img1_1 418x541 1x1 700x700 600x667 1280x1024 419x542 8000x541";
    }

    void rows() {
        QFETCH(QString, words);
        const QStringList row = words.split(' ', Qt::SkipEmptyParts);
        QCOMPARE(Player().Tell(row), Model().Tell(row));
    }

    // KELVARO_WORDS says how many words are made up, and has them begin anywhere.
    void madeUpWords() {
        const int count = qEnvironmentVariableIntValue("KELVARO_WORDS");
        QRandomGenerator random = count > 0 ? QRandomGenerator::securelySeeded() : QRandomGenerator(20'261'115);
        const QStringList choices = MadeUpWords();
        for (int told = 0; told < qMax(count, 600); told += 200) {
            QStringList words;
            while (words.size() < 200) {
                words << choices[random.bounded(choices.size())];
            }
            const QStringList seen = Player().Tell(words), expected = Model().Tell(words);
            if (seen != expected) {
                qWarning().noquote() << "a new row:" << words.join(' ');
            }
            QCOMPARE(seen, expected);
        }
    }
};

QTEST_MAIN(tst_words)
#include "tst_words.moc"
