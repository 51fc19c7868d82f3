// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#include "platform/OperatingSystem.h"

#include <QDir>
#include <QFile>

#include <cerrno>
#include <filesystem>

#include <fcntl.h>
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

} // namespace

// Not from QStandardPaths, which follows a relative XDG_CONFIG_HOME, though the base-directory standard has it ignored,
// and takes the root folder for a missing HOME.
QString OperatingSystem::SettingsFile(const QString& name) {
    const QByteArray moved = qgetenv("XDG_CONFIG_HOME");
    return QFile::decodeName(IsAbsolute(moved) ? moved : HomeFolder() + "/.config") + u'/' + name;
}

// QFileInfo takes a thing that it may not look at for one that is not there.
OperatingSystem::Thing OperatingSystem::ThingNamed(const QString& fileName) {
    std::error_code error;
    switch (std::filesystem::status(QFile::encodeName(fileName).toStdString(), error).type()) {
    case std::filesystem::file_type::not_found:
        return Thing::Nothing;
    case std::filesystem::file_type::regular:
        return Thing::PlainFile;
    default:
        return Thing::SomethingElse;
    }
}

void OperatingSystem::MakeFolder(const QString& path) {
    constexpr auto ownersFolder = QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner;
    if (QDir().mkdir(path, ownersFolder)) {
        QFile::setPermissions(path, ownersFolder); // the process's mask may have taken from it
    }
}

bool OperatingSystem::Sync(int handle) {
    return fsync(handle) == 0 || errno == EINVAL; // a file system that cannot sync says so
}

void OperatingSystem::SyncFolder(const QString& folder) {
    const int handle = open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (handle >= 0) {
        fsync(handle);
        close(handle);
    }
}

// No file is busy here.
bool OperatingSystem::AwaitOthers(int) {
    return false;
}
