// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#include "mainwindow/Speech.h"

#include "controls/Accessibility.h"
#include "mainwindow/Prompts.h"
#include "mainwindow/SpokenNames.h"

#include <QDialog>
#include <QStatusBar>
#include <QTimer>

#include <chrono>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

QString ToPlace(RollValue roll) {
    return u"%1 to place"_s.arg(roll);
}

} // namespace

Speech::Speech(QStatusBar* statusBar) : announcer_(new Announcer(statusBar)) {
}

void Speech::NewGame() {
    hasFinishedLine_ = false;
    Report(u"New game."_s);
}

void Speech::Rolled(std::int16_t firstDie, std::int16_t secondDie) {
    Report(u"%1 and %2: %3."_s.arg(firstDie).arg(secondDie).arg(firstDie + secondDie));
}

void Speech::Placed(const CellPosition& cell, RollValue value) {
    placedCell_ = cell;
    hasFinishedLine_ = false;
    Report(u"%1 in row %2, column %3."_s.arg(value).arg(cell.row).arg(cell.column));
}

void Speech::LineScored(const BoardLine& line, std::int16_t points) {
    if (line.Holds(placedCell_)) {
        hasFinishedLine_ = true;
        Report(SpokenNames::Line(line, points) + u'.');
    }
}

void Speech::TotalScored(std::int16_t points) {
    if (hasFinishedLine_) {
        Report(SpokenNames::Total(points) + u'.');
    }
}

void Speech::GameOver() {
    Report(Prompts::over);
}

void Speech::RoundRanked(std::optional<std::int16_t> rank) {
    Report(rank ? u"Rank %1."_s.arg(*rank) : u"Not among the five best."_s);
}

void Speech::ScoresReset() {
    Report(u"The scores are reset."_s);
}

void Speech::Announce() {
    if (!reports_.isEmpty()) {
        steps_ = 0;
        announcer_->Announce(std::exchange(reports_, {}));
    }
}

void Speech::AnnounceIn(QDialog& dialog) {
    using namespace std::chrono_literals;
    if (!reports_.isEmpty()) {
        dialog.setAccessibleName(std::exchange(reports_, {}) + u' ' + dialog.windowTitle());
        // By then a screen reader has read the name. From now on it is the title again.
        QTimer::singleShot(3s, &dialog, [&dialog] { dialog.setAccessibleName(QString()); });
    }
}

void Speech::RefuseCell(bool isFilled) {
    announcer_->Announce(isFilled ? u"This cell is filled."_s : u"There is no roll to place."_s);
}

void Speech::RefuseRoll(RollValue revealedRoll, bool isOver) {
    if (isOver) {
        announcer_->Announce(u"The game is over."_s);
    } else if (revealedRoll != 0) {
        announcer_->Announce(ToPlace(revealedRoll) + u'.');
    }
}

QString Speech::StepHint(RollValue revealedRoll) const {
    return revealedRoll != 0 && steps_ == 1 ? ToPlace(revealedRoll) : QString();
}

void Speech::Report(const QString& sentence) {
    reports_ += reports_.isEmpty() ? sentence : u' ' + sentence;
}
