// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#include "controls/Appearance.h"

#include <QFontDatabase>
#include <QGuiApplication>
#include <QStringList>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

QString LabelFamily() {
    // These families have the same widths and heights; others are wider or taller. Microsoft Sans Serif is the scalable
    // form of MS Sans Serif, which has bitmaps of a few sizes only.
    static const QStringList preferred{u"Microsoft Sans Serif"_s, u"Arial"_s, u"Liberation Sans"_s, u"Arimo"_s,
                                       u"MS Sans Serif"_s};
    // The list is read once, because asking for a family by name resolves aliases, which takes a millisecond each.
    const QStringList installed = QFontDatabase::families();
    const auto found =
        std::ranges::find_if(preferred, [&](const QString& family) { return installed.contains(family); });
    return found == preferred.end() ? QGuiApplication::font().family() : *found;
}

} // namespace

QFont LabelFont(TypeSize size, QFont::Weight weight) {
    static const QString family = LabelFamily();
    QFont font(family);
    font.setPixelSize(static_cast<int>(size));
    font.setWeight(weight);
    return font;
}
