// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#include "platform/IniSettingsStore.h"

#include "platform/IniText.h"

#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

// Far above anything the game writes; a hostile file must not fill the memory.
constexpr qint64 largestFile = 16 * 1024 * 1024;

// QSettings' own INI format would take commas, semicolons, quotes and backslashes in a text for its syntax.
QSettings::Format LiteralIniFormat() {
    static const QSettings::Format format = QSettings::registerFormat(
        u"ini"_s,
        [](QIODevice& device, QSettings::SettingsMap& map) {
            map = ParseIni(QString::fromUtf8(device.read(largestFile)));
            return true;
        },
        [](QIODevice& device, const QSettings::SettingsMap& map) {
            const QByteArray bytes = ComposeIni(map).toUtf8();
            return device.write(bytes) == bytes.size();
        });
    return format;
}

QString Path(const QString& section, const QString& key) {
    return section + u'/' + key;
}

} // namespace

QString IniSettingsStore::DefaultFileName() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + u"/Kelvaro/KVR.ini"_s;
}

IniSettingsStore::IniSettingsStore(QString fileName) : fileName_(std::move(fileName)) {
}

void IniSettingsStore::Refresh() {
    isReadable_ = false;
    if (!IsUsable()) {
        return;
    }
    Settings().sync();
    isReadable_ = !QFile::exists(fileName_) || QFile(fileName_).open(QIODevice::ReadOnly);
}

std::optional<QString> IniSettingsStore::Read(const QString& section, const QString& key, const QString& fallback) {
    if (!isReadable_) {
        return std::nullopt;
    }
    return Settings().value(Path(section, key), fallback).toString();
}

void IniSettingsStore::Write(const QString& section, const QString& key, const QString& text) {
    if (IsUsable()) {
        Settings().setValue(Path(section, key), text);
    }
}

void IniSettingsStore::Commit() {
    if (IsUsable()) {
        Settings().sync();
    }
}

bool IniSettingsStore::IsUsable() const {
    const QFileInfo file(fileName_);
    return !file.exists() || file.isFile();
}

QSettings& IniSettingsStore::Settings() {
    if (!settings_) {
        settings_.emplace(fileName_, LiteralIniFormat());
    }
    return *settings_;
}
