// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#include "pictures/PictureList.h"

#include "platform/Int16.h"

using namespace Qt::StringLiterals;

PictureList::PictureList(const QString& stem, const QString& suffix, std::int16_t count) {
    for (std::int16_t index = 1; index <= count; index = CheckedAdd(index, 1)) {
        Add(stem + QString::number(index), suffix);
    }
}

PictureList::PictureList(const QString& name, const QString& suffix) {
    Add(name, suffix);
}

void PictureList::Add(const QString& name, const QString& suffix) {
    entries_.push_back({u":/pictures/%1.%2"_s.arg(name, suffix), u":/pictures/large/%1.png"_s.arg(name), {}, {}});
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
        const QImage source = own.size() == size ? own : QImage(At(index).largeFileName);
        rendering = QPixmap::fromImage(source.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    }
    return rendering;
}

const PictureList::Entry& PictureList::At(std::int16_t index) const {
    return entries_[static_cast<std::size_t>(CheckedIndex(index, 1, Count()) - 1)];
}
