// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#include "platform/SettingsStore.h"

#include "platform/IniText.h"
#include "platform/OperatingSystem.h"

#include <QFileInfo>
#include <QSaveFile>

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1String section = "HighScores"_L1;

// In bytes, far above anything the game writes: a hostile file must not fill the memory or the time.
constexpr qint64 largestFile = 1024 * 1024;

// Does what other programs may keep from succeeding until it succeeds or they do not let go. Returns whether it did.
template <typename Action> bool Insist(Action action) {
    for (int failures = 1; !action(); ++failures) {
        if (!OperatingSystem::AwaitOthers(failures)) {
            return false;
        }
    }
    return true;
}

// The file's texts, none when there is no such file; nothing when it cannot be read.
std::optional<IniMap> ReadFile(const QString& fileName) {
    using OperatingSystem::Thing;
    const Thing thing = OperatingSystem::ThingNamed(fileName);
    if (thing == Thing::Nothing) {
        return IniMap();
    }
    QFile file(fileName);
    if (thing != Thing::PlainFile || !Insist([&] { return file.open(QIODevice::ReadOnly); })) {
        return std::nullopt;
    }
    const QByteArray bytes = file.read(largestFile + 1);
    if (file.error() != QFileDevice::NoError || bytes.size() > largestFile) {
        return std::nullopt;
    }
    return ParseIni(QString::fromUtf8(bytes));
}

// Makes what is missing of the folder's path. The root of a drive may be missing, and is its own parent.
void MakeFolder(const QString& path) {
    const QString parent = QFileInfo(path).path();
    if (parent != path && !QFileInfo::exists(path)) {
        MakeFolder(parent);
        OperatingSystem::MakeFolder(path);
    }
}

// Opens the file that is to take the name: with the mode of the one that has it, or for its owner alone.
bool Open(QSaveFile& file) {
    const bool isNew = !QFileInfo::exists(file.fileName());
    return file.open(QIODevice::WriteOnly)
           && (!isNew || file.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner));
}

// Puts a file of these bytes in the place of the one that has the name. They are on disk first: the commit alone would
// put a file that lacks bytes in the old one's place.
bool Replace(const QString& fileName, const QByteArray& bytes) {
    QSaveFile file(fileName);
    return Open(file) && file.write(bytes) == bytes.size() && file.flush() && OperatingSystem::Sync(file.handle())
           && file.commit();
}

} // namespace

std::optional<SettingsMap> SettingsStore::Read() const {
    const auto file = ReadFile(fileName_);
    if (!file) {
        return std::nullopt;
    }
    SettingsMap texts;
    for (const auto& [place, text] : file->asKeyValueRange()) {
        if (place.first == section) {
            texts.insert(place.second, text);
        }
    }
    return texts;
}

void SettingsStore::Write(const SettingsMap& texts) const {
    auto merged = ReadFile(fileName_);
    if (!merged) {
        return;
    }
    for (const auto& [key, text] : texts.asKeyValueRange()) {
        merged->insert({section, key}, text);
    }
    const QByteArray bytes = ComposeIni(*merged).toUtf8();
    if (bytes.size() > largestFile) {
        return;
    }
    MakeFolder(QFileInfo(fileName_).path());
    if (Insist([&] { return Replace(fileName_, bytes); })) {
        const QFileInfo folder(QFileInfo(fileName_).canonicalPath());
        OperatingSystem::SyncFolder(folder.filePath());
        OperatingSystem::SyncFolder(folder.path()); // the folder may be new too
    }
}
