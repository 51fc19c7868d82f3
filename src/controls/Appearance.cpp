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
    // These share their widths and heights; whatever else a system falls back to is wider or taller. The first of them
    // is the design's MS Sans Serif at every size: the family of that name is of a few fixed sizes.
    static const QStringList preferred{u"Microsoft Sans Serif"_s, u"Arial"_s, u"Liberation Sans"_s, u"Arimo"_s,
                                       u"MS Sans Serif"_s};
    // One look at the list: asking for a family by name resolves aliases, a millisecond each.
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
