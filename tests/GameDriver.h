// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#pragma once

#include "Fakes.h"
#include "controls/Label.h"
#include "controls/Picture.h"
#include "mainwindow/Form1.h"

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QStatusBar>
#include <QTest>
#include <QTimer>

// The real window on a scripted platform, driven by the names of its controls.
struct GameDriver {
    FakePlatform platform;
    Form1 form{platform};

    GameDriver() {
        form.show();
        form.activateWindow();
        if (!QTest::qWaitForWindowExposed(&form) || (HasKeyboard() && !QTest::qWaitForWindowActive(&form))) {
            qFatal("the window was never shown");
        }
    }

    // The compositor that the tests run on activates nothing.
    static bool HasKeyboard() { return !QGuiApplication::platformName().startsWith("wayland"); }

    template <typename Control = QWidget> Control& Find(const QString& name) const {
        auto* found = dynamic_cast<Control*>(form.findChild<QObject*>(name));
        if (found == nullptr) {
            qFatal("no control named %s", qPrintable(name));
        }
        return *found;
    }

    QString Caption(const QString& name) const { return Find<Label>(name).text(); }
    bool IsShown(const QString& name) const { return Find(name).isVisible(); }
    bool CanRoll() const { return IsShown("Image1") && Find<QAction>("mnuGameRoll").isEnabled(); }
    QString Prompt() const { return Find<QStatusBar>("StatusBar1").findChild<QLabel*>()->text(); }

    void Click(const QString& name) { QTest::mouseClick(&Find(name), Qt::LeftButton); }
    void Choose(const QString& name) {
        QVERIFY2(Find<QAction>(name).isEnabled(), qPrintable(name));
        Find<QAction>(name).trigger();
    }
    static QString CellName(int row, int column) { return QString("img%1_%2").arg(row).arg(column); }

    void Roll(int firstDie, int secondDie) {
        platform.generator.dice = {firstDie, secondDie};
        Click("Image1");
    }
    void Place(int value, int row, int column) {
        Roll(value / 2, value - value / 2);
        Click(CellName(row, column));
    }
    // Fills the board from a text like "7 7 5 - 2 / ...", a row after the other, "-" leaving a cell empty.
    void Fill(const QString& board) {
        const QStringList rows = board.split(" / ");
        for (int row = 1; row <= rows.size(); ++row) {
            const QStringList values = rows[row - 1].split(' ');
            for (int column = 1; column <= values.size(); ++column) {
                if (values[column - 1] != "-") {
                    Place(values[column - 1].toInt(), row, column);
                }
            }
        }
    }
    // Runs `act` on the dialog or message box that `open` shows, and closes what `act` left open.
    template <typename Open, typename Act> static void InDialog(Open open, Act act) {
        bool wasShown = false;
        QTimer watch;
        QObject::connect(&watch, &QTimer::timeout, [&] {
            if (auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
                dialog && !wasShown && (dialog->isActiveWindow() || !HasKeyboard())) {
                wasShown = true;
                act(*dialog);
                dialog->close();
            }
        });
        watch.start(0);
        open();
        QVERIFY2(wasShown, "no dialog was shown");
    }
};
