// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#include "controls/Appearance.h"
#include "controls/GreenTable.h"
#include "controls/Label.h"
#include "controls/LineShape.h"
#include "controls/Picture.h"
#include "mainwindow/Form1.h"
#include "mainwindow/SpokenNames.h"
#include "platform/Int16.h"
#include "scoring/BoardLines.h"

#include <QIcon>
#include <QLayout>
#include <QMenuBar>
#include <QStatusBar>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr int strikeThickness = 8;
constexpr int separatorThickness = 4;
constexpr std::int16_t emptyCellPicture = 1;
constexpr int statusBarHeight = 17;
constexpr QSize designClient(410, 487);

// Twips. Cells stand 840 apart; the strike lines' ends are irregular by design.
constexpr double firstLeft = 240;
constexpr double firstTop = 360;
constexpr double pitch = 840;
constexpr double cellSize = 750;

constexpr std::array<LineShape::Ends, Board::Side> rowStrikes{{
    {4080, 720, 480, 720},
    {3960, 1560, 600, 1560},
    {3960, 2400, 600, 2400},
    {4080, 3240, 600, 3240},
    {3960, 4080, 600, 4080},
}};
constexpr std::array<LineShape::Ends, Board::Side> columnStrikes{{
    {585, 4080, 585, 720},
    {1440, 4320, 1440, 720},
    {2280, 4200, 2280, 720},
    {3120, 4200, 3120, 720},
    {3960, 4200, 3960, 720},
}};

// What the pointer lights up: the inside of a cell's dotted edge, and the plates of the two picture buttons.
const PictureButton::HotArea cellArea{{2.5, 2.5, 45, 45}, 6};
const PictureButton::HotArea rollPlate{{15, 10, 167, 52}, 14};
const PictureButton::HotArea newGamePlate{{24, 10, 165, 52}, 14};

constexpr double Nth(double first, std::int16_t number) {
    return first + pitch * (number - 1);
}

QString Suffix(const BoardLine& line) {
    const bool isRow = line.kind == BoardLine::Kind::Row;
    return (isRow ? u"_row"_s : u"_col"_s) + QString::number(line.number);
}

template <typename Control> Control* Named(Control* control, const QString& name) {
    control->setObjectName(name);
    return control;
}

Label* NewReadOut(QWidget* table, const QString& name, TypeSize size, const QString& designCaption) {
    auto* label = Named(new Label(table, LabelFont(size, QFont::Bold), Colours::white, Qt::AlignHCenter), name);
    label->SetCaption(designCaption);
    return label;
}

} // namespace

Form1::Form1(Platform platform)
    : platform_(std::move(platform)), imageList1_(u"die"_s, u"jpg"_s, 6), imageList2_(u"cell"_s, u"png"_s, 13),
      rollPicture_(u"roll"_s, u"png"_s), newGamePicture_(u"newgame"_s, u"png"_s), rowArrow_(u"arrow-right"_s, u"ico"_s),
      columnArrow_(u"arrow-down"_s, u"ico"_s) {
    setObjectName(u"Form1"_s);
    setWindowTitle(u"Kelvaro"_s);
    setWindowIcon(QPixmap(u":/pictures/kelvaro.png"_s));
    Named(&imageList1_, u"ImageList1"_s)->setParent(this);
    Named(&imageList2_, u"ImageList2"_s)->setParent(this);

    ComposeMenus();
    auto* table = new GreenTable<QWidget>;
    table->setAccessibleName(u"Game table"_s);
    setCentralWidget(table);
    // Back to front: strike lines under the cells that they join; in the strip, which is crowded in a narrow window,
    // the new-game button, the sum, the roll button and the dice.
    ComposeStrikeLines(table);
    ComposeCells(table);
    ComposeReadOuts(table);
    ComposeButtonStrip(table);
    ComposeStatusBar();

    // The floor of the window's size is the layout's own.
    layout()->setSizeConstraint(QLayout::SetNoConstraint);
    resize(designClient + QSize(0, menuBar()->sizeHint().height()));
}

