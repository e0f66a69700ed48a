// The dialog of scaling as it comes up: titles, controls, lists under every permission, ranges, limits, help, and what
// "Only a data table is created." takes out of use.
#include "dialogs/process/ScalDlg.h"
#include "tests/dialogs/process/ScalTest.h"

#include <algorithm>

namespace
{

class CScalControlsTest : public CScalTest
{
protected:
    std::vector<CString> InputItems(bool permitAll, ULONGLONG mask) const
    {
        std::vector<CString> items = WordItems(permitAll, mask);
        for (const SWordDevice& constant : kInputConstants)
        {
            const auto& offered = GetParam().constants;
            const bool isOffered = std::any_of(offered.begin(), offered.end(), [&](const SScalConstant& one) {
                return std::string(one.name) == constant.name;
            });
            if (isOffered && (permitAll || (mask & constant.bit) != 0))
                items.emplace_back(constant.name);
        }
        return items;
    }

    static std::vector<CString> WordItems(bool permitAll, ULONGLONG mask)
    {
        std::vector<CString> items;
        for (const SWordDevice& device : kWordDevices)
            if (permitAll || device.bit == SWordDevice::kAlways || (mask & device.bit) != 0)
                items.emplace_back(device.name);
        return items;
    }
};

INSTANTIATE_TEST_SUITE_P(Kinds, CScalControlsTest, testing::ValuesIn(kScalKinds), ScalKindName);

constexpr UINT kOperandLists[] = {3362, 3368, 3365}; // in the order of the masks: X, table, Y

} // namespace

// ---- As it comes up -------------------------------------------------------------------------------------------------

TEST_P(CScalControlsTest, ComesUpWithoutAnEarlierRun)
{
    const SScalKind& kind = GetParam();
    Leave([&](CDialogRobot& dialog) {
        EXPECT_EQ(dialog.Caption(), CString(kind.caption));
        EXPECT_EQ(dialog.Text(3360), CString(kind.heading));
        EXPECT_FALSE(dialog.Checked(2061));
        EXPECT_FALSE(dialog.Checked(3361));
        EXPECT_EQ(dialog.FocusId(), 2061u);
        EXPECT_EQ(dialog.Text(2051), CString("X"));
        EXPECT_EQ(dialog.Text(2053), CString("(0 - 109F)"));
        for (const UINT list : kOperandLists)
            EXPECT_EQ(dialog.Text(list), CString("DT")) << list;
        for (const UINT edit : {2052u, 3363u, 3366u, 3369u, 3371u})
            EXPECT_EQ(dialog.Text(edit), CString()) << edit;
        EXPECT_EQ(dialog.Text(3364), CString("(0 - 32764)"));
        EXPECT_EQ(dialog.Text(3367), CString("(0 - 32764)"));
        EXPECT_EQ(dialog.Text(3370), CString(kind.width == 1 ? "(0 - 32760)" : "(0 - 32756)"));
        EXPECT_EQ(dialog.Text(3372), CString(kind.width == 1 ? "(2 - 16382)" : "(2 - 8191)"));
        EXPECT_EQ(dialog.Text(3374), CString("Data X(n)\n") + kind.range);
        EXPECT_EQ(dialog.Text(3375), CString("Data Y(n)\n") + kind.range);
        EXPECT_EQ(RowLabels(dialog), (std::vector<std::string>{"1", "2", "3", "4", "5"}));
        EXPECT_EQ(TextsOf(CellsOf(dialog)), (GridTexts{{"", ""}}));
        EXPECT_FALSE(dialog.Visible(3381));
        for (const SRobotControl& control : dialog.Controls())
            EXPECT_EQ(control.enabled, control.id != 2003) << control.id; // help is none
        EXPECT_FALSE(dialog.Visible(2003));
    });
}

