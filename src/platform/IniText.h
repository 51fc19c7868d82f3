// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QMap>
#include <QString>

#include <utility>

// Texts by section and key.
using IniMap = QMap<std::pair<QString, QString>, QString>;

// The text of an INI file as a map and back. Sections and keys are taken as they
// stand.
//
// A value is everything behind the first "=", without the blanks around it, to the letter: commas,
// semicolons, backslashes, a leading @ and stray quotes mean nothing. Only a value that is one quoted text as
// a whole, "like \"this\"", loses its quotes and has its escapes (\" \\ \n \r \t and \x with one to four hex
// digits) undone. What is no line of that kind is passed over; of two lines with the same key the last holds.
IniMap ParseIni(const QString& text);

// Parsing the result gives `map` again, whatever its texts hold.
QString ComposeIni(const IniMap& map);
