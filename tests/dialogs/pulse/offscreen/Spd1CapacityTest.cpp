// Lists that refuse an item: the dialog of F168 ends before it is seen.
#include "afx/offscreen/Desktop.h"
#include "dialogs/pulse/Spd1Dlg.h"
#include "tests/dialogs/pulse/Spd1Test.h"

namespace
{

class CSpd1CapacityTest : public CSpd1Test
{
protected:
    ~CSpd1CapacityTest() override { offscreen::SetListCapacity(offscreen::kNoListLimit); }
};

constexpr int kBitDevices[] = {kX, kY, kR, kSpecialR, kT, kC, kL, 18, 17};

// The lists hold the contact's devices, two outputs, two pulse widths and six modes.
TEST_F(CSpd1CapacityTest, OpensOnlyWhenEveryListHoldsItsItems)
{
    for (ESpd1Variant variant : kVariants)
    {
        for (size_t devices = 0; devices <= std::size(kBitDevices); ++devices)
        {
            CFunWizard wizard;
            SetDeviceRange(wizard, kDT, 0, 100);
            for (size_t i = 0; i < devices; ++i)
                SetDeviceRange(wizard, kBitDevices[i], 0, 100);
            for (size_t capacity = 0; capacity <= 10; ++capacity)
            {
                SCOPED_TRACE(testing::Message() << variant << ", " << devices << " devices, " << capacity << " items");
                const bool fits = capacity >= std::max<size_t>(devices, 6);
                offscreen::SetListCapacity(capacity);
                std::vector<Scene> scenes;
                if (fits)
                    scenes.push_back([](CDialogRobot& dialog) { dialog.Click(IDCANCEL); });
                const auto open = [&] {
                    return static_cast<int>(CSpd1Dlg(&wizard, variant == kHomeReturn, nullptr).DoModal());
                };
                EXPECT_EQ(Play(open, scenes), IDCANCEL);
            }
        }
    }
}

TEST_F(CSpd1CapacityTest, LeadsBackToTheSelection)
{
    m_wizard.ClearSuppportFunInfo();
    m_wizard.EntrySupportFunInfo(168); // the selection itself has room enough
    Confirm(kTrapezoidal, [](CDialogRobot& dialog) { FillIn(dialog, {}); });
    const SResults confirmed = ReadResults(m_wizard);
    const int result = Play([this] { return m_wizard.DoOpenPosDlg(0, 1, nullptr); },
                            {[this](CDialogRobot& selection) {
                                 offscreen::SetListCapacity(5);
                                 Choose(kTrapezoidal)(selection);
                             },
                             [](CDialogRobot& selection) {
                                 EXPECT_EQ(selection.Caption(), CString("Positioning processing selection"));
                                 selection.Click(IDCANCEL);
                             }});
    EXPECT_EQ(result, IDCANCEL);
    EXPECT_TRUE(m_robot.MessageBoxes().empty());
    EXPECT_EQ(ReadResults(m_wizard), confirmed);
}

} // namespace
