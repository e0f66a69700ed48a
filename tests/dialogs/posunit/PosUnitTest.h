// What the tests of the positioning unit's dialogs share: a wizard for a controller, and where its texts come from.
#pragma once

#include "tests/core/FunWizardTest.h"
#include "tests/support/Controller.h"
#include "tests/support/DesktopTest.h"
#include "tests/support/DialogChecks.h"
#include "tests/support/PrintTo.h"
#include "tests/support/Results.h"

#include "resources/resource.h"

#include <string>
#include <vector>

class CPosUnitTest : public CDesktopTest
{
protected:
    using Scene = CDialogRobot::Scene;

    /// The bit devices of the controller are X, Y, R, Sp.R, T, C and L.
    CPosUnitTest();
    ~CPosUnitTest() override;

    /// Makes the English library the source of texts and templates, not the module.
    void UseLibrary();
    /// A library that has none of the dialogs.
    void UseLibraryWithoutDialogs();

    /// Whether the wizard's font is that of each control.
    void ExpectDialogFont(const CDialogRobot& dialog);

    CFunWizard m_wizard;
};
