// Every dialog driven by random input: whatever a user does, the lists hold an accepted input as a whole, and what is
// accepted can be opened and confirmed again without a change.
//
//     PEXLO_FUZZ=200000 pexlo_tests --gtest_filter=*Fuzz*     so many sequences, shared among the dialogs
//     PEXLO_FUZZ_SEED=123                                     other ones
#include "dialogs/base/PosSelectDlg.h"
#include "dialogs/posunit/PosCtrlCodeDlg.h"
#include "resources/resource.h"
#include "tests/dialogs/InstructionDialogs.h"
#include "tests/dialogs/grid/GridRobot.h"
#include "tests/robust/TextGenerator.h"
#include "tests/support/Controller.h"
#include "tests/support/DesktopTest.h"
#include "tests/support/PrintTo.h"
#include "tests/support/Results.h"
#include "tests/support/Sampled.h"

#include <cstdlib>
#include <functional>
#include <iterator>
#include <memory>
#include <random>

namespace
{

const unsigned kSequences = static_cast<unsigned>(SampledRounds(7500, 300));
constexpr int kMostSteps = 14;
constexpr int kEnglish = 0;

using Random = std::mt19937;

int Below(Random& random, size_t count) { return static_cast<int>(random() % count); }
bool OneIn(Random& random, int count) { return Below(random, static_cast<size_t>(count)) == 0; }

unsigned Setting(const char* name, unsigned value)
{
    const char* text = std::getenv(name);
    return text != nullptr ? static_cast<unsigned>(std::strtoul(text, nullptr, 10)) : value;
}

using Dialog = std::unique_ptr<CDialog>;

struct SFuzzed
{
    std::string name;
    std::function<Dialog(CFunWizard* wizard, Random& random)> make;
    bool keepsLists = true; ///< an accepted input goes to the lists, from which it is restored
    const SInstructionDialog* row = nullptr;

    SResults Comparable(const SResults& results) const { return row != nullptr ? row->Comparable(results) : results; }
};

Dialog MakePid(CFunWizard* wizard, Random& random)
{
    constexpr int kWorkAreas[] = {0, 1, 30, 30000, 40000};
    return std::make_unique<CPidDlg>(wizard, kWorkAreas[Below(random, std::size(kWorkAreas))], nullptr);
}

Dialog MakeControlCode(CFunWizard* wizard, Random& random)
{
    auto dialog = std::make_unique<CPosCtrlCodeDlg>(wizard, nullptr);
    dialog->SetCode(static_cast<DWORD>(random()));
    return dialog;
}

template <EWizardMode mode>
Dialog MakeSelection(CFunWizard* wizard, Random&)
{
    return std::make_unique<CPosSelectDlg>(wizard, mode, nullptr);
}

const std::vector<SFuzzed>& Fuzzed()
{
    static const std::vector<SFuzzed> all = [] {
        std::vector<SFuzzed> rows = {{"PidWorkAreas", MakePid},
                                     {"ControlCode", MakeControlCode, false},
                                     {"Instructions", MakeSelection<kPulseInstructions>, false},
                                     {"Operations", MakeSelection<kUnitOperations>, false}};
        for (const SInstructionDialog& row : kInstructionDialogs)
            rows.push_back(
                {row.name, [make = row.make](CFunWizard* wizard, Random&) { return make(wizard); }, true, &row});
        return rows;
    }();
    return all;
}

std::ostream& operator<<(std::ostream& out, const SFuzzed& fuzzed) { return out << fuzzed.name; }

class CFuzzTest : public CDesktopTest, public testing::WithParamInterface<SFuzzed>
{
protected:
    CFuzzTest()
    {
        SetUpController(m_wizard);
        PexloDll_SetAppName("Fuzzed");
    }
    ~CFuzzTest() override { PexloDll_SetAppName(nullptr); }

    /// One sequence: some openings on the same wizard object, whose lists are those of the sequence before.
    void RunSequence(unsigned seed)
    {
        Random random(seed);
        if (OneIn(random, 8))
            SetUp(random);
        const int openings = 1 + Below(random, 2);
        for (int i = 0; i < openings && !HasFailure(); ++i)
        {
            const SResults before = ReadResults(m_wizard);
            const Random form{random()};
            const int result = Open(form, [&](CDialogRobot& robot) { PlaySteps(robot, random); });
            m_accepted += result == IDOK;
            if (result == IDOK && GetParam().keepsLists)
                ExpectConfirmedAgain(form);
            else
                EXPECT_EQ(ReadResults(m_wizard), before);
        }
    }

