// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#include "dialogs/GreenDialog.h"

#include "controls/Accessibility.h"
#include "controls/Label.h"
#include "controls/ScreenPlace.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPushButton>
#include <QWindow>

#include <algorithm>

namespace {

// The distance in pixels between a text and the control to its right.
constexpr int gap = 3;

// The part of `place`, from its top left corner, that no other control of the dialog covers.
QSize RoomWithin(const QRect& place, const QWidget& control, const QWidget& dialog) {
    QRect room = place & dialog.rect();
    for (const QObject* child : dialog.children()) {
        const auto* other = qobject_cast<const QWidget*>(child);
        if (other == nullptr || other == &control || !other->geometry().intersects(room)) {
            continue;
        }
        const QRect taken = other->geometry();
        if (taken.left() > room.left() && taken.top() <= room.top()) {
            room.setRight(taken.left() - 1 - gap);
        } else if (taken.top() > room.top()) {
            room.setBottom(taken.top() - 1);
        }
    }
    return room.size();
}

// Makes the caption smaller until it fits: the button has a fixed size, but the desktop chooses the font.
void FitCaption(QPushButton& button) {
    constexpr QMargins edge(5, 3, 5, 3);
    constexpr int smallest = 6;
    QFont font = button.font();
    font.setPixelSize(button.fontInfo().pixelSize());
    const auto fits = [&] {
        const QSize needed = QFontMetrics(font).size(Qt::TextSingleLine, button.text()).grownBy(edge);
        return needed.expandedTo(button.size()) == button.size();
    };
    while (!fits() && font.pixelSize() > smallest) {
        font.setPixelSize(font.pixelSize() - 1);
        button.setFont(font);
    }
}

} // namespace

bool IsDialogOpen() {
    return QApplication::activeModalWidget() != nullptr;
}

GreenDialog::GreenDialog(const QString& name, const QString& caption, const QSize& clientSize) {
    setObjectName(name);
    setWindowTitle(caption);
    setWindowFlags(Qt::Dialog | Qt::MSWindowsFixedSizeDialogHint | Qt::CustomizeWindowHint | Qt::WindowTitleHint
                   | Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint);
    setFixedSize(clientSize);
}

void GreenDialog::ShowModal(const QWidget& window) {
    AwaitSpokenKey();
    if (IsDialogOpen()) {
        return;
    }
    // Moved before the native window exists, because a later move would place the client area, not the frame. The frame
    // will be like that of the main window.
    const QSize outer = size().grownBy(window.windowHandle()->frameMargins());
    move(ScreenPlace(outer, *window.screen()));
    setWindowIcon(window.windowIcon());
    winId();
    windowHandle()->setTransientParent(window.windowHandle());
    exec();
}

Label* GreenDialog::AddLabel(const LabelDesign& design) {
    auto* label = new Label(this, LabelFont(design.size, design.weight), design.colour, Qt::AlignLeft);
    label->setObjectName(design.name);
    label->setGeometry(design.place);
    label->SetCaption(design.caption);
    return label;
}

QPushButton* GreenDialog::AddButton(const QString& name, const QString& caption, const QRect& place) {
    auto* button = new QPushButton(caption, this);
    button->setObjectName(name);
    button->setGeometry(place);
    button->setAutoDefault(false); // otherwise the dialog makes it a default button
    FitCaption(*button);
    return button;
}

void GreenDialog::FitLabels() {
    for (QObject* child : children()) {
        if (auto* label = dynamic_cast<Label*>(child)) {
            label->SetRoom(RoomWithin(label->geometry(), *label, *this));
        }
    }
}

void GreenDialog::FitAlike(const std::vector<Label*>& labels) {
    const auto fitted = [](const Label* label) { return label->font().pixelSize(); };
    const int smallest = fitted(*std::ranges::min_element(labels, {}, fitted));
    for (Label* label : labels) {
        label->SetLargestSize(smallest);
    }
}

void GreenDialog::Unload() {
    done(QDialog::Accepted);
}

void GreenDialog::keyPressEvent(QKeyEvent* event) {
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (auto* button = qobject_cast<QPushButton*>(focusWidget()); isEnter && button != nullptr) {
        button->click();
    } else if (event->key() != Qt::Key_Escape) {
        QDialog::keyPressEvent(event);
    } else if (cancelButton_ != nullptr) {
        cancelButton_->click();
    }
}