void Form1::ComposeMenus() {
    const auto addMenu = [this](const char* name, const char* caption) {
        return Named(menuBar()->addMenu(QLatin1String(caption)), QLatin1String(name));
    };
    const auto addEntry = [this](QMenu* menu, const char* name, const char* caption, const QKeySequence& shortcut,
                                 void (Form1::*handler)()) {
        QAction* entry = Named(menu->addAction(QLatin1String(caption), this, handler), QLatin1String(name));
        entry->setShortcut(shortcut);
        return entry;
    };

    QMenu* game = addMenu("mnuGame", "&Game");
    addEntry(game, "mnuNewGame", "&New Game", Qt::CTRL | Qt::Key_N, &Form1::mnuNewGame_Click);
    mnuGameRoll_ = addEntry(game, "mnuGameRoll", "&Roll Dice", Qt::CTRL | Qt::Key_R, &Form1::mnuGameRoll_Click);
    addEntry(game, "mnuGameHigh", "High Scores", {}, &Form1::mnuGameHigh_Click);
    Named(game->addSeparator(), u"mnuspace"_s);
    addEntry(game, "mnuGameExit", "E&xit", Qt::CTRL | Qt::Key_Q, &Form1::mnuGameExit_Click);

    QMenu* help = addMenu("mnuHelp", "&Help");
    addEntry(help, "mnuHelpHow", "How To Play", Qt::Key_F1, &Form1::mnuHelpHow_Click);
    addEntry(help, "mnuHelpAbout", "&About Kelvaro", {}, &Form1::mnuHelpAbout_Click);
}

void Form1::ComposeStrikeLines(QWidget* table) {
    for (std::size_t at = 0; at < boardLines.size(); ++at) {
        const BoardLine& line = boardLines[at];
        const auto& strikes = line.kind == BoardLine::Kind::Row ? rowStrikes : columnStrikes;
        const auto& ends = strikes[static_cast<std::size_t>(line.number - 1)];
        auto* strike = new LineShape(table, ends, strikeThickness, Colours::black);
        lineControls_[at].strike = Named(strike, u"lin"_s + Suffix(line));
        strike->hide();
    }
}

void Form1::ComposeCells(QWidget* table) {
    for (std::int16_t row = 1; row <= Board::Side; row = CheckedAdd(row, 1)) {
        for (std::int16_t column = 1; column <= Board::Side; column = CheckedAdd(column, 1)) {
            auto* cell = Named(new PictureButton(table, cellArea), u"img%1_%2"_s.arg(row).arg(column));
            cell->Place(Nth(firstLeft, column), Nth(firstTop, row), cellSize, cellSize);
            cell->SetPicture(imageList2_, emptyCellPicture);
            cell->SetWouldAct([=, this] { return pendingRoll_ != 0 && board_.At(row, column) == 0; });
            connect(cell, &PictureButton::clicked, this, [=, this] { PlaceRoll(*cell, row, column); });
            cells_[static_cast<std::size_t>((row - 1) * Board::Side + column - 1)] = cell;
        }
    }
}

void Form1::ComposeReadOuts(QWidget* table) {
    for (std::size_t at = 0; at < boardLines.size(); ++at) {
        const BoardLine& line = boardLines[at];
        LineControls& controls = lineControls_[at];
        controls.marker = Named(new Picture(table), u"img"_s + Suffix(line));
        controls.readOut = NewReadOut(table, u"lbl"_s + Suffix(line), TypeSize::Chart, u"55"_s);
        if (line.kind == BoardLine::Kind::Row) {
            controls.marker->SetPicture(rowArrow_, 1);
            controls.marker->Place(4200, Nth(firstTop, line.number), 480, 720);
            controls.readOut->Place(4800, Nth(600, line.number), 495, 255);
        } else {
            controls.marker->SetPicture(columnArrow_, 1);
            controls.marker->Place(Nth(firstLeft, line.number), 4320, 720, 600);
            controls.readOut->Place(Nth(firstLeft, line.number), 5160, 735, 255);
        }
        controls.marker->hide();
        controls.readOut->hide();
    }
    lblTotal_ = NewReadOut(table, u"lblTotal"_s, TypeSize::Numeral, u"222"_s);
    lblTotal_->Place(4560, 5040, 1095, 495);
}

