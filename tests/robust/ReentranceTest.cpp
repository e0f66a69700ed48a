// A host whose timers go on while a dialog is open, and call whatever they like: the dialog goes on as if nothing had
// been, or ends when its object is gone. The scenes of a robot are such code: they run in the loop of the dialog.
#include "tests/core/FunWizardTest.h"
#include "tests/dialogs/InstructionDialogs.h"
#include "tests/dialogs/pulse/Spd1Test.h"
#include "tests/support/Controller.h"
#include "tests/support/DesktopTest.h"

#include "core/FunWizard.h"
#include "resources/resource.h"

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace
{

constexpr int kEnglish = 0;
constexpr int kNoLanguage = 7;
constexpr const char* kEnglishLibrary = "PlxRcEnu.DLL";
constexpr ULONG kCode = 0x80000000;
constexpr int kInstruction = 168;

/// A window of the host, whose messages come in whichever loop runs.
class CHostWindow : public CWnd
{
public:
    CHostWindow() { CreateEx(0, nullptr, "host", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr); }
    ~CHostWindow() override { DestroyWindow(); }

    /// Runs the action in the next loop that delivers messages, before anything that has been posted already.
    void Post(std::function<void()> action)
    {
        std::vector<MSG> earlier;
        for (MSG message; ::PeekMessageA(&message, nullptr, WM_USER, 0xFFFF, PM_REMOVE);)
            earlier.push_back(message);
        m_action = std::move(action);
        PostMessage(WM_APP);
        for (const MSG& message : earlier)
            ::PostMessageA(message.hwnd, message.message, message.wParam, message.lParam);
    }

protected:
    DECLARE_MESSAGE_MAP()

    LRESULT OnRun(WPARAM, LPARAM)
    {
        std::exchange(m_action, nullptr)();
        return 0;
    }

private:
    std::function<void()> m_action;
};

BEGIN_MESSAGE_MAP(CHostWindow, CWnd)
ON_MESSAGE(WM_APP, &CHostWindow::OnRun)
END_MESSAGE_MAP()

/// Where the host's code runs.
enum ESituation
{
    kInSelection,
    kInInstruction,
    kUnderMessageBox, // of an instruction dialog
    kInControlCode,
    kInDirectInput // on top of the control code
};

constexpr ESituation kSituations[] = {kInSelection, kInInstruction, kUnderMessageBox, kInControlCode, kInDirectInput};

void PrintTo(ESituation situation, std::ostream* out)
{
    constexpr const char* kNames[] = {"Selection", "Instruction", "MessageBox", "ControlCode", "DirectInput"};
    *out << kNames[situation];
}

bool IsLibraryLoaded() { return ::GetModuleHandleA(kEnglishLibrary) != nullptr; }

class CReentranceTest : public CDesktopTest, public testing::WithParamInterface<ESituation>
{
protected:
    using Action = std::function<void()>;
    using Scenes = std::vector<CDialogRobot::Scene>;

    CReentranceTest()
    {
        SetUpController(*m_wizard);
        EXPECT_NE(m_wizard->SetLanguageInfo(kEnglish), nullptr);
    }

    void TearDown() override
    {
        m_host.DestroyWindow();
        CDesktopTest::TearDown();
    }

    /// Runs `action` in the situation and works on, up to OK. Returns what the host gets.
    /// The scenes are those of dialogs that the action opens.
    int ConfirmWith(const Action& action, const Scenes& scenes = {}) { return PlayIn(action, scenes, true); }
    /// Runs `action` in the situation, which ends the dialogs.
    int EndWith(const Action& action, const Scenes& scenes = {}) { return PlayIn(action, scenes, false); }

    bool IsOfControlCode() const { return GetParam() == kInControlCode || GetParam() == kInDirectInput; }

    ULONG m_code = kCode;
    std::unique_ptr<CFunWizard> m_wizard = std::make_unique<CFunWizard>();
    CHostWindow m_host;

private:
    int PlayIn(const Action& action, const Scenes& nested, bool goesOn)
    {
        m_code = kCode;
        WriteResults(*m_wizard, SResults()); // the dialogs open without entries
        if (IsOfControlCode())
            return PlayControlCode(action, nested, goesOn);
        const bool inSelection = GetParam() == kInSelection;
        Scenes scenes;
        scenes.push_back([=](CDialogRobot& selection) {
            if (inSelection)
                action();
            if (!inSelection || goesOn)
                selection.Click(IDOK);
        });
        if (inSelection)
            scenes.insert(scenes.end(), nested.begin(), nested.end());
        if (!inSelection || goesOn)
            scenes.push_back([=, this](CDialogRobot& dialog) { WorkInInstruction(dialog, action, goesOn); });
        if (!inSelection)
            scenes.insert(scenes.end(), nested.begin(), nested.end());
        return Play([this] { return m_wizard->DoOpenPosDlg(0, 0, nullptr); }, std::move(scenes));
    }

    void WorkInInstruction(CDialogRobot& dialog, const Action& action, bool goesOn)
    {
        if (GetParam() == kInInstruction)
            action();
        if (GetParam() == kUnderMessageBox)
        {
            bool wasUnderBox = false;
            m_host.Post([&] {
                wasUnderBox = !dialog.Dialog()->IsWindowEnabled(); // the box has disabled it
                action();
            });
            EXPECT_STREQ(dialog.ClickAndAnswer(IDOK), "Please input a numerical value correctly.");
            EXPECT_TRUE(wasUnderBox);
        }
        if (!goesOn)
            return;
        EXPECT_STREQ(dialog.ClickAndAnswer(IDOK), "Please input a numerical value correctly.");
        FillIn(dialog, SSpd1Entries());
        dialog.Click(IDOK);
    }

    int PlayControlCode(const Action& action, const Scenes& nested, bool goesOn)
    {
        const bool inDirectInput = GetParam() == kInDirectInput;
        Scenes scenes;
        scenes.push_back([=](CDialogRobot& dialog) {
            if (inDirectInput)
                dialog.Click(IDC_CTRL_DIRECT_INPUT);
            else
                action();
            if (goesOn)
                dialog.Click(IDOK);
        });
        if (inDirectInput)
            scenes.push_back([=](CDialogRobot& dialog) {
                action();
                if (!goesOn)
                    return;
                dialog.Type(IDC_CTRL_HEX, "x");
                EXPECT_FALSE(dialog.ClickAndAnswer(IDOK).IsEmpty());
                dialog.Type(IDC_CTRL_HEX, "00000001");
                dialog.Click(IDOK);
            });
        scenes.insert(scenes.end(), nested.begin(), nested.end());
        return Play([this] { return m_wizard->DoInputPosCtrlDlg(m_code, nullptr); }, std::move(scenes));
    }
};

/// What F168 leaves in the lists when nothing interferes.
SResults ResultsOfInstruction()
{
    CFunWizard wizard;
    SetUpController(wizard);
    CDialogRobot robot;
    robot.Play([&] { return wizard.DoOpenPosDlg(0, 0, nullptr); },
               {[](CDialogRobot& selection) { selection.Click(IDOK); },
                [](CDialogRobot& dialog) {
                    FillIn(dialog, SSpd1Entries());
                    dialog.Click(IDOK);
                }});
    EXPECT_TRUE(robot.Failures().empty());
    return ReadResults(wizard);
}

const SResults& SomeResults()
{
    static const SResults results = {{{2, kX, 5}, {2, kX, 6}, {3, kY, 7}},
                                     {{kDT, 7}, {kK, 1}},
                                     {{kDT, 7, 0, 1, 0}},
                                     {"before"},
                                     {{8, -1, 168, 0, 0}}};
    return results;
}

} // namespace

