// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

// A copy of the game that plays by itself on the user's own store, for others to end it, starve it or run it twice.
// Usage: rounds COUNT SEED
// Says "saving KEY=TEXT;..." before it writes a table and "saved" when the write has returned.

#include "mainwindow/Form1.h"
#include "platform/Clock.h"
#include "platform/EventPump.h"
#include "platform/IniSettingsStore.h"
#include "platform/Process.h"
#include "platform/UniformGenerator.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QStringList>
#include <QTimer>

#include <cstdio>
#include <cstdlib>

using namespace Qt::StringLiterals;

namespace {

struct AnnouncingStore final : SettingsStore {
    IniSettingsStore file;
    QStringList written;

    void Refresh() override { file.Refresh(); }
    std::optional<QString> Read(const QString& section, const QString& key, const QString& fallback) override {
        return file.Read(section, key, fallback);
    }
    void Write(const QString& section, const QString& key, const QString& text) override {
        written << key + u'=' + text;
        file.Write(section, key, text);
    }
    void Commit() override {
        std::printf("saving %s\n", qPrintable(written.join(u';')));
        std::fflush(stdout);
        written.clear();
        file.Commit();
        std::puts("saved");
        std::fflush(stdout);
    }
};

struct NoPump final : EventPump {
    void Pass() override {}
};

void PlayRound(const Form1& form) {
    for (int cell = 0; cell < 25; ++cell) {
        form.findChild<QAction*>(u"mnuGameRoll"_s)->trigger();
        form.findChild<QAbstractButton*>(u"img%1_%2"_s.arg(1 + cell / 5).arg(1 + cell % 5))->click();
    }
    form.findChild<QAction*>(u"mnuNewGame"_s)->trigger();
}

} // namespace

int main(int argc, char* argv[]) {
    QApplication application(argc, argv);
    if (argc != 3) {
        std::fputs("usage: rounds COUNT SEED\n", stderr);
        return EXIT_FAILURE;
    }
    SystemClock clock;
    EntropyGenerator generator(static_cast<std::uint32_t>(std::atoi(argv[2])));
    NoPump pump;
    AnnouncingStore store;
    SystemProcess process;
    Form1 form({clock, generator, pump, store, process});
    form.show();
    QTimer closesDialogs;
    closesDialogs.callOnTimeout([] {
        if (QWidget* dialog = QApplication::activeModalWidget()) {
            dialog->close();
        }
    });
    closesDialogs.start(0);
    for (int round = std::atoi(argv[1]); round > 0; --round) {
        PlayRound(form);
    }
    return EXIT_SUCCESS;
}
