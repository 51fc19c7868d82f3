// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#include "platform/WindowsTheme.h"

#include <QSettings>

#include <qt_windows.h>

using namespace Qt::StringLiterals;

namespace {

bool IsDarkMode() {
    const QSettings theme(uR"(HKEY_CURRENT_USER\Software\Microsoft\Windows\CurrentVersion\Themes\Personalize)"_s,
                          QSettings::NativeFormat);
    return !theme.value(u"AppsUseLightTheme"_s, true).toBool();
}

bool IsHighContrast() {
    HIGHCONTRASTW contrast{sizeof contrast, 0, nullptr};
    SystemParametersInfoW(SPI_GETHIGHCONTRAST, sizeof contrast, &contrast, 0);
    return (contrast.dwFlags & HCF_HIGHCONTRASTON) != 0;
}

} // namespace

void FollowWindowsTheme() {
    // The native style of Qt 6.4 is light only; Fusion takes any colours. High contrast brings colours of its own.
    if (IsDarkMode() && !IsHighContrast()) {
        qputenv("QT_QPA_PLATFORM", "windows:darkmode=2");
        qputenv("QT_STYLE_OVERRIDE", "Fusion");
    }
}
