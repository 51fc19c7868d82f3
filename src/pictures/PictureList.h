// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QHash>
#include <QImage>
#include <QObject>
#include <QPixmap>
#include <QSize>
#include <QString>

#include <cstdint>
#include <vector>

// Pictures of one kind, looked up by index, 1..Count(); any other index throws SubscriptError.
//
// Each picture exists in its own size and as a larger rendering, from which all other sizes are made. Both are loaded
// when they are first needed.
class PictureList final : public QObject {
public:
    // The pictures :/pictures/<stem>1.<suffix> to <stem><count>.<suffix>, and their larger renderings
    // :/pictures/large/<stem>1.png and so on.
    PictureList(const QString& stem, const QString& suffix, std::int16_t count);

    // A list of a single picture, :/pictures/<name>.<suffix>.
    PictureList(const QString& name, const QString& suffix);

    std::int16_t Count() const { return static_cast<std::int16_t>(entries_.size()); }

    const QString& FileName(std::int16_t index) const { return At(index).fileName; }

    // The picture in exactly `size` device pixels, as sharp as possible.
    QPixmap Rendering(std::int16_t index, const QSize& size) const;

private:
    struct Entry {
        QString fileName;
        QString largeFileName;
        mutable QImage image;
        mutable QHash<QSize, QPixmap> renderings;
    };

    const QImage& Image(std::int16_t index) const; // in its own size
    void Add(const QString& name, const QString& suffix);
    const Entry& At(std::int16_t index) const;

    std::vector<Entry> entries_;
};
