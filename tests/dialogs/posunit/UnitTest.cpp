// What is known of the positioning unit: slots, axes, relays, and the direction that a start output stands for.
#include "dialogs/posunit/UnitRows.h"

#include "tests/dialogs/base/ProbeDlg.h"

#include <climits>

namespace
{

class CUnitTest : public CProbeTest
{
};

struct SContactRecord
{
    int code;
    int number;
};

} // namespace

TEST_F(CUnitTest, OfWordsExistForOutputsOnly)
{
    for (const int code : {kL, kR, kY, kX, kT, kC, kDT, kWL, kWR, kWY, kWX, kSpecialR, kSpecialDT})
    {
        SetDeviceRange(m_wizard, code, code + 3, code + 300);
        int low = -7, high = -7;
        const bool expected = code == kY || code == kWY;
        EXPECT_EQ(GetWordDeviceRange(m_wizard, static_cast<short>(code), low, high), expected) << code;
        if (expected)
        {
            EXPECT_EQ(low, code + 3);
            EXPECT_EQ(high, code + 300);
        }
    }
}

TEST_F(CUnitTest, OfWordsMustNotBeEmpty)
{
    int low, high;
    CFunWizard bare;
    EXPECT_FALSE(GetWordDeviceRange(bare, kY, low, high));
    for (const int code : {kY, kWY})
    {
        SetDeviceRange(m_wizard, code, 10, 9);
        EXPECT_FALSE(GetWordDeviceRange(m_wizard, static_cast<short>(code), low, high)) << code;
        SetDeviceRange(m_wizard, code, 10, 10);
        EXPECT_TRUE(GetWordDeviceRange(m_wizard, static_cast<short>(code), low, high)) << code;
    }
}

TEST_F(CUnitTest, OfSlotsEndBeforeTheMaximum)
{
    struct
    {
        int maximum;
        const char* label;
    } const rows[] = {{32, "(0 - 31)"}, {16, "(0 - 15)"}, {1, "(0 - 0)"}, {255, "(0 - 254)"}, {0, "(0 - -1)"}};
    InProbe([&](CDialogRobot&) {
        ShowSlotRange(m_probe, IDC_PROBE_NOTHING);
        ShowSlotRange(m_probe, IDC_UNIT_CLEAR_SETTINGS); // nothing follows it
        for (const auto& row : rows)
        {
            m_wizard.SetMaxSlot(static_cast<unsigned char>(row.maximum));
            ShowSlotRange(m_probe, IDC_PROBE_SLOT);
            CString text;
            m_probe.ControlAfter(IDC_PROBE_SLOT)->GetWindowText(text);
            EXPECT_EQ(text, row.label);
        }
    });
}

TEST_F(CUnitTest, OfAxesDependOnTheAxisType)
{
    struct
    {
        int flag;
        const char* label;
    } const rows[] = {{0, "(1 - 2)"}, {1, "(1 - 4)"}, {2, "(1 - 4)"}, {255, "(1 - 4)"}};
    InProbe([&](CDialogRobot&) {
        ShowAxisRange(m_probe, IDC_PROBE_NOTHING);
        for (const auto& row : rows)
        {
            SFunWizardTest::SetAxisFlag(m_wizard, static_cast<BYTE>(row.flag));
            ShowAxisRange(m_probe, IDC_PROBE_AXIS);
            CString text;
            m_probe.ControlAfter(IDC_PROBE_AXIS)->GetWindowText(text);
            EXPECT_EQ(text, row.label) << row.flag;
        }
    });
}

TEST_F(CUnitTest, UnitBuffersFollowEachOther)
{
    struct
    {
        int slot, axis;
        int address;
    } const rows[] = {
        {0, 1, 160}, {1, 0, -1},  {0, 0, -1},  {5, -1, -1},   {0, 2, 176},
        {0, 4, 208}, {1, 1, 288}, {1, 2, 304}, {31, 4, 4176}, {0, INT_MIN, -1},
    };
    for (const auto& row : rows)
        EXPECT_EQ(UnitBufferAddress(row.slot, row.axis), row.address) << row.slot << ", " << row.axis;
}

TEST_F(CUnitTest, SelectsTheJogDirectionByTheStartOutput)
{
    struct
    {
        std::vector<SContactRecord> contacts;
        int selected;
    } const rows[] = {
        {{}, 0},
        {{{kY, 4}}, 0},
        {{{kX, 1}, {kY, 4}}, 0},
        {{{kX, 1}, {kX, 1}, {kY, 4}}, 1},
        {{{kX, 1}, {kX, 1}, {kY, 3}}, 0},
        {{{kX, 1}, {kX, 1}, {kY, Bit(20, 4)}}, 1},
        {{{kX, 1}, {kX, 1}, {kY, Bit(4, 3)}}, 0},
        {{{kX, 1}, {kX, 1}, {kR, 4}}, 0},
        {{{kX, 1}, {kX, 4}, {kX, 4}, {kY, Bit(9, 4)}}, 1},
        {{{kX, 1}, {kX, 4}, {kY, 4}, {kY, 5}}, 0},
    };
    for (size_t i = 0; i < std::size(rows); ++i)
    {
        SCOPED_TRACE("row " + std::to_string(i));
        m_wizard.RemoveAllContInfo();
        for (const SContactRecord& contact : rows[i].contacts)
            m_wizard.AddContInfo(2, static_cast<short>(contact.code), contact.number);
        InProbe([&](CDialogRobot& robot) {
            EXPECT_TRUE(FillJogDirectionCombo(m_probe));
            EXPECT_EQ(robot.Items(2062), Texts({"Forward rotation", "Reverse rotation"}));
            EXPECT_EQ(robot.Selection(2062), rows[i].selected);
        });
    }
}

TEST_F(CUnitTest, HasNoJogDirectionWithoutTextsOrCombo)
{
    CFunWizard english; // the module does not have the texts
    SetUpController(english);
    CProbeDlg plain(&english, IDD_SPD1_HOME);
    Open(plain, [&](CDialogRobot& robot) {
        EXPECT_FALSE(FillJogDirectionCombo(plain));
        robot.Click(IDCANCEL);
    });
}
