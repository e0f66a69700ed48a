// What the tests of all forms in PulseForms.h share: a wizard for a controller that has them, and the way into their
// dialogs.
#pragma once

#include "tests/dialogs/pulse/PulseForms.h"
#include "tests/support/Controller.h"
#include "tests/support/DesktopTest.h"
#include "tests/support/DialogChecks.h"
#include "tests/support/PrintTo.h"

class CPulseFormTest : public CDesktopTest
{
protected:
    using Scene = CDialogRobot::Scene;
    using Texts = std::vector<CString>;

    CPulseFormTest();
    ~CPulseFormTest() override;

    /// Opens the dialog, plays the scene and clicks OK, which must be accepted.
    void Confirm(const SPulseForm& form, const Scene& scene = {});
    /// Opens the dialog, plays the scene and leaves by Back.
    void Leave(const SPulseForm& form, const Scene& scene);
    int Open(const SPulseForm& form, std::vector<Scene> scenes);
    /// What the lists hold once the entries are confirmed.
    SResults Confirmed(const SPulseForm& form, const SFormEntries& entries);

    /// Offers the channels to the instruction and to no other.
    void SetChannels(int instruction, const std::vector<int>& channels);

    CFunWizard m_wizard;
};

/// Makes the controller one that has the form. Those of families B and C need the texts of a language.
void SetUpFamily(CFunWizard& wizard, const SPulseForm& form);

class CPulseFormsTest : public CPulseFormTest, public testing::WithParamInterface<SPulseForm>
{
protected:
    CPulseFormsTest() { SetUpFamily(m_wizard, GetParam()); }
};

/// All forms; or as a sample all but that of F175 which differs from its others in labels alone.
std::vector<SPulseForm> SweptForms();
std::string PulseFormName(const testing::TestParamInfo<SPulseForm>& info);

/// Makes the form of a dialog that has just come up.
void ChooseForm(CDialogRobot& dialog, const SPulseForm& form);
/// Fills the dialog in, typing what stands in its edits, with contact R10A and the table from DT100.
void FillIn(CDialogRobot& dialog, const SPulseForm& form, const SFormEntries& entries = {});

/// The edits in the order of their checks, with the messages of their ranges.
std::vector<std::pair<UINT, UINT>> CheckedEdits(const SPulseForm& form);
/// "(low - high)".
CString RangeText(long long low, long long high);
