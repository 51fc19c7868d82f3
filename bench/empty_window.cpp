// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

// An empty window with a menu bar and a status bar: the smallest program to compare the game with.

#include <QApplication>
#include <QMainWindow>
#include <QMenuBar>
#include <QStatusBar>

int main(int argc, char* argv[]) {
    QApplication application(argc, argv);
    QMainWindow window;
    window.setWindowTitle(QStringLiteral("Kelvaro"));
    window.menuBar()->addMenu(QStringLiteral("&Game"))->addAction(QStringLiteral("E&xit"));
    window.statusBar()->setSizeGripEnabled(false);
    window.setGeometry(432, 261, 416, 516);
    window.show();
    return QApplication::exec();
}
