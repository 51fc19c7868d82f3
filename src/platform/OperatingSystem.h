// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

// What every operating system does in its own way: unix/ and windows/ have a file each that says how.
namespace OperatingSystem {

// What has a file's name. What may not be looked at is something else.
enum class Thing { Nothing, PlainFile, SomethingElse };

// The user's settings file of that name, under the folder in which programs keep theirs.
QString SettingsFile(const QString& name);

Thing ThingNamed(const QString& fileName);

// Makes a folder in a folder that is there, for its owner alone.
void MakeFolder(const QString& path);

// Whether what was written to the open file is on disk. Some failures, a full disk among them, are told only here.
bool Sync(int handle);

// A file that has taken another's name survives a power cut only once its folder is on disk too.
void SyncFolder(const QString& folder);

// Whether to try again what other programs may have kept from succeeding `failures` times, from 1 on. Waits until it is
// worth it.
bool AwaitOthers(int failures);

} // namespace OperatingSystem
