// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#pragma once

#include "dialogs/GreenDialog.h"
#include "pictures/PictureList.h"

// The title, the version, the copyright and where to find support.
class frmAbout final : public GreenDialog {
public:
    frmAbout();

private:
    void cmdOK_Click();

    PictureList titlePicture_;
};
