// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QtCore>

struct Score {
    int points = 0;
    QString text;
};

using ScoreTable = QList<Score>; // five, the best first

// The content of the file that holds a table.
inline QString StoreContent(const ScoreTable& table) {
    QString scores, texts;
    for (int rank = 1; rank <= table.size(); ++rank) {
        scores += QString("Score%1=%2\n").arg(rank).arg(table[rank - 1].points);
        texts += QString("User%1=%2\n").arg(rank).arg(table[rank - 1].text);
    }
    return "[HighScores]\n" + scores + texts;
}

// One line of what is seen: a control, what it shows, and its name and hint for a screen reader.
inline QString Seen(const QString& control, QStringList details) {
    details.prepend(control);
    details.removeAll("");
    return details.join(" | ");
}

// Performs a script step by step, and notes what is seen and heard before each step and at the end. The player does it
// with the real window; the model works out what must be seen.
//
// A step is one of these:
//   img2_4          a click on a control, on a menu entry (mnuNewGame) or on a button of a dialog (ResetScores)
//   double:img2_4   a double click on a control
//   focus:img2_4    a screen reader moves the focus to a control
//   Ctrl+R          a key
//   close           the close box of the window or dialog
//   wait            waits until the news in a dialog's name is gone
//   3+4             says what the next dice are
//   again           the program starts again
//   copy:120        another copy of the game saves a table; its best score is 120
//   1:img2_4        any of these during the first pause of the preceding roll, with 2: during the second; without such
//   a
//                   pause at once
//
// These are for the player only:
//   press:img2_4    the mouse button goes down on a control and stays down
//   enlarge         makes the window larger
//   showMinimized   minimises the window; showNormal restores it
//   photo           takes a photo of the window or dialog
//
// While a dialog is open, clicks and keys go to it. Menu entries go to the window, as with a screen reader, except for
// rolling. A dialog that is open at the end of the script is closed.
class Performer {
public:
    virtual ~Performer() = default;

    QStringList Perform(const QString& script) {
        steps_ = script.split(' ', Qt::SkipEmptyParts);
        while (!steps_.isEmpty()) {
            PerformNext();
        }
        Note("At the end");
        return notes_;
    }

protected:
    static constexpr int passesOfAPause = 250'000;
    static inline const QStringList movesFocus{"Tab",  "Shift+Tab", "Left", "Right",   "Up",
                                               "Down", "Home",      "End",  "Num+Left"};

    virtual void Start() = 0;
    virtual void Save(const ScoreTable& table) = 0;
    virtual void Press(const QString& step, bool isInDialog) = 0; // a click or a key
    virtual bool IsDialogOpen() const = 0;
    virtual QStringList See() = 0;

    void PerformPause(int number) {
        while (!steps_.isEmpty() && steps_.first().startsWith(QString("%1:").arg(number))) {
            PerformNext();
        }
    }

    void PerformDialog() {
        while (IsDialogOpen()) {
            PerformNext();
        }
    }

    // The machine that the game runs on.
    QDateTime clock_{{2026, 12, 31}, {20, 58, 59}};
    QList<int> dice_{1, 1}; // of the next roll
    bool hasEnded_ = false; // whether the program has
    struct {
        int seed = -1;
        int passes = 0; // of the event loop, in its pauses
    } roll_;            // the last one

private:
    void PerformNext() {
        QString step = steps_.isEmpty() ? "close" : steps_.takeFirst(); // a dialog is open at the end of the script
        Note("Before " + step);
        step.remove(QRegularExpression("^[12]:"));
        clock_ = clock_.addSecs(52'132); // so that date, hour and second keep changing
        if (step.startsWith("copy:")) {
            const int best = step.sliced(5).toInt();
            Save({{best, "a"}, {best - 1, "<b>b"}, {best - 2, "c"}, {best - 3, "d"}, {best - 4, ""}});
        } else if (step[0].isDigit()) {
            dice_ = {step[0].digitValue(), step[2].digitValue()};
        } else if (step == "again" && !IsDialogOpen()) {
            hasEnded_ = false;
            Start();
        } else if (!hasEnded_) {
            Press(step, IsDialogOpen() && (!step.startsWith("mnu") || step == "mnuGameRoll"));
        }
    }

    void Note(const QString& when) {
        QStringList seen = See() << QString("roll: seed %1, %2 passes").arg(roll_.seed).arg(roll_.passes);
        seen << QString("program: %1").arg(hasEnded_ ? "has ended" : "runs");
        seen.removeAll("");
        seen.sort();
        // A comparison that fails shows a single line, so each line says when it was seen.
        const QString prefix = QString("%1, %2 more to go, ").arg(when).arg(steps_.size());
        notes_ << seen.replaceInStrings(QRegularExpression("^"), prefix);
    }

    QStringList steps_, notes_;
};
