// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

// Ten thousand store files that no game has written, each loaded, shown and saved over.

#include "GameDriver.h"
#include "highscores/frmHighScores.h"
#include "platform/IniSettingsStore.h"

#include <QFile>
#include <QRandomGenerator>
#include <QTemporaryDir>

namespace {

QRandomGenerator dice(20261121);

int Below(int bound) {
    return dice.bounded(bound);
}

QByteArray RandomBytes(int length) {
    QByteArray bytes(length, '\0');
    for (char& byte : bytes) {
        byte = static_cast<char>(Below(256));
    }
    return bytes;
}

// A text with some of what a file's syntax is made of.
QByteArray SyntaxBits(int length) {
    static const QByteArray alphabet =
        QByteArray("\"\\[]=;#@,%. \n\r\tnx41-+9ScoreUser\xff\xc3\xa9\xef\xbb\xbf") + '\0';
    QByteArray bytes;
    while (bytes.size() < length) {
        bytes += alphabet[Below(static_cast<int>(alphabet.size()))];
    }
    return bytes;
}

QByteArray GoodFile() {
    QByteArray file("[HighScores]\n");
    for (int rank = 1; rank <= 5; ++rank) {
        file += "Score" + QByteArray::number(rank) + '=' + QByteArray::number(Below(500)) + "\nUser"
                + QByteArray::number(rank) + "=2026/11/15 0:59\n";
    }
    return file;
}

QByteArray WithValue(const QByteArray& value) {
    return GoodFile() + "Score2=" + value + "\nUser3=" + value + '\n';
}

QByteArray Mutated() {
    QByteArray file = GoodFile();
    for (int changes = 1 + Below(8); changes > 0; --changes) {
        file.replace(Below(static_cast<int>(file.size())), Below(4), SyntaxBits(Below(4)));
    }
    return file;
}

struct Kind {
    const char* name;
    QByteArray (*make)();
};

const Kind kinds[] = {
    {"random bytes", [] { return RandomBytes(Below(400)); }},
    {"syntax at random", [] { return "[HighScores]\n" + SyntaxBits(Below(400)); }},
    {"truncated", [] { return GoodFile().left(Below(200)); }},
    {"mutated", Mutated},
    {"mutated once more", Mutated},
    {"a huge number", [] { return WithValue(QByteArray(1 + Below(2000), '9') + '.' + QByteArray(Below(2000), '5')); }},
    {"a huge text", [] { return WithValue(QByteArray(Below(70'000), static_cast<char>(' ' + Below(90)))); }},
    {"deep escapes", [] { return WithValue('"' + QByteArray("\\\\x\\").repeated(Below(500)) + '"'); }},
    {"a BOM and CRLF", [] { return "\xef\xbb\xbf" + Mutated().replace("\n", "\r\n"); }},
    {"a swelling foreign text", [] { return "[A]\nk=" + QByteArray(Below(150'000), '\x01') + '\n' + GoodFile(); }},
    {"many lines", [] { return QByteArray("Score1=1\n[x]\n").repeated(Below(3000)) + GoodFile(); }},
};

} // namespace

class store_files : public QObject {
    Q_OBJECT

private slots:
    void loadedShownAndSavedOver() {
        constexpr int files = 10'000;
        const QTemporaryDir folder;
        const QString name = folder.filePath("KVR.ini");
        IniSettingsStore store(name);
        for (int made = 0; made < files; ++made) {
            const Kind& kind = kinds[static_cast<std::size_t>(made) % std::size(kinds)];
            QFile file(name);
            QVERIFY(file.open(QIODevice::WriteOnly));
            file.write(kind.make());
            file.close();

            HighScoreTable table;
            table.Load(store);
            frmHighScores dialog(table, store);
            QVERIFY2(!dialog.grab().isNull(), kind.name);
            table.Set(1, static_cast<std::int16_t>(made % 1000), "saved");
            table.Save(store);

            HighScoreTable again;
            again.Load(store);
            for (std::int16_t rank = 1; rank <= HighScoreTable::Ranks; ++rank) {
                QVERIFY2(again.Caption(rank) == table.Caption(rank), kind.name);
            }
        }
        qInfo("%d files of %zu kinds", files, std::size(kinds));
    }
};

QTEST_MAIN(store_files)
#include "store_files.moc"