void Form1::ComposeButtonStrip(QWidget* table) {
    line1_ = Named(new LineShape(table, {0, 5640, 6120, 5640}, separatorThickness, Colours::white), u"Line1"_s);

    imgNewGame_ = Named(new PictureButton(table, newGamePlate), u"imgNewGame"_s);
    imgNewGame_->SetPicture(newGamePicture_, 1);
    imgNewGame_->setAccessibleName(u"New Game"_s);
    imgNewGame_->Place(3120, 5760, 2955, 1125);
    connect(imgNewGame_, &PictureButton::clicked, this, &Form1::imgNewGame_Click);

    lblRolled_ = Named(new Label(table, LabelFont(TypeSize::Numeral, QFont::Bold), Colours::white, Qt::AlignLeft),
                       u"lblRolled"_s);
    lblRolled_->SetBackground(Colours::table);
    lblRolled_->Place(2040, 5880, 1305, 825);

    image1_ = Named(new PictureButton(table, rollPlate), u"Image1"_s);
    image1_->SetPicture(rollPicture_, 1);
    image1_->setAccessibleName(u"Roll Dice"_s);
    image1_->Place(0, 5760, 2955, 1125);
    connect(image1_, &PictureButton::clicked, this, &Form1::Image1_Click);

    imgRolled1_ = Named(new Picture(table), u"imgRolled1"_s);
    imgRolled1_->Place(240, 5880, 750, 750);
    imgRolled2_ = Named(new Picture(table), u"imgRolled2"_s);
    imgRolled2_->Place(1080, 5880, 750, 750);
    for (Picture* die : {imgRolled1_, imgRolled2_}) {
        die->SetPicture(imageList1_, 1);
        die->hide();
    }
}

void Form1::ComposeStatusBar() {
    QStatusBar* bar = Named(statusBar(), u"StatusBar1"_s);
    bar->setFixedHeight(statusBarHeight);
    bar->setSizeGripEnabled(false);
    prompt_ = new Label(bar);
    bar->addWidget(prompt_, 1);
}

PictureButton& Form1::Cell(std::int16_t row, std::int16_t column) const {
    CheckedIndex(row, 1, Board::Side);
    CheckedIndex(column, 1, Board::Side);
    return *cells_[static_cast<std::size_t>((row - 1) * Board::Side + column - 1)];
}

Form1::LineControls& Form1::Row(std::int16_t row) {
    return lineControls_[static_cast<std::size_t>(CheckedIndex(row, 1, Board::Side) - 1)];
}

Form1::LineControls& Form1::Column(std::int16_t column) {
    return lineControls_[static_cast<std::size_t>(Board::Side + CheckedIndex(column, 1, Board::Side) - 1)];
}

void Form1::ShowCell(PictureButton& cell, std::int16_t row, std::int16_t column) {
    const RollValue value = board_.At(row, column);
    cell.SetPicture(imageList2_, value == 0 ? emptyCellPicture : value);
    cell.setAccessibleName(SpokenNames::Cell(row, column, value));
}

void Form1::ShowSum(const QString& caption) {
    lblRolled_->SetCaption(caption);
    lblRolled_->setAccessibleName(SpokenNames::Roll(pendingRoll_));
}

void Form1::RepaintHoveredCell() {
    for (PictureButton* cell : cells_) {
        if (cell->underMouse()) {
            cell->update();
        }
    }
}

void Form1::SetPrompt(const QString& prompt) {
    prompt_->SetCaption(prompt);
}
