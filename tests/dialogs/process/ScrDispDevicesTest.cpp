// The device lists of the screen display: what hosts permit, what is selected, and the ranges.
#include "tests/core/FunWizardTest.h"
#include "tests/dialogs/process/ScrDispTest.h"
#include "tests/support/Sampled.h"

#include <algorithm>

namespace
{

using CScrDispDevicesTest = CScrDispTest;

/// The device table: its order, the names, and the bit of each kind in the host's masks; none is always permitted, 0
/// never.
struct SKind
{
    int code;
    const char* name;
    std::optional<unsigned> bit;
    int low;
    int high;
    const char* range;
    const char* shorter; // by two
};

// clang-format off
const SKind kKinds[] = {
    {3,     "X",     0x10,         0,     1759,  "(0 - 109F)",      "(0 - 109D)"},
    {2,     "Y",     0x20,         0,     1759,  "(0 - 109F)",      "(0 - 109D)"},
    {1,     "R",     0x40,         16,    4095,  "(10 - 255F)",     "(10 - 255D)"},
    {20001, "Sp.R",  std::nullopt, 14400, 14591, "(9000 - 911F)",   "(9000 - 911D)"},
    {4,     "T",     0x200,        0,     1007,  "(0 - 1007)",      "(0 - 1005)"},
    {5,     "C",     0x400,        1008,  1023,  "(1008 - 1023)",   "(1008 - 1021)"},
    {0,     "L",     0x80,         0,     2047,  "(0 - 127F)",      "(0 - 127D)"},
    {18,    "E",     0x800,        0,     2047,  "(0 - 2047)",      "(0 - 2045)"},
    {17,    "P",     0x100,        0,     255,   "(0 - 15F)",       "(0 - 15D)"},
    {67,    "WX",    0,            0,     109,   "(0 - 109)",       "(0 - 107)"},
    {66,    "WY",    0x20000,      0,     109,   "(0 - 109)",       "(0 - 107)"},
    {65,    "WR",    0x40000,      0,     255,   "(0 - 255)",       "(0 - 253)"},
    {20065, "Sp.WR", std::nullopt, 900,   911,   "(900 - 911)",     "(900 - 909)"},
    {64,    "WL",    0x80000,      0,     127,   "(0 - 127)",       "(0 - 125)"},
    {9,     "DT",    0x800000,     0,     32764, "(0 - 32764)",     "(0 - 32762)"},
    {20009, "Sp.DT", 0,            90000, 90511, "(90000 - 90511)", "(90000 - 90509)"},
    {6,     "SV",    0x200000,     0,     1023,  "(0 - 1023)",      "(0 - 1021)"},
    {7,     "EV",    0x400000,     0,     1023,  "(0 - 1023)",      "(0 - 1021)"},
    {10,    "FL",    0x2000000,    0,     9999,  "(0 - 9999)",      "(0 - 9997)"},
    {8,     "LD",    0x1000000,    0,     8447,  "(0 - 8447)",      "(0 - 8445)"},
    {15,    "INDEX", 0x10000000,   0,     13,    "(0 - 13)",        "(0 - 11)"},
};
// clang-format on

std::vector<CString> PermittedBy(unsigned mask)
{
    std::vector<CString> names;
    for (const SKind& kind : kKinds)
        if (!kind.bit || (mask & *kind.bit) != 0)
            names.emplace_back(kind.name);
    return names;
}

std::vector<CString> AllNames()
{
    std::vector<CString> names;
    for (const SKind& kind : kKinds)
        names.emplace_back(kind.name);
    return names;
}

void SetAllDevices(CFunWizard& wizard)
{
    for (const SKind& kind : kKinds)
        SetDeviceRange(wizard, kind.code, kind.low, kind.high);
}

class CScrDispMaskTest : public CScrDispTest
{
protected:
    CScrDispMaskTest()
    {
        SetAllDevices(m_wizard);
        m_permitted = m_masks;
    }

    /// The lists that come up with the masks.
    void ExpectLists(const std::array<unsigned, 3>& masks)
    {
        Leave([&](CDialogRobot& dialog) {
            for (size_t i = 0; i < kScreenOperands; ++i)
                EXPECT_EQ(dialog.Items(kDeviceCombos[i]), PermittedBy(masks[i])) << std::hex << masks[i];
        });
    }

