// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QMap>
#include <QString>

#include <optional>
#include <utility>

// Texts by key.
using SettingsMap = QMap<QString, QString>;

// Where the high scores are kept: one section of an INI file. Other running copies of the game share the file, so both
// calls look at it anew. It is not locked: of two copies the one that ends a round later stands.
//
// No call ever reports a failure to the player: what cannot be read is nothing, what cannot be written is skipped. A
// thing that is no plain file (a directory, a pipe) under the file's name is never opened, and a file that cannot be
// read, or is larger than a mebibyte, never replaced.
//
// It is not QSettings because that keeps writes that were refused for later, waits for the locks of others and cannot
// say whether a file is on disk.
class SettingsStore {
public:
    explicit SettingsStore(QString fileName) : fileName_(std::move(fileName)) {}

    // The section as the file has it now, empty when there is no file; nothing when the file cannot be read.
    std::optional<SettingsMap> Read() const;

    // Writes the texts, all or none: whoever reads the file, or cuts the power, finds all of them or what was there
    // before. They are on disk when the call returns. Other keys and sections stay as they are in the file, and so does
    // its mode; what folders are missing are made, and they and a new file are for their owner alone.
    void Write(const SettingsMap& texts) const;

private:
    QString fileName_;
};