// ---- Refused --------------------------------------------------------------------------------------------------------

TEST_P(CReentranceTest, TheLanguageLibraryStays)
{
    const HINSTANCE library = m_wizard->GetLoadInstance();
    EXPECT_EQ(ConfirmWith([&] {
                  EXPECT_EQ(m_wizard->SetLanguageInfo(kNoLanguage), nullptr);
                  EXPECT_EQ(m_wizard->SetLanguageInfo(kEnglish), nullptr);
                  EXPECT_EQ(m_wizard->GetLoadInstance(), library);
                  EXPECT_TRUE(IsLibraryLoaded());
              }),
              IDOK);
    EXPECT_EQ(m_wizard->GetLoadInstance(), library);
    EXPECT_EQ(m_wizard->SetLanguageInfo(kNoLanguage), nullptr);
    EXPECT_FALSE(IsLibraryLoaded()) << "it can be set again";
}

TEST_P(CReentranceTest, TheFontStays)
{
    EXPECT_EQ(ConfirmWith([&] {
                  CFont* font = SFunWizardTest::DialogFont(*m_wizard);
                  EXPECT_NE(font, nullptr);
                  const HGDIOBJ handle = font->GetSafeHandle();
                  EXPECT_EQ(m_wizard->CreateDlgFont(nullptr), nullptr);
                  EXPECT_EQ(m_wizard->CreateDlgFont(m_robot.Dialog()), nullptr);
                  m_wizard->DeleteDlgFont();
                  EXPECT_EQ(SFunWizardTest::DialogFont(*m_wizard), font);
                  EXPECT_EQ(font->GetSafeHandle(), handle);
                  EXPECT_NE(::GetObjectType(handle), 0u);
              }),
              IDOK);
    EXPECT_EQ(SFunWizardTest::DialogFont(*m_wizard), nullptr) << "deleted when the dialog was confirmed";
    EXPECT_NE(m_wizard->CreateDlgFont(nullptr), nullptr);
    m_wizard->DeleteDlgFont();
    EXPECT_EQ(SFunWizardTest::DialogFont(*m_wizard), nullptr);
}