TEST_P(CScalControlsTest, EverySelectorLeadsToItsInstruction)
{
    const SScalKind& kind = GetParam();
    for (const int argument : {0, 1, 2, 3, -1, 282, 283, 354, INT_MAX, INT_MIN})
    {
        const bool isThis = argument == kind.argument || (kind.argument == 2 && argument != 0 && argument != 1);
        if (!isThis)
            continue;
        m_wizard.RemoveAllInstCodeInfo();
        EXPECT_EQ(Play([&] { return m_wizard.DoOpenSCALDlg(nullptr, argument, nullptr); }, {[&](CDialogRobot& dialog) {
                           EXPECT_EQ(dialog.Caption(), CString(kind.caption)) << argument;
                           FillIn(dialog, {});
                           dialog.Click(IDOK);
                       }}),
                  IDOK);
        EXPECT_EQ(ReadResults(m_wizard), ScalResults(kind, {})) << argument;
        EXPECT_EQ(m_wizard.CreateInstCode(), 1);
        EXPECT_EQ(ReadResults(m_wizard).instructions.at(ReadResults(m_wizard).instructions.size() - 4),
                  (SInstructionRow{8, -1, kind.instruction, kind.argument == 0 ? 0 : 1, 0}));
    }
}

TEST_P(CScalControlsTest, LimitsItsEntries)
{
    Leave([](CDialogRobot& dialog) {
        ExpectLimits(dialog, {{2052, 4}, {3371, 5}});
        for (const UINT edit : {3363u, 3366u, 3369u}) // so much stays readable
        {
            dialog.Type(edit, "-1.175494e-38");
            EXPECT_EQ(dialog.Text(edit), CString("-1.175494e-38")) << edit;
        }
        dialog.Type(3371, "");
        dialog.Focus(kGridCells);
        TypeCells(dialog, {"-123456789.123456789", "-123456789.123456789"});
        const CString cell = CString("-123456789.123456789").Left(GetParam().limit == 0 ? 99 : GetParam().limit);
        EXPECT_EQ(TextsOf(CellsOf(dialog)), (GridTexts{{std::string(cell), std::string(cell)}}));
    });
}

TEST_P(CScalControlsTest, CanBeWalkedThroughByTab)
{
    Leave([](CDialogRobot& dialog) {
        const std::vector<UINT> order = {2061, 2051, 2052, 3361, 3362, 3363, 3365, 3366, 3368, 3369, 3371, kGridCells};
        for (const UINT control : order)
        {
            EXPECT_EQ(dialog.FocusId(), control);
            dialog.PressKey(VK_TAB);
        }
        EXPECT_EQ(dialog.FocusId(), kGridCells); // its second cell
        dialog.PressKey(VK_TAB);
        EXPECT_EQ(dialog.FocusId(), static_cast<UINT>(IDOK));
        dialog.PressKey(VK_TAB);
        EXPECT_EQ(dialog.FocusId(), static_cast<UINT>(IDCANCEL));
        dialog.PressKey(VK_TAB);
        EXPECT_EQ(dialog.FocusId(), 2061u);
    });
}

// ---- Lists ----------------------------------------------------------------------------------------------------------

TEST_P(CScalControlsTest, ListsWordsAndTheConstantsOfTheInput)
{
    AddAllWords();
    Leave([this](CDialogRobot& dialog) {
        EXPECT_EQ(dialog.Items(3362), InputItems(true, 0));
        EXPECT_EQ(dialog.Items(3365), WordItems(true, 0));
        EXPECT_EQ(dialog.Items(3368), WordItems(true, 0));
        const std::vector<CString> bits = {"X", "Y", "R", "Sp.R", "T", "C", "L"};
        EXPECT_EQ(dialog.Items(2051), bits);
    });
}

TEST_P(CScalControlsTest, ListsWhatThePlcHas)
{
    CFunWizard wizard;
    SetDeviceRange(wizard, kR, 0, 15);
    SetDeviceRange(wizard, kWR, 0, 100);
    SetDeviceRange(wizard, kLD, 0, 100);
    EXPECT_EQ(Play([&] { return wizard.DoOpenSCALDlg(nullptr, GetParam().argument, nullptr); },
                   {[this](CDialogRobot& dialog) {
                       std::vector<CString> words = {"WR", "LD"};
                       EXPECT_EQ(dialog.Items(3365), words);
                       EXPECT_EQ(dialog.Items(3368), words);
                       for (const SScalConstant& constant : GetParam().constants)
                           words.emplace_back(constant.name);
                       EXPECT_EQ(dialog.Items(3362), words);
                       for (const UINT list : kOperandLists)
                           EXPECT_EQ(dialog.Selection(list), 0) << "without DT the first one";
                       EXPECT_EQ(dialog.Text(3364), CString("(0 - 100)"));
                       dialog.Click(IDCANCEL);
                   }}),
              IDCANCEL);
}

