// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <optional>

// A per-user store of texts addressed by section and key, which other running copies of the game share.
//
// No call ever reports a failure to the player: what cannot be read is nothing, what cannot be written is
// skipped.
class SettingsStore {
public:
    virtual ~SettingsStore() = default;

    // Takes up what the store holds now.
    virtual void Refresh() = 0;

    // The text as it stood at the last Refresh; `fallback` where the store has none; nothing where
    // the store cannot be read.
    virtual std::optional<QString> Read(const QString& section, const QString& key, const QString& fallback) = 0;

    virtual void Write(const QString& section, const QString& key, const QString& text) = 0;

    // Makes all writes since the last Commit permanent, together: whoever reads the store, or cuts the power,
    // finds all of them or none. They are on disk when the call returns.
    virtual void Commit() = 0;
};
