// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#include "platform/Platform.h"

#include "platform/EntropyGenerator.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QFile>

#include <cstdlib>
#include <memory>

#include <pwd.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

bool IsAbsolute(const QByteArray& path) {
    return path.startsWith('/');
}

// A session without HOME has the folder that the user's entry in the password file names.
QByteArray HomeFolder() {
    if (QByteArray home = qgetenv("HOME"); IsAbsolute(home)) {
        return home;
    }
    const passwd* user = getpwuid(getuid());
    return user == nullptr ? QByteArray() : QByteArray(user->pw_dir);
}

// Not from QStandardPaths, which follows a relative XDG_CONFIG_HOME, though the base-directory standard has it ignored,
// and takes the root folder for a missing HOME.
QString ConfigurationFolder() {
    const QByteArray moved = qgetenv("XDG_CONFIG_HOME");
    return QFile::decodeName(IsAbsolute(moved) ? moved : HomeFolder() + "/.config");
}

} // namespace

Platform SystemPlatform() {
    const auto generator = std::make_shared<EntropyGenerator>();
    return {
        .year = [] { return QDate::currentDate().year(); },
        .month = [] { return QDate::currentDate().month(); },
        .day = [] { return QDate::currentDate().day(); },
        .hour = [] { return QTime::currentTime().hour(); },
        .minute = [] { return QTime::currentTime().minute(); },
        .second = [] { return QTime::currentTime().second(); },
        .reseed = [generator](int seconds) { generator->Reseed(seconds); },
        .nextUniform = [generator] { return generator->Next(); },
        .pumpEvents = [] { QCoreApplication::processEvents(); },
        // No destructors and no exit handlers: the call may come from inside a dialog inside a roll.
        .endProcess = [] { std::_Exit(EXIT_SUCCESS); },
        .store = SettingsStore(ConfigurationFolder() + u"/Kelvaro/KVR.ini"_s),
    };
}
