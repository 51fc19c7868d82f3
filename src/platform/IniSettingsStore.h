// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/IniText.h"
#include "platform/SettingsStore.h"

#include <QString>

#include <optional>

// The settings store in one INI file, which a commit replaces in one step. It is not locked: each commit writes what it
// was given into the file as it finds it, so of two copies of the game the one that ends a round later stands.
// A thing that is no plain file (a directory, a pipe) under the file's name is never opened, and a file that cannot be
// read, or is larger than a mebibyte, never replaced.
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
    QString fileName_;
    std::optional<IniMap> texts_; // as last read; nothing when that failed
    IniMap staged_;
};
