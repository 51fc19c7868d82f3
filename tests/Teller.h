// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QtTest>

// Scores with the texts beside them, best first.
using Table = QList<std::pair<int, QString>>;

// A place whose unit is so many to the pixel, in whole pixels.
inline QString Place(const QRectF& place, int unit = 1) {
    const auto in = [=](double length) { return QString::number(qRound(length / unit)); };
    return in(place.x()) + ' ' + in(place.y()) + ' ' + in(place.width()) + ' ' + in(place.height());
}

inline QByteArray Bytes(const QString& fileName) {
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

inline void Replace(const QString& fileName, const QByteArray& bytes) {
    QFile file(fileName);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
}

// Takes what a player does, word by word, and says before each, and at the end, what is to be seen.
//
// A word is the name of a control or menu entry (a click on it), a key ("Ctrl+R"), an outer size ("600x700"), the next
// dice ("3+4"), "close" (the window's close box), "again" (the program started anew) or "copy:120" (another copy of the
// game saves a table from 120 down). Words that begin with "1:" or "2:" are done inside the first or second pause of
// the roll before them. While a dialog is open the words are said to it; a dialog that is open at the end is closed.
//
// The machine under the game is a stand-in: the dice are as they were said, the clock goes on by some fifteen hours
// with each reading, and an end of the program is only remembered.
class Teller {
public:
    virtual ~Teller() = default;

    QStringList Tell(const QStringList& words) {
        words_ = words;
        told_.clear();
        while (!words_.isEmpty()) {
            DoNext();
        }
        Note("the end");
        return told_;
    }

protected:
    static constexpr int pause = 250'000; // passes

    virtual void Start() = 0;
    virtual void SetStore(const QString& content) = 0;
    virtual void Resize(const QSize& outer) = 0;
    virtual void Press(const QString& word) = 0;
    virtual bool IsDialogOpen() const = 0;
    virtual QStringList See() const = 0;

    void InPause(int number) {
        while (!words_.isEmpty() && words_.first().startsWith(QString("%1:").arg(number))) {
            DoNext();
        }
    }

    void InDialog() {
        while (IsDialogOpen()) {
            words_ += words_.isEmpty() ? QStringList("close") : QStringList();
            DoNext();
        }
    }

    QDateTime ReadClock() { return clock_ = clock_.addSecs(54'321); }

    static QString StoreOf(const Table& table) {
        QString scores, texts;
        for (int at = 0; at < 5; ++at) {
            scores += QString("Score%1=%2\n").arg(at + 1).arg(table[at].first);
            texts += QString("User%1=%2\n").arg(at + 1).arg(table[at].second);
        }
        return "[HighScores]\n" + scores + texts;
    }

    QList<int> dice_{1, 1};
    int seed_ = -1, passes_ = 0; // of the last roll: what re-seeded the dice, and how often events were let run
    bool hasEnded_ = false;

private:
    void DoNext() {
        const QString word = words_.takeFirst();
        Note("before " + word);
        Do(word.startsWith("1:") || word.startsWith("2:") ? word.sliced(2) : word);
    }

    void Note(const QString& when) {
        QStringList seen = See() << QString("seed %1, %2 passes, end %3").arg(seed_).arg(passes_).arg(hasEnded_);
        seen.sort();
        told_ += seen.replaceInStrings(QRegularExpression("^"), QString("%1 to go, %2: ").arg(words_.size()).arg(when));
    }

    void Do(const QString& word) {
        const QStringList numbers = word.split(QRegularExpression("[:+x]"));
        const int first = numbers.first().toInt(), second = numbers.last().toInt();
        if (word.startsWith("copy:")) {
            SetStore(
                StoreOf({{second, "a"}, {second - 1, "b"}, {second - 2, "c"}, {second - 3, "d"}, {second - 4, ""}}));
        } else if (word == "again" && !IsDialogOpen()) {
            hasEnded_ = false;
            Start();
        } else if (first > 0 && word.contains('+')) {
            dice_ = {first, second};
        } else if (first > 0 && !hasEnded_) {
            Resize({first, second});
        } else if (!hasEnded_ && word != "again") {
            Press(word);
        }
    }

    QStringList words_, told_;
    QDateTime clock_{{2026, 12, 31}, {20, 58, 59}};
};
