// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#include "controls/Accessibility.h"
#include "mainwindow/Form1.h"
#include "platform/OperatingSystem.h"
#include "platform/Platform.h"

#include <QApplication>
#include <QImageReader>

#include <cstdio>
#include <cstdlib>

using namespace Qt::StringLiterals;

namespace {

[[noreturn]] void EndWithoutDisplay() {
    std::fputs("kelvaro: there is no display to open a window on, or no Qt platform plugin for it\n", stderr);
    std::_Exit(EXIT_FAILURE);
}

// Qt answers a missing display with a core dump.
void ExplainFatal(QtMsgType type, const QMessageLogContext&, const QString&) {
    if (type == QtFatalMsg) {
        EndWithoutDisplay();
    }
}

// Those that Qt leaves to plug-ins: without them the game would be played with invisible dice.
bool CanReadPictures() {
    return QImageReader(u":/pictures/die1.jpg"_s).canRead() && QImageReader(u":/pictures/arrow-down.ico"_s).canRead();
}

} // namespace

int main(int, char* argv[]) {
    if (!OperatingSystem::ShowsWindows()) {
        EndWithoutDisplay();
    }
    OperatingSystem::FollowDesktop();
    const QtMessageHandler standardHandler = qInstallMessageHandler(ExplainFatal);
    int noArguments = 1; // only the program's name: the game takes no command line, Qt's own options included
    QApplication application(noArguments, argv);
    qInstallMessageHandler(standardHandler);

    if (!CanReadPictures()) {
        std::fputs("kelvaro: Qt cannot read the game's pictures: its JPEG or ICO plug-in is missing\n", stderr);
        return EXIT_FAILURE;
    }
    QGuiApplication::setDesktopFileName(u"io.github.kelvaro.Kelvaro"_s);
    InstallAccessibility();
    Form1 window(SystemPlatform());
    window.show();
    return QApplication::exec();
}