    unsigned m_accepted = 0;
    unsigned m_refused = 0;

private:
    void SetUp(Random& random)
    {
        m_wizard.ResetContents();
        m_wizard.RemoveAllContInfo();
        SetUpController(m_wizard);
        m_wizard.SetLanguageInfo(OneIn(random, 3) ? -1 : kEnglish);
        m_wizard.SetStartType(static_cast<BYTE>(Below(random, 3)));
        m_wizard.SetMaxSlot(static_cast<BYTE>(1 + Below(random, 64)));
        m_wizard.SetCmtRec(!OneIn(random, 4));
        if (OneIn(random, 4))
            SetDeviceRange(m_wizard, kDT, Below(random, 100), Below(random, 120)); // none, or a small one
        if (OneIn(random, 4))
            SetDeviceRange(m_wizard, kY, 0, Below(random, 200));
    }

    /// Opens the dialog in a form, the same for the same numbers.
    int Open(Random form, const CDialogRobot::Scene& scene)
    {
        const Dialog dialog = GetParam().make(&m_wizard, form);
        std::vector<CDialogRobot::Scene> scenes = {scene};
        if (dynamic_cast<CPosCtrlCodeDlg*>(dialog.get()) != nullptr)
        {
            scenes[0] = [&](CDialogRobot& robot) {
                robot.Click(IDC_CTRL_DIRECT_INPUT);
                scene(robot);
            };
            scenes.push_back(scene);
        }
        return Play([&] { return static_cast<int>(dialog->DoModal()); }, scenes);
    }

    /// What was accepted is accepted again, and the lists stay as they are.
    void ExpectConfirmedAgain(const Random& form)
    {
        const SResults confirmed = GetParam().Comparable(ReadResults(m_wizard));
        EXPECT_EQ(Open(form,
                       [](CDialogRobot& robot) {
                           EXPECT_EQ(robot.ClickAndAnswer(IDOK), CString());
                           if (robot.IsOpen())
                               robot.Click(IDCANCEL);
                       }),
                  IDOK);
        EXPECT_EQ(GetParam().Comparable(ReadResults(m_wizard)), confirmed);
    }

    void PlaySteps(CDialogRobot& robot, Random& random)
    {
        const int steps = Below(random, kMostSteps);
        if (OneIn(random, 2))
            FillIn(robot, random);
        for (int i = 0; i < steps && robot.IsOpen() && !HasFailure(); ++i)
            PlayStep(robot, random);
        if (robot.IsOpen() && robot.Enabled(IDOK) && OneIn(random, 2))
            ClickOk(robot);
        if (robot.IsOpen())
            robot.Dismiss();
    }

    static std::vector<SRobotControl> Usable(const CDialogRobot& robot)
    {
        std::vector<SRobotControl> usable;
        for (const SRobotControl& control : robot.Controls())
            if (control.enabled && control.visible && control.id != 0xFFFF && control.className != "Static")
                usable.push_back(control);
        return usable;
    }

    // So that some sequences get as far as OK.
    static void FillIn(CDialogRobot& robot, Random& random)
    {
        constexpr const char* kNumbers[] = {"1", "2", "40", "50", "100"};
        for (const SRobotControl& control : Usable(robot))
            if (control.className == "Edit")
                robot.Type(control.id, kNumbers[Below(random, std::size(kNumbers))]);
        if (robot.Exists(kGridCells) && robot.Enabled(kGridCells))
            Paste(robot, random);
    }

    /// Pastes some rows of ascending numbers, seldom more than there is room for, into the table from the first cell
    /// on.
    static void Paste(CDialogRobot& robot, Random& random)
    {
        std::string text;
        int number = 0;
        for (int row = Below(random, OneIn(random, 20) ? 60 : 12); row >= 0; --row)
            text += std::to_string(number += 1 + Below(random, 20)) + "\t" + std::to_string(Below(random, 100)) + "\n";
        robot.Answering(IDOK, [&] { PasteCells(robot, text); });
    }

    void PlayStep(CDialogRobot& robot, Random& random)
    {
        const std::vector<SRobotControl> usable = Usable(robot);
        ASSERT_FALSE(usable.empty());
        const SRobotControl& control = usable[static_cast<size_t>(Below(random, usable.size()))];
        if (control.id == kGridCells)
            robot.Answering(IDOK, [&] { WorkInTable(robot, random); });
        else if (OneIn(random, 8))
            PressKey(robot, random);
        else if (control.className == "Edit")
            Enter(robot, control.id, random);
        else if (control.className == "ComboBox" || control.className == "ListBox")
            SelectAny(robot, control.id, random);
        else if (control.id == IDOK)
            ClickOk(robot);
        else if (control.id != IDC_CTRL_DIRECT_INPUT && (control.id != IDCANCEL || OneIn(random, 3)))
            robot.Click(control.id);
    }

    static void Enter(CDialogRobot& robot, UINT edit, Random& random)
    {
        constexpr size_t kMostTyped = 40;
        const std::string text = GeneratedText(static_cast<unsigned>(random()));
        if (text.size() > kMostTyped)
            robot.SetText(edit, text.substr(0, 300).c_str());
        else
            robot.Type(edit, text.c_str());
    }