    ULONGLONG m_masks[4] = {};
};

TEST_F(CScrDispMaskTest, PermitsTheDevicesOfEachBit)
{
    const auto bits = SampledNumbers(0, 31, 3);
    for (const unsigned bit : bits)
    {
        SCOPED_TRACE(testing::Message() << "bit " << bit);
        // Each operand has a mask of its own: the bit, all others, the next one.
        const std::array<unsigned, 3> masks = {1u << bit, ~(1u << bit), 1u << (bit + 1) % 32};
        for (size_t i = 0; i < 3; ++i)
            m_masks[1 + i] = masks[i];
        ExpectLists(masks);
        std::rotate(m_masks + 1, m_masks + 2, m_masks + 4);
        ExpectLists({masks[1], masks[2], masks[0]});
        std::rotate(m_masks + 1, m_masks + 2, m_masks + 4);
        ExpectLists({masks[2], masks[0], masks[1]});
    }
}

TEST_F(CScrDispMaskTest, LooksOnlyAtTheLowHalvesOfTheOperandsOwn)
{
    for (const ULONGLONG first : {0ull, ~0ull})
        for (const unsigned high : {0u, 0xFFFFFFFFu, 0x800000u})
        {
            m_masks[0] = first;
            for (size_t i = 1; i < 4; ++i)
                m_masks[i] = static_cast<ULONGLONG>(high) << 32 | 0x840000u;
            ExpectLists({0x840000u, 0x840000u, 0x840000u});
        }
}

TEST_F(CScrDispMaskTest, PermitsAllWithoutMasks)
{
    m_permitted = nullptr;
    Leave([](CDialogRobot& dialog) {
        for (const UINT combo : kDeviceCombos)
            EXPECT_EQ(dialog.Items(combo), AllNames());
    });
}

// Without a bit of their own some devices are always there.
TEST_F(CScrDispMaskTest, ListsWhatNoMaskCanForbid)
{
    Leave([](CDialogRobot& dialog) {
        for (const UINT combo : kDeviceCombos)
        {
            EXPECT_EQ(dialog.Items(combo), (Texts{"Sp.R", "Sp.WR"}));
            EXPECT_EQ(dialog.Selection(combo), 0);
        }
    });
}

TEST_F(CScrDispMaskTest, ChangesNoMask)
{
    for (ULONGLONG& mask : m_masks)
        mask = 0x123456789ABCDEF0ull;
    Leave([](CDialogRobot& dialog) { FillIn(dialog, {}); });
    for (const ULONGLONG mask : m_masks)
        EXPECT_EQ(mask, 0x123456789ABCDEF0ull);
}

// ---- Devices of the PLC ---------------------------------------------------------------------------------------------

TEST_F(CScrDispDevicesTest, AreThoseOfThePlc)
{
    for (const SKind& kind : Sampled(kKinds, 5))
    {
        SCOPED_TRACE(kind.name);
        m_wizard.ResetContents(); // forgets the devices
        SetDeviceRange(m_wizard, kind.code, kind.low, kind.high);
        Leave([&](CDialogRobot& dialog) {
            for (const UINT combo : kDeviceCombos)
                EXPECT_EQ(dialog.Items(combo), Texts{kind.name});
            EXPECT_EQ(dialog.Text(2853), CString(kind.shorter)) << "the control data takes three";
            EXPECT_EQ(dialog.Text(2856), CString(kind.range));
            EXPECT_EQ(dialog.Text(2859), CString(kind.range));
        });
    }
}

TEST_F(CScrDispDevicesTest, ShowTheRangeOfTheSelectedOne)
{
    SetAllDevices(m_wizard);
    Leave([](CDialogRobot& dialog) {
        for (const SKind& kind : kKinds)
            for (size_t i = 0; i < kScreenOperands; ++i)
            {
                dialog.SelectText(kDeviceCombos[i], kind.name);
                EXPECT_EQ(dialog.Text(kDeviceRanges[i]), CString(i == 0 ? kind.shorter : kind.range)) << kind.name;
            }
        dialog.SelectText(2854, "X");
        EXPECT_EQ(dialog.Text(2853), CString("(0 - 11)")) << "the others keep theirs";
        EXPECT_EQ(dialog.Text(2859), CString("(0 - 13)"));
    });
}

TEST_F(CScrDispDevicesTest, ShowRangesOfAnyWidth)
{
    const struct
    {
        int low;
        int high;
        const char* shorter;
        const char* range;
    } kRanges[] = {{0, 2, "(0 - 0)", "(0 - 2)"},
                   {0, 1, "(0 - -1)", "(0 - 1)"},
                   {5, 5, "(5 - 3)", "(5 - 5)"},
                   {0, 2147483647, "(0 - 2147483645)", "(0 - 2147483647)"},
                   {-2147483647 - 1, -2147483647, "(-2147483648 - -2147483648)", "(-2147483648 - -2147483647)"}};
    for (const auto& row : kRanges)
    {
        SetDeviceRange(m_wizard, kDT, row.low, row.high);
        Leave([&](CDialogRobot& dialog) {
            EXPECT_EQ(dialog.Text(2853), CString(row.shorter));
            EXPECT_EQ(dialog.Text(2856), CString(row.range));
            EXPECT_EQ(dialog.Text(2859), CString(row.range));
        });
    }
}

// ---- What is selected -----------------------------------------------------------------------------------------------

TEST_F(CScrDispDevicesTest, SelectTheStoredOneElseDTElseTheFirst)
{
    struct SSelected
    {
        bool hasDT;
        std::vector<SOperandRow> stored;
        std::array<const char*, 3> devices;
    };
    const SSelected kSelected[] = {
        {true, {}, {"DT", "DT", "DT"}},
        {false, {}, {"X", "X", "X"}},
        {true, {{11, 0}, {1, 5}, {65, 6}, {9, 7}}, {"R", "WR", "DT"}},
        {false, {{11, 0}, {1, 5}, {65, 6}, {9, 7}}, {"R", "WR", "X"}},
        {true, {{11, 0}, {11, 5}, {12, 6}, {81, 7}}, {"DT", "DT", "DT"}},   // no devices of the lists
        {true, {{11, 0}, {8, 5}, {20065, 6}, {-1, 7}}, {"DT", "DT", "DT"}}, // not of this PLC
        {true, {{11, 0}, {20001, 14419}}, {"Sp.R", "DT", "DT"}},
    };
    for (const SSelected& row : kSelected)
    {
        m_wizard.ResetContents(); // forgets the devices
        for (const int device : {kX, kR, kSpecialR, kWR})
            SetDeviceRange(m_wizard, device, 0, 100);
        if (row.hasDT)
            SetDeviceRange(m_wizard, kDT, 0, 100);
        SFunWizardTest::SetLastWizard(m_wizard, 0, 180, 0);
        WriteResults(m_wizard, {.operands = row.stored});
        Leave([&](CDialogRobot& dialog) {
            for (size_t i = 0; i < kScreenOperands; ++i)
                EXPECT_EQ(dialog.Text(kDeviceCombos[i]), CString(row.devices[i])) << "operand " << i + 1;
        });
    }
}

TEST_F(CScrDispMaskTest, SelectsAmongThePermittedAlone)
{
    m_masks[1] = 0x10 | 0x40000;            // X, WR: no DT
    m_masks[2] = 0x40000 | 0x800000;        // WR, DT
    m_masks[3] = 0x20 | 0x40000 | 0x800000; // Y, WR, DT
    WriteResults(m_wizard, {.operands = {{11, 0}, {9, 5}, {1, 6}, {2, 7}}});
    Leave([](CDialogRobot& dialog) {
        EXPECT_EQ(dialog.Text(2851), CString("X")) << "the first one, as DT is not permitted";
        EXPECT_EQ(dialog.Text(2854), CString("DT")) << "as R is not permitted";
        EXPECT_EQ(dialog.Text(2857), CString("Y"));
        EXPECT_EQ(dialog.Text(2853), CString("(0 - 109D)"));
        EXPECT_EQ(dialog.Text(2859), CString("(0 - 109F)"));
    });
}

// ---- Nothing to be selected -----------------------------------------------------------------------------------------

TEST_F(CScrDispDevicesTest, EndTheDialogWhereAListIsEmpty)
{
    ULONGLONG masks[4] = {~0ull, 0x800000, 0x800000, 0x800000};
    m_permitted = masks;
    CFunWizard bare;
    EXPECT_EQ(Play([&] { return bare.DoOpenSCRDlg(nullptr, nullptr); }, {}), IDCANCEL);
    SetDeviceRange(bare, kDT, 0, 100);
    for (unsigned empty = 0; empty < 8; ++empty)
    {
        SCOPED_TRACE(testing::Message() << "without devices: " << empty);
        for (unsigned i = 0; i < 3; ++i)
            masks[1 + i] = (empty >> i & 1) != 0 ? 0x7FFFFFu : 0x800000u;
        std::vector<Scene> scenes;
        if (empty == 0)
            scenes.push_back([](CDialogRobot& dialog) { dialog.Click(IDCANCEL); });
        SFunWizardTest::SetLastWizard(bare, 0, 168, 0);
        EXPECT_EQ(Play([&] { return bare.DoOpenSCRDlg(masks, nullptr); }, scenes), IDCANCEL);
        EXPECT_TRUE(m_robot.MessageBoxes().empty());
        EXPECT_EQ(SFunWizardTest::LastInstruction(bare), 180);
        EXPECT_EQ(SFunWizardTest::DialogFont(bare), nullptr);
        EXPECT_EQ(ReadResults(bare), SResults());
    }
}

} // namespace
