// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#include "mainwindow/Form1.h"
#include "platform/Clock.h"
#include "platform/EventPump.h"
#include "platform/IniSettingsStore.h"
#include "platform/Process.h"
#include "platform/UniformGenerator.h"

#include <QApplication>

int main(int argc, char* argv[]) {
    QApplication application(argc, argv);
    SystemClock clock;
    EntropyGenerator generator;
    QtEventPump pump;
    IniSettingsStore store;
    SystemProcess process;
    Form1 window({clock, generator, pump, store, process});
    window.show();
    return QApplication::exec();
}
