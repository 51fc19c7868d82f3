// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/SettingsStore.h"

#include <QSettings>
#include <QString>

#include <optional>

// The settings store in one INI file.
//
// Locking between copies of the game and the replacement of the whole file in one step are QSettings' own.
// Writes that could not be made permanent are kept and tried again with the next Commit. A thing that is not
// a plain file (a directory, a pipe) under the file's name is never opened.
class IniSettingsStore final : public SettingsStore {
public:
    // Where this user's scores are: Kelvaro/KVR.ini in the configuration directory of the desktop.
    static QString DefaultFileName();

    explicit IniSettingsStore(QString fileName = DefaultFileName());

    void Refresh() override;
    std::optional<QString> Read(const QString& section, const QString& key, const QString& fallback) override;
    void Write(const QString& section, const QString& key, const QString& text) override;
    void Commit() override;

private:
    bool IsUsable() const;
    QSettings& Settings();

    QString fileName_;
    std::optional<QSettings> settings_;
    bool isReadable_ = false;
};
