// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#include "platform/Platform.h"

#include "platform/EntropyGenerator.h"

#include <QCoreApplication>
#include <QDateTime>

#include <cstdlib>

using namespace Qt::StringLiterals;

namespace {

#ifdef Q_OS_WIN
constexpr auto settingsFormat = QSettings::NativeFormat; // the registry
#else
constexpr auto settingsFormat = QSettings::IniFormat;
#endif

std::unique_ptr<QSettings> OpenUserSettings() {
    auto settings = std::make_unique<QSettings>(settingsFormat, QSettings::UserScope, u"Kelvaro"_s, u"KVR"_s);
    settings->setFallbacksEnabled(false); // otherwise a missing key is looked up in Kelvaro.ini
    return settings;
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
        // Without destructors and exit handlers, because a dialog or a roll may be running.
        .endProcess = [] { std::_Exit(EXIT_SUCCESS); },
        .openSettings = OpenUserSettings,
    };
}
