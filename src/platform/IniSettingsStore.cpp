// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#include "platform/IniSettingsStore.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QStandardPaths>

#include <filesystem>
#include <utility>

#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <unistd.h>
#endif

using namespace Qt::StringLiterals;

namespace {

// Far above anything the game writes: a hostile file must not fill the memory or the time.
constexpr qint64 largestFile = 64 * 1024;

// The file's texts, none when there is no such file; nothing when it cannot be read.
std::optional<IniMap> ReadFile(const QString& fileName) {
    std::error_code error;
    const auto kind = std::filesystem::status(QFile::encodeName(fileName).toStdString(), error).type();
    if (kind == std::filesystem::file_type::not_found) {
        return IniMap();
    }
    QFile file(fileName);
    if (kind != std::filesystem::file_type::regular || !file.open(QIODevice::ReadOnly)) {
        return std::nullopt;
    }
    return ParseIni(QString::fromUtf8(file.read(largestFile)));
}

// A file that has taken another's name survives a power cut only once its folder is on disk too.
void SyncFolderOf(const QString& fileName) {
#ifdef Q_OS_UNIX
    const QByteArray folder = QFile::encodeName(QFileInfo(fileName).canonicalPath());
    const int handle = open(folder.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (handle >= 0) {
        fsync(handle);
        close(handle);
    }
#endif
}

} // namespace

QString IniSettingsStore::DefaultFileName() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + u"/Kelvaro/KVR.ini"_s;
}

IniSettingsStore::IniSettingsStore(QString fileName) : fileName_(std::move(fileName)) {
}

void IniSettingsStore::Refresh() {
    texts_ = ReadFile(fileName_);
}

std::optional<QString> IniSettingsStore::Read(const QString& section, const QString& key, const QString& fallback) {
    return texts_ ? std::optional(texts_->value({section, key}, fallback)) : std::nullopt;
}

void IniSettingsStore::Write(const QString& section, const QString& key, const QString& text) {
    staged_.insert({section, key}, text);
}

void IniSettingsStore::Commit() {
    const IniMap writes = std::exchange(staged_, {});
    auto texts = ReadFile(fileName_);
    if (!texts) {
        return;
    }
    texts->insert(writes);
    QDir().mkpath(QFileInfo(fileName_).path());
    const QByteArray bytes = ComposeIni(*texts).toUtf8();
    QSaveFile file(fileName_);
    // Flushed first: on a full disk the commit alone would put a file without its last bytes in the old one's place.
    if (file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.flush() && file.commit()) {
        SyncFolderOf(fileName_);
    }
}