TEST_P(CReentranceTest, ContentsAreNotReset)
{
    EXPECT_EQ(ConfirmWith([&] {
                  WriteResults(*m_wizard, SomeResults());
                  void* const data = ::operator new(4);
                  m_wizard->SetDlgDataPtr(data);
                  m_wizard->ResetContents();
                  EXPECT_TRUE(IsLibraryLoaded());
                  EXPECT_EQ(ReadResults(*m_wizard), SomeResults());
                  EXPECT_EQ(m_wizard->GetDlgDataPtr(), data);
                  EXPECT_EQ(m_wizard->FindSupportFun(kInstruction), 1);
                  EXPECT_NE(SFunWizardTest::RangeCount(*m_wizard), 0);
              }),
              IDOK);
    m_wizard->ResetContents();
    EXPECT_FALSE(IsLibraryLoaded());
    EXPECT_EQ(SFunWizardTest::RangeCount(*m_wizard), 0);
}

TEST_P(CReentranceTest, NoSecondDialogOpens)
{
    SFunWizardTest::SetLastWizard(*m_wizard, 1, kInstructionUnit, kUnitPulsar);
    EXPECT_EQ(ConfirmWith([&] {
                  WriteResults(*m_wizard, SomeResults());
                  const int last = SFunWizardTest::LastInstruction(*m_wizard);
                  const int variant = SFunWizardTest::LastVariant(*m_wizard);
                  const int axis = SFunWizardTest::AxisFlag(*m_wizard);
                  ULONGLONG mask = 0;
                  ULONG code = 5;
                  EXPECT_EQ(m_wizard->DoOpenPosDlg(0, 7, nullptr), 2);
                  EXPECT_EQ(m_wizard->DoOpenPosDlg(1, 7, m_robot.Dialog()), 2);
                  EXPECT_EQ(m_wizard->DoOpenPIDDlg(19, nullptr), 2);
                  EXPECT_EQ(m_wizard->DoOpenSCRDlg(&mask, nullptr), 2);
                  EXPECT_EQ(m_wizard->DoOpenSCALDlg(&mask, 0, nullptr), 2);
                  EXPECT_EQ(m_wizard->DoInputPosCtrlDlg(code, nullptr), 2);
                  EXPECT_EQ(code, 5u);
                  EXPECT_EQ(ReadResults(*m_wizard), SomeResults());
                  EXPECT_EQ(SFunWizardTest::LastInstruction(*m_wizard), last);
                  EXPECT_EQ(SFunWizardTest::LastVariant(*m_wizard), variant);
                  EXPECT_EQ(SFunWizardTest::AxisFlag(*m_wizard), axis);
              }),
              IDOK);
    EXPECT_EQ(ConfirmWith([] {}), IDOK) << "afterwards dialogs open again";
}

// ---- Permitted ------------------------------------------------------------------------------------------------------

