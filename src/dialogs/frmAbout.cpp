// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#include "dialogs/frmAbout.h"

#include "controls/Label.h"
#include "controls/LineShape.h"
#include "controls/Picture.h"
#include "controls/Twips.h"

#include <QPushButton>

using namespace Qt::StringLiterals;

frmAbout::frmAbout()
    : GreenDialog(u"frmAbout"_s, u"About Kelvaro"_s, QSize(320, 166)), titlePicture_(u"title"_s, u"jpg"_s) {
    auto* picture = new Picture(this);
    picture->setObjectName(u"Image1"_s);
    picture->SetPicture(titlePicture_, 1);
    picture->setAccessibleName(u"A red disc and a die"_s);
    picture->setGeometry(8, 8, 72, 76);

    // A white line under a grey one, one pixel lower, looks like an engraved line.
    auto* light = new LineShape(this, {ToTwips(7), ToTwips(121), ToTwips(312), ToTwips(121)}, 2, Colours::white);
    light->setObjectName(u"Line1(0)"_s);
    auto* dark = new LineShape(this, {ToTwips(6), ToTwips(120), ToTwips(312), ToTwips(120)}, 1, Colours::grey);
    dark->setObjectName(u"Line1(1)"_s);

    const auto addText = [this](const QString& name, const QRect& place, const QString& caption) {
        return AddLabel({name, place, Colours::white, TypeSize::Text, QFont::Normal, caption});
    };
    auto* okButton = AddButton(u"cmdOK"_s, u"OK"_s, {216, 128, 84, 23});
    const QRect line(8, 128, 258, 23);
    addText(u"lblDisclaimer"_s, line, u"Copyright © 2026 the Kelvaro developers"_s)->SetMiddle(line.height() / 2.0);
    AddLabel({u"lblTitle"_s, {88, 8, 259, 32}, Colours::white, TypeSize::Heading, QFont::Normal, u"Kelvaro"_s});
    addText(u"lblVersion"_s, {88, 32, 259, 15}, u"Version "_s + QLatin1String(KELVARO_VERSION))
        ->setAccessibleName(u"Kelvaro, version "_s + QLatin1String(KELVARO_VERSION)); // Orca skips a text of two words
    addText(u"Label1"_s, {88, 56, 265, 33}, u"Support: the Kelvaro issue tracker"_s);
    FitLabels();

    okButton->setDefault(true);
    SetCancelButton(okButton);
    connect(okButton, &QPushButton::clicked, this, &frmAbout::cmdOK_Click);
}

void frmAbout::cmdOK_Click() {
    Unload();
}
