// The wizards that open without a selection: what they record and clear. Their dialogs are tested on their own; here a
// library without their templates stands for a dialog that is not confirmed.
#include "tests/dialogs/select/PosSelectTest.h"

#include <functional>

namespace
{

struct SDirectWizard
{
    const char* name;
    int instruction;
    int (*open)(CFunWizard& wizard);
};

constexpr SDirectWizard kWizards[] = {
    {"Pid", 355, [](CFunWizard& wizard) { return wizard.DoOpenPIDDlg(0, nullptr); }},
    {"ScreenDisplay", 180, [](CFunWizard& wizard) { return wizard.DoOpenSCRDlg(nullptr, nullptr); }},
    {"Scal", 282, [](CFunWizard& wizard) { return wizard.DoOpenSCALDlg(nullptr, 0, nullptr); }},
    {"Dscal", 283, [](CFunWizard& wizard) { return wizard.DoOpenSCALDlg(nullptr, 1, nullptr); }},
    {"Fscal", 354, [](CFunWizard& wizard) { return wizard.DoOpenSCALDlg(nullptr, 2, nullptr); }},
    {"FscalByAnyKind", 354, [](CFunWizard& wizard) { return wizard.DoOpenSCALDlg(nullptr, -1, nullptr); }},
    {"FscalByNumber", 354, [](CFunWizard& wizard) { return wizard.DoOpenSCALDlg(nullptr, 354, nullptr); }},
};

std::ostream& operator<<(std::ostream& out, const SDirectWizard& wizard) { return out << wizard.name; }

const SResults& EarlierResults()
{
    static const SResults results = {{{2, kX, 5}}, {{kDT, 7}}, {{kDT, 7, 0, 1, 0}}, {"before"}, {{8, -1, 168, 0, 0}}};
    return results;
}

class CDirectTest : public CPosSelectTest
{
protected:
    void SetUp() override
    {
        CPosSelectTest::SetUp();
        UseSelectionOnly();
    }

    void SetUpEarlierRun(int mode, int instruction, int variant)
    {
        SFunWizardTest::SetLastWizard(m_wizard, static_cast<BYTE>(mode), instruction, variant);
        WriteResults(m_wizard, EarlierResults());
        m_wizard.RemoveDlgData();
        m_wizard.SetDlgDataPtr(::operator new(4));
    }
};

class CDirectWizardsTest : public CDirectTest, public testing::WithParamInterface<SDirectWizard>
{
protected:
    int OpenIt()
    {
        return Play([&] { return GetParam().open(m_wizard); }, {});
    }
};

class CControlCodeWizardTest : public CDirectTest
{
};

} // namespace

TEST_P(CDirectWizardsTest, BecomesTheLastWizardEvenWithoutOk)
{
    for (const int mode : {0, 1})
    {
        SetUpEarlierRun(mode, 151, 10040);
        EXPECT_EQ(OpenIt(), 2);
        EXPECT_EQ(SFunWizardTest::UnitMode(m_wizard), 0);
        EXPECT_EQ(SFunWizardTest::LastInstruction(m_wizard), GetParam().instruction);
        EXPECT_EQ(SFunWizardTest::LastVariant(m_wizard), 0);
    }
}

TEST_P(CDirectWizardsTest, KeepsItsOwnResultsAndClearsThoseOfOthers)
{
    const int own = GetParam().instruction;
    struct
    {
        int mode, instruction, variant;
        bool kept;
    } const rows[] = {{0, own, 0, true},      {1, own, 0, true},  {0, own, 1, false},
                      {0, own + 1, 0, false}, {0, -1, 0, false},  {0, own, -1, false},
                      {1, 151, 10040, false}, {0, 168, 0, false}, {0, own == 282 ? 283 : 282, 0, false}};
    for (const auto& row : rows)
    {
        SCOPED_TRACE(testing::Message() << row.instruction << "/" << row.variant << " in mode " << row.mode);
        SetUpEarlierRun(row.mode, row.instruction, row.variant);
        OpenIt();
        SResults cleared;
        cleared.comments = EarlierResults().comments;
        EXPECT_EQ(ReadResults(m_wizard), row.kept ? EarlierResults() : cleared);
        EXPECT_EQ(m_wizard.GetDlgDataPtr() != nullptr, row.kept);
    }
}

TEST_P(CDirectWizardsTest, DeletesTheFontAndLeavesTheRestAlone)
{
    const HINSTANCE before = AfxGetResourceHandle();
    SFunWizardTest::SetAxisFlag(m_wizard, 7);
    m_wizard.CreateDlgFont(nullptr);
    OpenIt();
    EXPECT_EQ(SFunWizardTest::DialogFont(m_wizard), nullptr);
    EXPECT_EQ(SFunWizardTest::AxisFlag(m_wizard), 7);
    EXPECT_EQ(AfxGetResourceHandle(), before);
}

INSTANTIATE_TEST_SUITE_P(Wizards, CDirectWizardsTest, testing::ValuesIn(kWizards),
                         [](const auto& test) { return std::string(test.param.name); });

// ---- The control code -----------------------------------------------------------------------------------------------

TEST_F(CControlCodeWizardTest, ChangesNothingWithoutOk)
{
    SetUpEarlierRun(1, 151, 10040);
    ULONG code = 0x12345678;
    EXPECT_EQ(Play([&] { return m_wizard.DoInputPosCtrlDlg(code, nullptr); }, {}), -1) << "the dialog's own result";
    EXPECT_EQ(code, 0x12345678u);
    EXPECT_EQ(ReadResults(m_wizard), EarlierResults());
    EXPECT_NE(m_wizard.GetDlgDataPtr(), nullptr);
    EXPECT_EQ(SFunWizardTest::UnitMode(m_wizard), 1);
    EXPECT_EQ(SFunWizardTest::LastInstruction(m_wizard), 151);
    EXPECT_EQ(SFunWizardTest::LastVariant(m_wizard), 10040);
    EXPECT_EQ(SFunWizardTest::DialogFont(m_wizard), nullptr);
}
