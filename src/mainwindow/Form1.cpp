// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#include "mainwindow/Form1.h"

#include "controls/Label.h"
#include "controls/Picture.h"
#include "mainwindow/Design.h"
#include "mainwindow/SpokenNames.h"

#include <QMenuBar>
#include <QStatusBar>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr std::int16_t emptyCellPicture = 1;
constexpr QSize designClient(410, 487);

} // namespace

Form1::Form1(Platform platform)
    : platform_(std::move(platform)), speech_(statusBar()), imageList1_(u"die"_s, u"jpg"_s, 6),
      imageList2_(u"cell"_s, u"png"_s, 13), rollPicture_(u"roll"_s, u"png"_s), newGamePicture_(u"newgame"_s, u"png"_s),
      rowArrow_(u"arrow-right"_s, u"ico"_s), columnArrow_(u"arrow-down"_s, u"ico"_s) {
    setObjectName(u"Form1"_s);
    setWindowTitle(u"Kelvaro"_s);
    setWindowIcon(QPixmap(u":/pictures/kelvaro.png"_s)); // on Windows, the icon of the program is used instead
    Compose();
    resize(designClient + QSize(0, menuBar()->sizeHint().height()));
}

PictureButton& Form1::Cell(std::int16_t row, std::int16_t column) const {
    return *cells_[Board::Element(row, column)];
}

void Form1::ShowCell(PictureButton& cell, std::int16_t row, std::int16_t column) {
    const RollValue value = board_.At(row, column);
    cell.SetPicture(imageList2_, value == 0 ? emptyCellPicture : value);
    cell.SetHotArea(value == 0 ? Design::emptyCellArea : Design::discArea);
    cell.setAccessibleName(SpokenNames::Cell(row, column, value));
}

void Form1::ShowSum(const QString& caption) {
    lblRolled_->SetCaption(caption);
    lblRolled_->setAccessibleName(SpokenNames::Roll(pendingRoll_));
}

void Form1::RepaintEffects() {
    centralWidget()->update();
}
