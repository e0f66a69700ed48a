// What the tests of F168 share: a wizard for a controller that has it, and the way into its dialog.
#pragma once

#include "tests/dialogs/pulse/Spd1Model.h"
#include "tests/support/DesktopTest.h"
#include "tests/support/DialogChecks.h"
#include "tests/support/PrintTo.h"

#include "resources/resource.h"

#include <optional>

class CSpd1Test : public CDesktopTest
{
protected:
    using Scene = CDialogRobot::Scene;

    static constexpr const char* kAppName = kTestAppName;

    /// The bit devices of the controller are X, Y, R, Sp.R, T, C and L.
    CSpd1Test();
    ~CSpd1Test() override;

    /// Picks a variant in the selection dialog and confirms it.
    Scene Choose(ESpd1Variant variant) const;
    /// Opens the dialog from the selection, plays the scene and clicks OK, which must be accepted.
    void Confirm(ESpd1Variant variant, const Scene& scene = {});
    /// Opens the dialog from the selection, plays the scene, leaves by Back, and cancels the selection.
    void Leave(ESpd1Variant variant, const Scene& scene = {});
    /// Makes the lists those of an earlier run of a variant.
    void Remember(ESpd1Variant variant, const SResults& results);

    /// What the wizard's settings allow for the contact's device, and for the registers.
    SSpd1Limits Limits(int device) const;

    CFunWizard m_wizard;
    bool m_registerComments = true;

private:
    std::optional<ESpd1Variant> m_confirmed; // last
};

/// Fills the dialog in, typing what stands in its edits.
void FillIn(CDialogRobot& dialog, const SSpd1Entries& entries);
