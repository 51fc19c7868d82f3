// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#pragma once

#include "dialogs/GreenDialog.h"

// How the game is played, and the scoring chart.
class frmHelp final : public GreenDialog {
public:
    frmHelp();

private:
    void OKButton_Click();
};
