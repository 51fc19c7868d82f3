// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#pragma once

#include "controls/Appearance.h"
#include "controls/GreenSurface.h"

#include <QDialog>
#include <QRect>
#include <QString>

#include <vector>

class Label;
class QPushButton;

// Whether a dialog or a question is open. What it covers can still be pressed through the accessibility bus, so
// whatever opens one asks first: they must not pile up.
bool IsDialogOpen();

// What the game's fixed green dialogs share: a client area of a fixed size with controls at fixed places, in
// pixels at 96 dots per inch, shown modally in the middle of the screen. A dialog is made for each showing
// and unloaded with it.
//
// Escape closes a dialog only through its cancel button, and Enter presses the button that has the focus.
class GreenDialog : public GreenSurface<QDialog> {
public:
    // Shows the dialog and returns when it is closed. It stays above `window` but has no owner. Shows nothing while
    // another dialog is open.
    void ShowModal(const QWidget& window);

protected:
    struct LabelDesign {
        QString name;
        QRect place;
        QColor colour;
        TypeSize size;
        QFont::Weight weight;
        QString caption;
    };

    GreenDialog(const QString& name, const QString& caption, const QSize& clientSize);

    Label* AddLabel(const LabelDesign& design);
    QPushButton* AddButton(const QString& name, const QString& caption, const QRect& place);

    // Keeps every label's text clear of the controls right of it and below it. Call when all controls are there.
    void FitLabels();

    // Gives all of `labels` the size of the one that had to be made smallest. Call after FitLabels.
    static void FitAlike(const std::vector<Label*>& labels);

    // Makes the button the one that Escape presses.
    void SetCancelButton(QPushButton* button) { cancelButton_ = button; }

    void Unload();

    void keyPressEvent(QKeyEvent* event) override;

private:
    QPushButton* cancelButton_ = nullptr;
};