TEST_P(CReentranceTest, AnotherObjectOpensItsOwnDialogs)
{
    CFunWizard other;
    SetUpController(other);
    const auto openOther = [&] {
        ULONG code = 0;
        EXPECT_NE(other.SetLanguageInfo(kEnglish), nullptr);
        EXPECT_EQ(other.DoInputPosCtrlDlg(code, nullptr), 1);
        EXPECT_EQ(other.DoOpenPIDDlg(19, m_robot.Dialog()), 2);
        EXPECT_EQ(SFunWizardTest::LastInstruction(other), 355) << "it was opened";
        other.ResetContents();
        EXPECT_EQ(other.GetLoadInstance(), nullptr);
    };
    EXPECT_EQ(ConfirmWith(openOther, {[](CDialogRobot& dialog) { dialog.Click(IDOK); },
                                      [](CDialogRobot& dialog) { dialog.Click(IDCANCEL); }}),
              IDOK);
    EXPECT_TRUE(IsLibraryLoaded());
}

TEST_P(CReentranceTest, TheListsMayChange)
{
    const SResults expected = ResultsOfInstruction();
    for (const bool fills : {false, true})
    {
        EXPECT_EQ(ConfirmWith([&] {
                      WriteResults(*m_wizard, fills ? SomeResults() : SResults());
                      m_wizard->RemoveDlgData();
                      m_wizard->SetDlgDataPtr(::operator new(4));
                      m_wizard->RemoveDlgData();
                      m_wizard->CreateInstCode();
                      EXPECT_EQ(m_wizard->CreateInstCode_1() + m_wizard->CreateInstCode_2() >= 0, true);
                  }),
                  IDOK);
        if (IsOfControlCode())
            continue;
        SResults results = ReadResults(*m_wizard);
        results.instructions.clear();
        EXPECT_EQ(results, expected);
    }
}

TEST_P(CReentranceTest, SettingsMayChange)
{
    EXPECT_EQ(ConfirmWith([&] {
                  for (short code = 0; code < 300; ++code)
                      m_wizard->SetDevRange(-1, static_cast<short>(1000 + code), 0, code); // makes the table grow
                  SetDeviceRange(*m_wizard, kDT, 0, 5000);
                  m_wizard->SetMaxSlot(0);
                  m_wizard->ResetChannelNo();
                  m_wizard->SetF175DispType(2);
                  m_wizard->ClearSuppportFunInfo();
                  m_wizard->EntrySupportFunInfo(kInstruction);
                  m_wizard->SetStartType(2);
                  m_wizard->SetOnlyDataTable(1);
                  m_wizard->SetCmtRec(0);
                  const std::string longText(100000, 'x');
                  m_wizard->SetHelpPath(longText.c_str());
                  m_wizard->SetHelpPath(nullptr);
                  m_wizard->SetAppName(longText.c_str());
                  PexloDll_SetAppName(longText.c_str());
                  PexloDll_SetAppName("");
              }),
              IDOK);
}

// ---- Destroyed ------------------------------------------------------------------------------------------------------

TEST_P(CReentranceTest, DestroyingTheObjectEndsItsDialogs)
{
    HGDIOBJ font = nullptr;
    EXPECT_EQ(EndWith([&] {
                  font = SFunWizardTest::DialogFont(*m_wizard)->GetSafeHandle();
                  m_wizard.reset();
                  EXPECT_TRUE(IsLibraryLoaded()) << "the dialogs still use it";
                  EXPECT_NE(::GetObjectType(font), 0u);
              }),
              2);
    EXPECT_EQ(m_code, kCode);
    EXPECT_FALSE(IsLibraryLoaded());
    EXPECT_EQ(::GetObjectType(font), 0u);
}