TEST_P(CScalControlsTest, CanOnlyBeLeftWhenNoDeviceHoldsATable)
{
    CFunWizard wizard;
    SetDeviceRange(wizard, kR, 0, 15);
    SetDeviceRange(wizard, kDT, 0, GetParam().width * 4 - 1); // a register less than two points take
    EXPECT_EQ(
        Play([&] { return wizard.DoOpenSCALDlg(nullptr, GetParam().argument, nullptr); }, {[](CDialogRobot& dialog) {
                 ExpectOnlyFirstAndBack(dialog);
                 EXPECT_EQ(dialog.Text(3370), CString("Impossible settings"));
                 EXPECT_FALSE(dialog.Enabled(kGridCells));
                 dialog.Click(IDCANCEL);
             }}),
        IDCANCEL);
}

TEST_P(CScalControlsTest, ListsForTheTableWhatHoldsTwoPoints)
{
    AddAllWords();
    const int width = GetParam().width;
    SetDeviceRange(m_wizard, kIndex, 3, 3 + width * 4);  // just
    SetDeviceRange(m_wizard, kWX, 3, 3 + width * 4 - 1); // just not
    SetDeviceRange(m_wizard, kLD, 5, 4);                 // nothing at all
    SetDeviceRange(m_wizard, kFL, -2147483647 - 1, 0);
    SetDeviceRange(m_wizard, kSV, -2147483647 - 1, -2147483647 - 1);
    Leave([&](CDialogRobot& dialog) {
        const std::vector<CString> expected = {"WY", "WR", "Sp.WR", "WL", "DT", "Sp.DT", "EV", "FL", "INDEX"};
        EXPECT_EQ(dialog.Items(3368), expected);
        EXPECT_EQ(dialog.Items(3365), WordItems(true, 0)); // where one register is enough
        dialog.SelectText(3368, "INDEX");
        EXPECT_EQ(dialog.Text(3370), CString("(3 - 3)"));
        EXPECT_EQ(dialog.Text(3372), CString("(2 - 2)"));
        dialog.SelectText(3368, "FL");
        EXPECT_EQ(dialog.Text(3372), CString("(2 - 32767)"));
    });
}

// A mask of one bit, of all but that bit, and bits that no one looks at, for each operand; the others permit nothing or
// all.
TEST_P(CScalControlsTest, ListsWhatTheHostPermits)
{
    AddAllWords();
    for (const unsigned operand : {0u, 1u, 2u})
        for (const unsigned bit : SampledNumbers(0, 32, 8))
            for (const bool alone : {true, false})
            {
                SCOPED_TRACE(testing::Message() << "mask " << operand << ", bit " << bit << " alone " << alone);
                const ULONGLONG one = bit < 32 ? 1ull << bit : 0; // the last time none, or all
                const ULONGLONG mask = (alone ? one : 0xFFFFFFFFull & ~one) | 0xABCDEF0000000000ull;
                const ULONGLONG other = alone ? 0xFFFFFFFFull : 0;
                ULONGLONG masks[3] = {other, other, other};
                masks[operand] = mask;
                m_permitted = masks;
                Leave([&](CDialogRobot& dialog) {
                    EXPECT_EQ(dialog.Items(3362), InputItems(false, masks[0]));
                    EXPECT_EQ(dialog.Items(3368), WordItems(false, masks[1]));
                    EXPECT_EQ(dialog.Items(3365), WordItems(false, masks[2]));
                });
            }
}

TEST_P(CScalControlsTest, EveryBitPermitsItsDevice)
{
    AddAllWords();
    for (const SWordDevice& device : kWordDevices)
    {
        ULONGLONG masks[3] = {device.bit, device.bit, device.bit};
        m_permitted = masks;
        Leave([&](CDialogRobot& dialog) {
            for (const UINT list : kOperandLists)
            {
                const std::vector<CString> items = dialog.Items(list);
                const bool listed = std::find(items.begin(), items.end(), CString(device.name)) != items.end();
                EXPECT_EQ(listed, device.bit != SWordDevice::kNever) << device.name << " in " << list;
            }
        });
    }
}

TEST_P(CScalControlsTest, IsOnlyLeftWhenNothingIsPermittedForTheTable)
{
    ULONGLONG masks[3] = {~0ull, 0, ~0ull};
    m_permitted = masks;
    Leave([](CDialogRobot& dialog) {
        EXPECT_TRUE(dialog.Items(3368).empty());
        ExpectOnlyFirstAndBack(dialog);
    });
}

