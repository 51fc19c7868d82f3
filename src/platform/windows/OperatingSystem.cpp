// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#include "platform/OperatingSystem.h"

#include <QDir>
#include <QStandardPaths>
#include <QThread>

#include <io.h>
#include <qt_windows.h>

using namespace Qt::StringLiterals;

namespace {

// Calls `use` with the system's form of a file name, the one that may be of any length: Qt opens files by it too.
template <typename Use> auto WithName(const QString& fileName, Use use) {
    const QString name = QDir::toNativeSeparators(fileName);
    const bool isOnOtherMachine = name.startsWith(uR"(\\)"_s);
    const QString longName = isOnOtherMachine ? uR"(\\?\UNC)"_s + name.mid(1) : uR"(\\?\)"_s + name;
    return use(longName.toStdWString().c_str());
}

// Whether the handle's file is on disk. A file system that cannot sync says so.
bool Flush(HANDLE handle) {
    return FlushFileBuffers(handle) != 0 || GetLastError() == ERROR_INVALID_FUNCTION
           || GetLastError() == ERROR_NOT_SUPPORTED;
}

} // namespace

QString OperatingSystem::SettingsFile(const QString& name) {
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
    return folder.isEmpty() ? QString() : folder + u'/' + name; // not the root of some drive
}

OperatingSystem::Thing OperatingSystem::ThingNamed(const QString& fileName) {
    if (fileName.isEmpty()) {
        return Thing::SomethingElse; // there is no folder for settings
    }
    DWORD attributes = 0;
    DWORD error = 0;
    int failures = 0;
    do {
        WithName(fileName, [&](const wchar_t* name) {
            attributes = GetFileAttributesW(name);
            error = GetLastError();
        });
        // What is just being replaced may not be looked at for a moment.
    } while (attributes == INVALID_FILE_ATTRIBUTES && error == ERROR_ACCESS_DENIED && AwaitOthers(++failures));
    if (attributes == INVALID_FILE_ATTRIBUTES) {
        const bool isMissing = error == ERROR_FILE_NOT_FOUND || error == ERROR_PATH_NOT_FOUND;
        return isMissing ? Thing::Nothing : Thing::SomethingElse;
    }
    const bool isPlain = (attributes & (FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_DEVICE)) == 0;
    return isPlain ? Thing::PlainFile : Thing::SomethingElse;
}

// The user's folder, which it is made in, is the user's alone and hands that down.
void OperatingSystem::MakeFolder(const QString& path) {
    QDir().mkdir(path);
}

bool OperatingSystem::Sync(int handle) {
    return Flush(reinterpret_cast<HANDLE>(_get_osfhandle(handle)));
}

void OperatingSystem::SyncFolder(const QString& folder) {
    const HANDLE handle = WithName(folder, [](const wchar_t* name) {
        constexpr DWORD everyone = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
        return CreateFileW(name, GENERIC_WRITE, everyone, nullptr, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr);
    });
    if (handle != INVALID_HANDLE_VALUE) {
        Flush(handle);
        CloseHandle(handle);
    }
}

// A file that another copy of the game reads, or a virus scanner, can be neither opened nor replaced for that moment.
bool OperatingSystem::AwaitOthers(int failures) {
    constexpr int mostFailures = 20;
    constexpr int wait = 50; // milliseconds: a second in all
    if (failures == mostFailures) {
        return false;
    }
    QThread::msleep(wait);
    return true;
}
