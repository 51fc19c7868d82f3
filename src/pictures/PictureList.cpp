// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#include "pictures/PictureList.h"

#include "platform/Int16.h"

using namespace Qt::StringLiterals;

namespace {

QString FileName(const QString& name, const QString& suffix) {
    return u":/pictures/"_s + name + u'.' + suffix;
}

QString LargeFileName(const QString& name) {
    return FileName(u"large/"_s + name, u"png"_s);
}

bool Covers(const QSize& larger, const QSize& smaller) {
    return larger.expandedTo(smaller) == larger;
}

} // namespace

PictureList::PictureList(const QString& stem, const QString& suffix, std::int16_t count) {
    for (std::int16_t index = 1; index <= count; index = CheckedAdd(index, 1)) {
        const QString name = stem + QString::number(index);
        entries_.push_back({FileName(name, suffix), LargeFileName(name), {}, {}});
    }
}

PictureList::PictureList(const QString& name, const QString& suffix)
    : entries_{{FileName(name, suffix), LargeFileName(name), {}, {}}} {
}

const QImage& PictureList::Image(std::int16_t index) const {
    const Entry& entry = At(index);
    if (entry.image.isNull()) {
        entry.image.load(entry.fileName);
    }
    return entry.image;
}

QPixmap PictureList::Rendering(std::int16_t index, const QSize& size) const {
    QPixmap& rendering = At(index).renderings[size];
    if (rendering.isNull()) {
        const QImage& own = Image(index);
        const QImage source = Covers(own.size(), size) ? own : QImage(At(index).largeFileName);
        rendering = QPixmap::fromImage(
            source.size() == size ? source : source.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    }
    return rendering;
}

const PictureList::Entry& PictureList::At(std::int16_t index) const {
    return entries_[static_cast<std::size_t>(CheckedIndex(index, 1, Count()) - 1)];
}