    static void WorkInTable(CDialogRobot& robot, Random& random)
    {
        constexpr UINT kKeys[] = {VK_UP,  VK_DOWN, VK_LEFT, VK_RIGHT,  VK_PRIOR, VK_NEXT, VK_HOME,   VK_END,
                                  VK_TAB, VK_TAB,  VK_F2,   VK_RETURN, VK_BACK,  VK_F2,   VK_DELETE, VK_ESCAPE};
        constexpr UINT kCtrlKeys[] = {'C', 'D', 'I', 'V', VK_HOME, VK_END, 'X', VK_UP};
        constexpr char kMenuKeys[] = {'p', 'c', 'a', 'i', 'd'};
        const int row = Below(random, 5), column = Below(random, 2);
        switch (Below(random, 10))
        {
        case 0:
            return ClickCell(robot, row, column);
        case 1:
            return DoubleClickCell(robot, row, column);
        case 2:
            return Scroll(robot, static_cast<UINT>(Below(random, 9)), Below(random, 70));
        case 3:
            return TurnWheel(robot, Below(random, 1000) - 500);
        case 4:
            return ChooseInMenu(robot, kMenuKeys[Below(random, std::size(kMenuKeys))]);
        case 5:
            ClickCell(robot, row, column);
            return robot.Paste(GeneratedText(static_cast<unsigned>(random())).substr(0, 300).c_str());
        case 6:
            ClickCell(robot, row, column);
            return TypeHere(robot, GeneratedText(static_cast<unsigned>(random())).substr(0, 12));
        case 7:
            return Paste(robot, random);
        case 8:
            ClickCell(robot, row, column);
            return PressCtrl(robot, kCtrlKeys[Below(random, std::size(kCtrlKeys))]);
        default:
            ClickCell(robot, row, column);
            if (OneIn(random, 2))
                TypeHere(robot, std::to_string(Below(random, 200)));
            return robot.PressKey(kKeys[Below(random, robot.Visible(EditorOf(robot)) ? 16 : 15)]); // Esc leaves
        }
    }

    static void SelectAny(CDialogRobot& robot, UINT list, Random& random)
    {
        const size_t count = robot.Items(list).size();
        if (count > 0)
            robot.Select(list, Below(random, count));
    }

    static void PressKey(CDialogRobot& robot, Random& random)
    {
        constexpr UINT kKeys[] = {VK_TAB,  VK_RETURN, VK_SPACE, VK_UP,     VK_DOWN, VK_LEFT, VK_RIGHT,
                                  VK_HOME, VK_END,    VK_BACK,  VK_DELETE, VK_F1,   VK_PRIOR};
        const UINT key = kKeys[Below(random, std::size(kKeys))];
        if (robot.FocusId() == IDC_CTRL_DIRECT_INPUT)
            return; // its dialog has been played
        robot.Answering(IDOK, [&] { robot.PressKey(key); });
    }

    void ClickOk(CDialogRobot& robot)
    {
        const SResults before = ReadResults(m_wizard);
        const int commentsBefore = m_wizard.IsCmtRec();
        const int onlyTableBefore = m_wizard.IsOnlyDataTable();
        const CString message = robot.ClickAndAnswer(IDOK);
        if (!robot.IsOpen())
        {
            EXPECT_EQ(message, CString());
            return;
        }
        ++m_refused;
        EXPECT_EQ(ReadResults(m_wizard), before) << "after a refused OK";
        EXPECT_EQ(m_wizard.IsCmtRec(), commentsBefore);
        EXPECT_EQ(m_wizard.IsOnlyDataTable(), onlyTableBefore);
    }

    CFunWizard m_wizard;
};

TEST_P(CFuzzTest, KeepsTheListsWhole)
{
    const unsigned sequences = Setting("PEXLO_FUZZ", kSequences) / static_cast<unsigned>(Fuzzed().size());
    const unsigned firstSeed = Setting("PEXLO_FUZZ_SEED", 1);
    for (unsigned i = 0; i < sequences && !HasFailure(); ++i)
    {
        SCOPED_TRACE(testing::Message() << "sequence " << i << " of PEXLO_FUZZ_SEED=" << firstSeed);
        RunSequence(firstSeed * 1000003u + i);
    }
    constexpr unsigned kEnough = 100;
    if (sequences >= kEnough)
    {
        EXPECT_GT(m_accepted, sequences / 50);
        EXPECT_TRUE(m_refused > sequences / 50 || !GetParam().keepsLists);
    }
}

INSTANTIATE_TEST_SUITE_P(Dialogs, CFuzzTest, testing::ValuesIn(Fuzzed()),
                         [](const auto& test) { return test.param.name; });

} // namespace
