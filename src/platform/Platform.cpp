// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#include "platform/Platform.h"

#include "platform/EntropyGenerator.h"
#include "platform/OperatingSystem.h"

#include <QCoreApplication>
#include <QDateTime>

#include <cstdlib>
#include <memory>

using namespace Qt::StringLiterals;

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
        .store = SettingsStore(OperatingSystem::SettingsFile(u"Kelvaro/KVR.ini"_s)),
    };
}