// Nothing to choose from is out of range; the table alone can be created.
TEST_P(CScalControlsTest, RefusesOperandsForWhichNothingIsPermitted)
{
    ULONGLONG masks[3] = {0, ~0ull, 0};
    m_permitted = masks;
    Confirm([](CDialogRobot& dialog) {
        EXPECT_TRUE(dialog.Items(3362).empty());
        EXPECT_TRUE(dialog.Items(3365).empty());
        dialog.SelectText(2051, "R");
        dialog.Type(2052, "10");
        dialog.Type(3369, "100");
        PasteCells(dialog, "1\t1\n2\t2\n");
        dialog.Type(3363, "5");
        ExpectRefusal(dialog, 20040, 3363);
        dialog.Check(2061);
    });
    EXPECT_EQ(ReadResults(m_wizard).operands, (std::vector<SOperandRow>{{-1, -1}, {9, 100}, {-1, -1}}));
}

// ---- Ranges ---------------------------------------------------------------------------------------------------------

TEST_P(CScalControlsTest, ShowsTheRangesOfWhatIsSelected)
{
    AddAllWords();
    const SScalKind& kind = GetParam();
    Leave([&](CDialogRobot& dialog) {
        int low = 0;
        for (const SWordDevice& device : kWordDevices)
        {
            const std::string first = "(" + std::to_string(low++) + " - ";
            for (const UINT list : kOperandLists)
                dialog.SelectText(list, device.name);
            EXPECT_EQ(dialog.Text(3364), CString((first + "30000)").c_str())) << device.name;
            EXPECT_EQ(dialog.Text(3367), CString((first + "30000)").c_str())) << device.name;
            const std::string last = std::to_string(30000 - 4 * kind.width);
            EXPECT_EQ(dialog.Text(3370), CString((first + last + ")").c_str())) << device.name;
        }
        for (const SScalConstant& constant : kind.constants)
        {
            dialog.SelectText(3362, constant.name);
            EXPECT_EQ(dialog.Text(3364), CString(constant.range)) << constant.name;
        }
        dialog.SelectText(3362, "DT");
        EXPECT_EQ(dialog.Text(3364), CString("(5 - 30000)"));
        dialog.SelectText(2051, "L");
        EXPECT_EQ(dialog.Text(2053), CString("(0 - 127F)"));
    });
}

// ---- Only a data table ----------------------------------------------------------------------------------------------

TEST_P(CScalControlsTest, TakesTheInstructionOutOfUseWhenOnlyADataTableIsCreated)
{
    Leave([](CDialogRobot& dialog) {
        for (const bool only : {true, false, true})
        {
            dialog.Check(2061, only);
            for (const UINT id : {2051u, 2052u, 2053u, 3361u, 3362u, 3363u, 3364u, 3365u, 3366u, 3367u})
                EXPECT_EQ(dialog.Enabled(id), !only) << id;
            for (const UINT id : {2061u, 3368u, 3369u, 3370u, 3371u, 3372u, kGridCells, 1u, 2u})
                EXPECT_TRUE(dialog.Enabled(id)) << id;
        }
    });
    m_wizard.SetOnlyDataTable(1);
    Leave([](CDialogRobot& dialog) {
        EXPECT_TRUE(dialog.Checked(2061));
        EXPECT_FALSE(dialog.Enabled(3363));
    });
    EXPECT_EQ(m_wizard.IsOnlyDataTable(), 1);
}

// ---- Help -----------------------------------------------------------------------------------------------------------

TEST_P(CScalControlsTest, HasHelpWhenTheHostHas)
{
    m_wizard.SetHelpPath("C:\\there is no such file.chm");
    Leave([](CDialogRobot& dialog) {
        EXPECT_TRUE(dialog.Visible(2003));
        EXPECT_TRUE(dialog.Enabled(2003));
        dialog.Click(2003);
        EXPECT_TRUE(dialog.IsOpen());
    });
    class CTopic : public CScalDlg
    {
    public:
        using CScalDlg::CScalDlg;
        using CScalDlg::HelpTopic;
    };
    EXPECT_EQ(CTopic(&m_wizard, nullptr, GetParam().argument, nullptr).HelpTopic(), 0);
}
