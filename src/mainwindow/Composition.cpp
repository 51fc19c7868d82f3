// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#include "controls/Appearance.h"
#include "controls/GreenSurface.h"
#include "controls/Label.h"
#include "controls/LineShape.h"
#include "controls/Picture.h"
#include "controls/Twips.h"
#include "mainwindow/Design.h"
#include "mainwindow/Form1.h"
#include "mainwindow/SpokenNames.h"

#include <QMenuBar>
#include <QStatusBar>

using namespace Qt::StringLiterals;

namespace {

// In pixels.
constexpr int strikeThickness = 8;
constexpr int separatorThickness = 4;
constexpr int statusBarHeight = 17;

QString Suffix(const BoardLine& line) {
    const bool isRow = line.kind == BoardLine::Kind::Row;
    return (isRow ? u"_row"_s : u"_col"_s) + QString::number(line.number);
}

// The place of a line's control. `first` is its place in the first row or column.
QRectF PlaceFor(const BoardLine& line, const QRectF& first) {
    const double step = Design::pitch * (line.number - 1);
    return line.kind == BoardLine::Kind::Row ? first.translated(0, step) : first.translated(step, 0);
}

template <typename Control> Control* Named(Control* control, const QString& name) {
    control->setObjectName(name);
    return control;
}

Label* NewLabel(QWidget* table, const QString& name, TypeSize size, Qt::AlignmentFlag alignment) {
    return Named(new Label(table, LabelFont(size, QFont::Bold), Colours::white, alignment), name);
}

} // namespace

void Form1::Compose() {
    Named(&imageList1_, u"ImageList1"_s)->setParent(this);
    Named(&imageList2_, u"ImageList2"_s)->setParent(this);
    ComposeMenus();
    auto* table = new GreenSurface<QWidget>;
    table->setAccessibleName(u"Game table"_s);
    setCentralWidget(table);
    // From back to front. Strike lines and markers lie under the cells, so that numbers and the focus stay visible. In
    // a narrow window the sum covers the edge of the new-game button, and the roll button covers the sum.
    ComposeStrikesAndMarkers(table);
    ComposeCells(table);
    ComposeReadOuts(table);
    ComposeButtonStrip(table);
    ComposeStatusBar();
}

void Form1::ComposeMenus() {
    const auto addMenu = [this](const QString& name, const QString& caption) {
        return Named(menuBar()->addMenu(caption), name);
    };
    const auto addEntry = [this](QMenu* menu, const QString& name, const QString& caption, const QKeySequence& shortcut,
                                 void (Form1::*handler)()) {
        QAction* entry = Named(menu->addAction(caption, this, handler), name);
        entry->setShortcut(shortcut);
        return entry;
    };

    QMenu* game = addMenu(u"mnuGame"_s, u"&Game"_s);
    addEntry(game, u"mnuNewGame"_s, u"&New Game"_s, Qt::CTRL | Qt::Key_N, &Form1::mnuNewGame_Click);
    mnuGameRoll_ = addEntry(game, u"mnuGameRoll"_s, u"&Roll Dice"_s, Qt::CTRL | Qt::Key_R, &Form1::mnuGameRoll_Click);
    addEntry(game, u"mnuGameHigh"_s, u"High Scores"_s, {}, &Form1::mnuGameHigh_Click);
    Named(game->addSeparator(), u"mnuspace"_s);
    addEntry(game, u"mnuGameExit"_s, u"E&xit"_s, Qt::CTRL | Qt::Key_Q, &Form1::mnuGameExit_Click);

    QMenu* help = addMenu(u"mnuHelp"_s, u"&Help"_s);
    addEntry(help, u"mnuHelpHow"_s, u"How To Play"_s, Qt::Key_F1, &Form1::mnuHelpHow_Click);
    addEntry(help, u"mnuHelpAbout"_s, u"&About Kelvaro"_s, {}, &Form1::mnuHelpAbout_Click);
}

void Form1::ComposeStrikesAndMarkers(QWidget* table) {
    for (const BoardLine& line : boardLines) {
        auto* strike = Named(new LineShape(table, Design::Strike(line), strikeThickness), u"lin"_s + Suffix(line));
        strike->hide();
        const bool isRow = line.kind == BoardLine::Kind::Row;
        auto* marker = Named(new Picture(table), u"img"_s + Suffix(line));
        marker->SetPicture(isRow ? rowArrow_ : columnArrow_, 1);
        Place(*marker, PlaceFor(line, isRow ? Design::rowMarker : Design::columnMarker));
        marker->hide();
        lines_.push_back({.line = line, .marker = marker, .strike = strike});
    }
}

