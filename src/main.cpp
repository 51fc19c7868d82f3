// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#include "controls/Application.h"
#include "mainwindow/Form1.h"
#include "platform/Platform.h"
#ifdef Q_OS_WIN
#include "platform/WindowsTheme.h"
#endif

#include <QImageReader>

#include <cstdio>
#include <cstdlib>

using namespace Qt::StringLiterals;

namespace {

QtMessageHandler standardHandler = nullptr;

// Without a display Qt aborts with a fatal message. This replaces the message and the core dump.
void ExplainFatal(QtMsgType type, const QMessageLogContext& context, const QString& message) {
    if (type == QtFatalMsg) {
        std::fputs("kelvaro: there is no display to open a window on, or no Qt platform plug-in for it\n", stderr);
        std::_Exit(EXIT_FAILURE);
    }
    standardHandler(type, context, message);
}

// Qt reads JPEG and ICO pictures with plug-ins. Without them the dice and the arrows would be invisible.
bool CanReadPictures() {
    return QImageReader(u":/pictures/die1.jpg"_s).canRead() && QImageReader(u":/pictures/arrow-down.ico"_s).canRead();
}

} // namespace

int main(int, char* argv[]) {
#ifdef Q_OS_WIN
    FollowWindowsTheme();
#endif
    // Set first, because newer Qt registers the id with the desktop while the application is created.
    QGuiApplication::setDesktopFileName(u"io.github.kelvaro.Kelvaro"_s);
    standardHandler = qInstallMessageHandler(ExplainFatal);
    Application application(argv);
    qInstallMessageHandler(standardHandler);

    if (!CanReadPictures()) {
        std::fputs("kelvaro: Qt cannot read the game's pictures: its JPEG or ICO plug-in is missing\n", stderr);
        return EXIT_FAILURE;
    }
    Form1 window(SystemPlatform());
    window.show();
    return QApplication::exec();
}