// As messages do that were on their way.
TEST_P(CReentranceTest, DialogsOfADestroyedObjectWorkOnUntilTheyEnd)
{
    EXPECT_EQ(EndWith([&] {
                  const HWND dialog = m_robot.Dialog()->GetSafeHwnd();
                  m_wizard.reset();
                  for (const UINT id : {IDC_CONTACT_DEVICE, IDC_SPD1_OUTPUT, IDC_SPD1_MODE, IDC_CTRL_POSITION_COMMAND})
                      ::SendMessageA(dialog, WM_COMMAND, MAKEWPARAM(id, CBN_SELCHANGE), 0);
                  ::SendMessageA(dialog, WM_COMMAND, MAKEWPARAM(IDC_SELECT_LIST, LBN_SELCHANGE), 0);
                  ::SendMessageA(dialog, WM_COMMAND, MAKEWPARAM(IDC_ONLY_DATA_TABLE, BN_CLICKED), 0);
                  ::SendMessageA(dialog, WM_COMMAND, MAKEWPARAM(IDC_CLEAR_SETTINGS, BN_CLICKED), 0);
                  ::SendMessageA(dialog, WM_COMMAND, MAKEWPARAM(IDC_HELP_TOPIC, BN_CLICKED), 0);
                  ::RedrawWindow(dialog, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
              }),
              2);
}

TEST_P(CReentranceTest, OkComesTooLateForADestroyedObject)
{
    if (GetParam() == kUnderMessageBox)
        return; // It has disabled the dialog.
    EXPECT_EQ(EndWith([&] {
                  const HWND dialog = m_robot.Dialog()->GetSafeHwnd();
                  const auto clickOk = [dialog] { ::SendMessageA(dialog, WM_COMMAND, IDOK, 0); };
                  if (GetParam() == kInInstruction)
                      FillIn(m_robot, SSpd1Entries());
                  m_wizard.reset();
                  if (GetParam() == kInInstruction)
                      m_robot.Answering(IDOK, clickOk); // No device is there any more.
                  else
                      clickOk();
              }),
              2);
    EXPECT_EQ(m_code, kCode);
}

TEST_P(CReentranceTest, ANewObjectTakesThePlaceOfADestroyedOne)
{
    const auto replacement = [&] {
        std::destroy_at(m_wizard.get());
        std::construct_at(m_wizard.get()); // at the same address
        SetUpController(*m_wizard);
        EXPECT_NE(m_wizard->SetLanguageInfo(kEnglish), nullptr) << "it has no dialog open";
        EXPECT_NE(m_wizard->CreateDlgFont(nullptr), nullptr);
    };
    EXPECT_EQ(EndWith(replacement), 2);
    EXPECT_NE(m_wizard->GetLoadInstance(), nullptr);
    EXPECT_TRUE(IsLibraryLoaded());
    EXPECT_NE(SFunWizardTest::DialogFont(*m_wizard), nullptr);
    EXPECT_EQ(SFunWizardTest::LastInstruction(*m_wizard), -1);
    EXPECT_EQ(m_wizard->GetContInfoCount(), 0);
    EXPECT_EQ(ConfirmWith([] {}), IDOK);
}

TEST_P(CReentranceTest, TheObjectIsDestroyedBelowADialogOfAnother)
{
    CFunWizard other;
    SetUpController(other);
    EXPECT_EQ(EndWith(
                  [&] {
                      ULONG code = 0;
                      EXPECT_EQ(other.DoInputPosCtrlDlg(code, nullptr), 1) << "the other dialog goes on";
                      EXPECT_TRUE(IsLibraryLoaded()) << "the dialogs below are still there";
                  },
                  {[&](CDialogRobot& dialog) {
                      m_wizard.reset();
                      dialog.Click(IDOK);
                  }}),
              2);
    EXPECT_FALSE(IsLibraryLoaded());
}

INSTANTIATE_TEST_SUITE_P(Situations, CReentranceTest, testing::ValuesIn(kSituations),
                         [](const auto& test) { return testing::PrintToString(test.param); });

// ---- Every dialog ---------------------------------------------------------------------------------------------------

namespace
{

class CReentranceOfDialogsTest : public CDesktopTest, public testing::WithParamInterface<SInstructionDialog>
{
protected:
    CReentranceOfDialogsTest()
    {
        SetUpController(*m_wizard);
        m_dialog = GetParam().make(m_wizard.get());
    }

    int PlayWith(const std::function<void(CDialogRobot&)>& scene)
    {
        return Play([this] { return static_cast<int>(m_dialog->DoModal()); }, {scene});
    }

    /// Lets every list and check box tell the dialog that it has changed.
    static void NotifyAll(HWND dialog)
    {
        for (HWND item = ::GetWindow(dialog, GW_CHILD); item != nullptr; item = ::GetWindow(item, GW_HWNDNEXT))
        {
            const int id = ::GetDlgCtrlID(item);
            if (id == IDOK || id == IDCANCEL)
                continue;
            ::SendMessageA(dialog, WM_COMMAND, MAKEWPARAM(id, CBN_SELCHANGE), reinterpret_cast<LPARAM>(item));
            ::SendMessageA(dialog, WM_COMMAND, MAKEWPARAM(id, BN_CLICKED), reinterpret_cast<LPARAM>(item));
            ::SendMessageA(dialog, WM_COMMAND, MAKEWPARAM(id, EN_KILLFOCUS), reinterpret_cast<LPARAM>(item));
        }
    }

    std::unique_ptr<CFunWizard> m_wizard = std::make_unique<CFunWizard>();
    std::unique_ptr<CWzdDlgBase> m_dialog;
};

} // namespace

TEST_P(CReentranceOfDialogsTest, WorksOnWhenEverythingItHasReadChanges)
{
    CHostWindow host;
    WriteResults(*m_wizard, SomeResults());
    EXPECT_EQ(PlayWith([&](CDialogRobot& dialog) {
                  const auto change = [this] {
                      for (const int code : {kX, kY, kR, kSpecialR, kT, kC, kL, kDT})
                          SetDeviceRange(*m_wizard, code, 0, -1);
                      m_wizard->ResetChannelNo();
                      m_wizard->SetMaxSlot(0);
                      m_wizard->SetPlcType(kPlcFamilyC);
                      WriteResults(*m_wizard, SResults());
                      for (int i = 0; i < 3; ++i)
                          m_wizard->AddContInfo(2, -1, -1);
                  };
                  change();
                  NotifyAll(dialog.Dialog()->GetSafeHwnd());
                  host.Post([&] { WriteResults(*m_wizard, SomeResults()); });
                  EXPECT_FALSE(dialog.ClickAndAnswer(IDOK).IsEmpty()) << "no range is left";
                  EXPECT_EQ(ReadResults(*m_wizard), SomeResults());
                  dialog.Click(IDCANCEL);
              }),
              IDCANCEL);
    CHostWindow().DestroyWindow();
}

TEST_P(CReentranceOfDialogsTest, EndsWithItsObject)
{
    EXPECT_EQ(PlayWith([&](CDialogRobot& dialog) {
                  m_wizard.reset();
                  NotifyAll(dialog.Dialog()->GetSafeHwnd());
              }),
              IDCANCEL);
}

TEST_P(CReentranceOfDialogsTest, EndsWithItsObjectUnderAMessageBox)
{
    CHostWindow host;
    EXPECT_EQ(PlayWith([&](CDialogRobot& dialog) {
                  host.Post([&] { m_wizard.reset(); });
                  EXPECT_FALSE(dialog.ClickAndAnswer(IDOK).IsEmpty());
                  NotifyAll(dialog.Dialog()->GetSafeHwnd());
              }),
              IDCANCEL);
}

// Whichever entry the box is about: those before it are given values that are accepted.
TEST_P(CReentranceOfDialogsTest, EndsWithItsObjectUnderTheMessageBoxOfAnyField)
{
    constexpr int kMostRefusals = 60;
    const char* const kValues[] = {"", "1", "2", "100", "1000", "0.5"};
    bool isAccepted = false;
    int refusals = 0;
    for (; refusals < kMostRefusals && !isAccepted; ++refusals)
    {
        m_wizard = std::make_unique<CFunWizard>();
        SetUpController(*m_wizard);
        m_dialog = GetParam().make(m_wizard.get());
        CHostWindow host;
        PlayWith([&](CDialogRobot& dialog) {
            std::map<UINT, size_t> tried;
            for (int i = 0; i < refusals && !isAccepted; ++i)
            {
                isAccepted = dialog.ClickAndAnswer(IDOK).IsEmpty();
                if (isAccepted)
                    return;
                const UINT edit = dialog.FocusId();
                ASSERT_LT(++tried[edit], std::size(kValues)) << "nothing is accepted in " << edit;
                dialog.Type(edit, kValues[tried[edit]]);
            }
            host.Post([&] { m_wizard.reset(); });
            isAccepted = dialog.ClickAndAnswer(IDOK).IsEmpty();
        });
    }
    EXPECT_TRUE(isAccepted);
    EXPECT_GT(refusals, 2);
}

INSTANTIATE_TEST_SUITE_P(Dialogs, CReentranceOfDialogsTest, testing::ValuesIn(kInstructionDialogs),
                         [](const auto& test) { return std::string(test.param.name); });