void Form1::ComposeCells(QWidget* table) {
    for (const CellPosition& position : boardCells) {
        const std::int16_t row = position.row;
        const std::int16_t column = position.column;
        auto* cell = Named(new PictureButton(table, Design::emptyCellArea), u"img%1_%2"_s.arg(row).arg(column));
        Place(*cell, Design::cell.translated(Design::pitch * (column - 1), Design::pitch * (row - 1)));
        ShowCell(*cell, row, column);
        const auto isOpen = [=, this] { return pendingRoll_ != 0 && board_.At(row, column) == 0; };
        cell->SetWouldAct(isOpen);
        cell->SetIsNext(isOpen);
        cell->SetPreview([=, this] { return isOpen() ? RevealedRoll() : RollValue{0}; });
        cell->SetHint([=, this] { return cell == &CurrentCell() ? speech_.StepHint(RevealedRoll()) : QString(); });
        connect(cell, &PictureButton::clicked, this, [=, this] { PlaceRoll(*cell, row, column); });
        cell->installEventFilter(this);
        cells_[Board::Element(row, column)] = cell;
    }
}

void Form1::ComposeReadOuts(QWidget* table) {
    for (LineControls& controls : lines_) {
        const BoardLine& line = controls.line;
        const bool isRow = line.kind == BoardLine::Kind::Row;
        controls.readOut = NewLabel(table, u"lbl"_s + Suffix(line), TypeSize::Chart, Qt::AlignHCenter);
        controls.readOut->SetCaption(u"55"_s);
        Place(*controls.readOut, PlaceFor(line, isRow ? Design::rowReadOut : Design::columnReadOut));
        controls.readOut->hide();
    }
    lblTotal_ = NewLabel(table, u"lblTotal"_s, TypeSize::Numeral, Qt::AlignHCenter);
    lblTotal_->SetCaption(u"222"_s);
    Place(*lblTotal_, Design::total);
}

void Form1::ComposeButtonStrip(QWidget* table) {
    const auto addButton = [=, this](const QString& name, const QString& spokenName, const PictureList& picture,
                                     const PictureButton::HotArea& plate, const QRectF& place,
                                     void (Form1::*handler)()) {
        auto* button = Named(new PictureButton(table, plate), name);
        button->SetPicture(picture, 1);
        button->setAccessibleName(spokenName);
        Place(*button, place);
        connect(button, &PictureButton::clicked, this, handler);
        return button;
    };
    const auto addDie = [=, this](const QString& name, const QRectF& place) {
        auto* die = Named(new Picture(table), name);
        die->SetPicture(imageList1_, 1);
        Place(*die, place);
        die->hide();
        return die;
    };

    line1_ = Named(new LineShape(table, Design::separator, separatorThickness, Colours::white), u"Line1"_s);
    imgNewGame_ = addButton(u"imgNewGame"_s, u"New Game"_s, newGamePicture_, Design::newGamePlate,
                            Design::newGameButton, &Form1::imgNewGame_Click);
    imgNewGame_->SetIsNext([this] { return board_.IsFull(); });
    lblRolled_ = NewLabel(table, u"lblRolled"_s, TypeSize::Numeral, Qt::AlignLeft);
    lblRolled_->SetBackground(Colours::table);
    Place(*lblRolled_, Design::sum);
    lblRolled_->SetMiddle(Design::firstDie.height() / 2 / twipsPerPixel);
    image1_ = addButton(u"Image1"_s, u"Roll Dice"_s, rollPicture_, Design::rollPlate, Design::rollButton,
                        &Form1::Image1_Click);
    imgRolled1_ = addDie(u"imgRolled1"_s, Design::firstDie);
    imgRolled2_ = addDie(u"imgRolled2"_s, Design::secondDie);
}

void Form1::ComposeStatusBar() {
    QStatusBar* bar = Named(statusBar(), u"StatusBar1"_s);
    bar->setFixedHeight(statusBarHeight);
    bar->setSizeGripEnabled(false);
    prompt_ = new Label(bar);
    bar->addWidget(prompt_, 1);
}
