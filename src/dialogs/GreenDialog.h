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

// Whether a dialog or a question is open. The window under it can still be operated through the accessibility bus, so
// this is checked before another one is opened: dialogs must not pile up.
bool IsDialogOpen();

// What the three green dialogs share: a fixed size, controls at fixed places, in pixels at 96 dots per inch, and the
// centre of the screen. A dialog is created each time it is shown.
//
// Enter presses the button that has the focus. Escape presses the cancel button, if there is one.
class GreenDialog : public GreenSurface<QDialog> {
public:
    // Shows the dialog and returns when it is closed. It stays above `window` but is not owned by it. Does nothing
    // while another dialog is open.
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

    // Fits the text of each label into the space between the controls. Call it after all controls have been added.
    void FitLabels();

    // Gives all of `labels` the font size of the smallest. Call it after FitLabels.
    static void FitAlike(const std::vector<Label*>& labels);

    // Escape presses this button.
    void SetCancelButton(QPushButton* button) { cancelButton_ = button; }

    void Unload();

    void keyPressEvent(QKeyEvent* event) override;

private:
    QPushButton* cancelButton_ = nullptr;
};
