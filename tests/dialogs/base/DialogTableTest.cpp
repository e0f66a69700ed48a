// The dialogs that choices lead to.
#include "dialogs/base/DialogTable.h"

#include "dialogs/base/Catalogue.h"
#include "resources/resource.h"
#include "tests/support/AllocationFaults.h"
#include "tests/support/Controller.h"
#include "tests/support/DesktopTest.h"

namespace
{

class CDialogTableTest : public CDesktopTest
{
protected:
    CDialogTableTest() { SetUpController(m_wizard); }

    CFunWizard m_wizard;
};

} // namespace

TEST_F(CDialogTableTest, MakesTheDialogOfATemplate)
{
    for (const UINT templateId : {IDD_SPD1_TRAPEZOIDAL, IDD_SPD1_HOME, IDD_SPDH_TRAPEZOIDAL, IDD_SPDH_HOME})
        EXPECT_NE(MakeDialog(templateId, 0, &m_wizard, nullptr), nullptr) << templateId;
    EXPECT_EQ(MakeDialog(0, 0, &m_wizard, nullptr), nullptr);
    EXPECT_EQ(MakeDialog(IDD_SELECT, 0, &m_wizard, nullptr), nullptr);
}

TEST_F(CDialogTableTest, TellsFormsOfOneTemplateByTheVariant)
{
    for (const int variant : {kUnitEPoint, kUnitPPointStart, kUnitJogPositioning})
        EXPECT_NE(MakeDialog(IDD_EPOINT, variant, &m_wizard, nullptr), nullptr) << variant;
    EXPECT_EQ(MakeDialog(IDD_EPOINT, kUnitPulsar, &m_wizard, nullptr), nullptr);
}

TEST_F(CDialogTableTest, LeadsBackWithoutDialogOrMemory)
{
    EXPECT_EQ(RunDialog(IDD_SELECT, 0, &m_wizard, nullptr), -1);
    const CAllocationFaults faults(0);
    EXPECT_EQ(RunDialog(IDD_SPD1_HOME, 0, &m_wizard, nullptr), -1);
}
