// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#include "platform/OperatingSystem.h"

#include <QDir>
#include <QSettings>
#include <QStandardPaths>
#include <QThread>

#include <io.h>
#include <qt_windows.h>

using namespace Qt::StringLiterals;

namespace {

// Calls `use` with the system's form of a file name.
template <typename Use> auto WithName(const QString& fileName, Use use) {
    return use(QDir::toNativeSeparators(fileName).toStdWString().c_str());
}

// Whether the handle's file is on disk. A file system that cannot sync says so.
bool Flush(HANDLE handle) {
    return FlushFileBuffers(handle) != 0 || GetLastError() == ERROR_INVALID_FUNCTION
           || GetLastError() == ERROR_NOT_SUPPORTED;
}

} // namespace

// In a service's session windows are made and never seen; Wine without a display makes none.
bool OperatingSystem::ShowsWindows() {
    USEROBJECTFLAGS station{};
    GetUserObjectInformationW(GetProcessWindowStation(), UOI_FLAGS, &station, sizeof station, nullptr);
    const HWND window = CreateWindowW(L"STATIC", nullptr, WS_POPUP, 0, 0, 0, 0, nullptr, nullptr, nullptr, nullptr);
    return (station.dwFlags & WSF_VISIBLE) != 0 && DestroyWindow(window);
}

// Qt's native style knows light colours only: where programs are to be dark, there is one that takes any.
void OperatingSystem::FollowDesktop() {
    const QSettings personal(uR"(HKEY_CURRENT_USER\Software\Microsoft\Windows\CurrentVersion\Themes\Personalize)"_s,
                             QSettings::NativeFormat);
    if (personal.value(u"AppsUseLightTheme"_s, 1).toInt() == 0) {
        qputenv("QT_QPA_PLATFORM", "windows:darkmode=2");
        qputenv("QT_STYLE_OVERRIDE", "Fusion");
    }
}

QString OperatingSystem::SettingsFile(const QString& name) {
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
    return folder.isEmpty() ? QString() : folder + u'/' + name; // not the root of some drive
}

OperatingSystem::Thing OperatingSystem::ThingNamed(const QString& fileName) {
    const DWORD attributes = WithName(fileName, [](const wchar_t* name) { return GetFileAttributesW(name); });
    if (attributes == INVALID_FILE_ATTRIBUTES) {
        const DWORD error = GetLastError();
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
