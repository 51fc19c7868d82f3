// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#include "platform/SettingsStore.h"

#include "platform/IniText.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <cerrno>
#include <filesystem>

#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <unistd.h>
#endif

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1String section = "HighScores"_L1;

// In bytes, far above anything the game writes: a hostile file must not fill the memory or the time.
constexpr qint64 largestFile = 1024 * 1024;

// The file's texts, none when there is no such file; nothing when it cannot be read.
std::optional<IniMap> ReadFile(const QString& fileName) {
    // QFileInfo takes a thing that it may not look at for one that is not there.
    std::error_code error;
    const auto kind = std::filesystem::status(QFile::encodeName(fileName).toStdString(), error).type();
    if (kind == std::filesystem::file_type::not_found) {
        return IniMap();
    }
    QFile file(fileName);
    if (kind != std::filesystem::file_type::regular || !file.open(QIODevice::ReadOnly)) {
        return std::nullopt;
    }
    const QByteArray bytes = file.read(largestFile + 1);
    if (file.error() != QFileDevice::NoError || bytes.size() > largestFile) {
        return std::nullopt;
    }
    return ParseIni(QString::fromUtf8(bytes));
}

constexpr auto ownersFile = QFileDevice::ReadOwner | QFileDevice::WriteOwner;
constexpr auto ownersFolder = ownersFile | QFileDevice::ExeOwner;

// Makes what is missing of the folder's path.
void MakeFolder(const QString& path) {
    if (QFileInfo::exists(path)) {
        return;
    }
    MakeFolder(QFileInfo(path).path());
    if (QDir().mkdir(path, ownersFolder)) {
        QFile::setPermissions(path, ownersFolder); // the process's mask may have taken from it
    }
}

// Opens the file that is to take the name: with the mode of the one that has it, or for its owner alone.
bool Open(QSaveFile& file) {
    const bool isNew = !QFileInfo::exists(file.fileName());
    return file.open(QIODevice::WriteOnly) && (!isNew || file.setPermissions(ownersFile));
}

// Whether what was written is on disk. Some failures, a full disk among them, are told only here.
bool Sync(QSaveFile& file) {
#ifdef Q_OS_UNIX
    return fsync(file.handle()) == 0 || errno == EINVAL; // a file system that cannot sync says so
#else
    return true;
#endif
}

// A file that has taken another's name survives a power cut only once its folder is on disk too.
void SyncFolder(const QString& folder) {
#ifdef Q_OS_UNIX
    const int handle = open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (handle >= 0) {
        fsync(handle);
        close(handle);
    }
#endif
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
    QSaveFile file(fileName_);
    // Flushed and synced first: the commit alone would put a file that lacks bytes in the old one's place.
    if (Open(file) && file.write(bytes) == bytes.size() && file.flush() && Sync(file) && file.commit()) {
        const QFileInfo folder(QFileInfo(fileName_).canonicalPath());
        SyncFolder(folder.filePath());
        SyncFolder(folder.path()); // the folder may be new too
    }
}
