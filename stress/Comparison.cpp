// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#include "Comparison.h"

#include "controls/Label.h"
#include "controls/Picture.h"

#include <QAction>
#include <QDialog>
#include <QFile>
#include <QStatusBar>
#include <QTest>

void WindowComparison::Compare(const RulesModel& model) {
    CompareCells(model);
    CompareLines(model);
    CompareRoll(model);
    QVERIFY(form_.focusWidget() != nullptr);
    QCOMPARE(form_.focusWidget()->objectName(), model.focus);
    for (std::int16_t rank = 1; rank <= 5; ++rank) {
        const auto& [score, text] = model.table[static_cast<std::size_t>(rank - 1)];
        QCOMPARE(form_.HighScores().Score(rank), score);
        QCOMPARE(form_.HighScores().Text(rank), text);
    }
}

void WindowComparison::CompareCells(const RulesModel& model) {
    for (int at = 0; at < 25; ++at) {
        const auto row = static_cast<std::int16_t>(1 + at / 5);
        const auto column = static_cast<std::int16_t>(1 + at % 5);
        const int value = model.At(row, column);
        QCOMPARE(form_.GameBoard().At(row, column), value);
        const auto& cell = Control<PictureButton>(QString("img%1_%2").arg(row).arg(column));
        QCOMPARE(cell.Index(), value == 0 ? 1 : value);
        QVERIFY(cell.accessibleName().endsWith(value == 0 ? ": empty" : QString(": %1").arg(value)));
    }
}

void WindowComparison::CompareLines(const RulesModel& model) {
    const auto scores = model.LineScores();
    for (int line = 0; line < 10; ++line) {
        const auto score = scores[static_cast<std::size_t>(line)];
        const QString suffix = QString(line < 5 ? "_row%1" : "_col%1").arg(1 + line % 5);
        for (const char* kind : {"lbl", "img", "lin"}) {
            QCOMPARE(Control<QWidget>(kind + suffix).isVisible(), score.has_value());
        }
        QVERIFY(!score || Control<Label>("lbl" + suffix).text() == QString::number(*score));
    }
    QCOMPARE(Control<Label>("lblTotal").text(), QString::number(model.Total()));
}

void WindowComparison::CompareRoll(const RulesModel& model) {
    QCOMPARE(form_.PendingRoll(), model.pending);
    QCOMPARE(Control<QStatusBar>("StatusBar1").findChild<QLabel*>()->text(), model.prompt);
    QCOMPARE(Control<QWidget>("Image1").isVisible(), model.canRoll);
    QCOMPARE(Control<QAction>("mnuGameRoll").isEnabled(), model.canRoll);
    QCOMPARE(Control<QWidget>("imgRolled1").isVisible(), model.showsFirst);
    QCOMPARE(Control<QWidget>("imgRolled2").isVisible(), model.showsSecond);
    QVERIFY(!model.showsFirst || Control<Picture>("imgRolled1").Index() == model.firstDie);
    QVERIFY(!model.showsSecond || Control<Picture>("imgRolled2").Index() == model.secondDie);
    QCOMPARE(Control<Label>("lblRolled").text(), model.sum);
}

void CompareHighScores(const QDialog& dialog, const RulesModel& model) {
    QCOMPARE(dialog.objectName(), "frmHighScores");
    for (int at = 0; at < 5; ++at) {
        const auto& [score, text] = model.table[static_cast<std::size_t>(at)];
        QCOMPARE(dialog.findChild<QLabel*>(QString("lblHighScore(%1)").arg(at))->text(),
                 QString("%1  %2").arg(score).arg(text));
    }
}

QByteArray StoreText(const RulesModel::Table& table) {
    QByteArray scores;
    QByteArray texts;
    for (int at = 0; at < 5; ++at) {
        const auto& [score, text] = table[static_cast<std::size_t>(at)];
        scores += "Score" + QByteArray::number(at + 1) + '=' + QByteArray::number(score) + '\n';
        texts += "User" + QByteArray::number(at + 1) + '=' + text.toUtf8() + '\n';
    }
    return "[HighScores]\n" + scores + texts;
}

void CompareStore(const QString& fileName, const RulesModel& model) {
    QFile file(fileName);
    if (file.exists()) {
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), StoreText(model.stored));
    } else {
        QVERIFY(model.stored == RulesModel::Table());
    }
}
