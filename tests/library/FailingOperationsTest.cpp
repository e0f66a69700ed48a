// Every public operation of the library without memory, called as a host calls it: an exception that left the library
// would end this program.
#include <gtest/gtest.h>

#include <climits>
#include <cstdlib>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "core/FunWizard.h"
#include "tests/library/ImportedFunction.h"
#include "tests/library/PressingHost.h"
#include "tests/support/Sampled.h"

namespace
{

constexpr int kFailed = 0;
constexpr int kCancelled = 2;

// ---- Memory that the library gets from the C run-time library -------------------------------------------------------

struct SMemory
{
    bool isShort;
    int successes; // before the failures
    int failures;  // then everything succeeds again
    int failed;
};
SMemory g_memory = {};

bool IsRefused()
{
    if (!g_memory.isShort)
        return false;
    if (g_memory.successes > 0)
    {
        g_memory.successes--;
        return false;
    }
    if (g_memory.failures == 0)
        return false;
    g_memory.failures--;
    g_memory.failed++;
    return true;
}

void* FailingMalloc(size_t size) { return IsRefused() ? nullptr : std::malloc(size); }
void* FailingCalloc(size_t count, size_t size) { return IsRefused() ? nullptr : std::calloc(count, size); }
void* FailingRealloc(void* block, size_t size) { return IsRefused() ? nullptr : std::realloc(block, size); }

template <class TFunction>
void* Address(TFunction* function)
{
    return reinterpret_cast<void*>(function);
}

HDC WINAPI NoDC(HWND) { return nullptr; }
DWORD WINAPI NoFileName(HMODULE, LPSTR, DWORD) { return 0; }

// ---- The operations -------------------------------------------------------------------------------------------------

/// What an operation gave, so far as there is a result that tells failure from success.
enum EOutcome
{
    kNothing,
    kSucceeded,
    kRefused
};

EOutcome Outcome(bool succeeded) { return succeeded ? kSucceeded : kRefused; }

struct SOperation
{
    const char* name;
    std::function<EOutcome(CFunWizard& wizard, CPressingHost& host)> call;
    std::deque<int> buttons = {};
    bool opensDialogs = false;
};

void PrintTo(const SOperation& operation, std::ostream* out) { *out << operation.name; }

const std::string kLongText(5000, 't');
ULONGLONG g_permitted[4] = {~0ull, ~0ull, ~0ull, ~0ull};
int g_excludedIds[] = {1, 0};

EOutcome OpenPos(CFunWizard& wizard, CPressingHost& host, unsigned char mode)
{
    CWnd* const parent = CWnd::FromHandle(host.Window());
    EXPECT_EQ(wizard.DoOpenPosDlg(mode, 0, parent), kCancelled);
    return kNothing;
}

EOutcome CreateFont(CFunWizard& wizard, CPressingHost& host)
{
    const CFont* const font = wizard.CreateDlgFont(CWnd::FromHandle(host.Window()));
    wizard.SetDlgFont(CWnd::FromHandle(host.Window()), 0, g_excludedIds);
    wizard.SetDlgFont(CWnd::FromHandle(host.Window()), 1, nullptr);
    wizard.DeleteDlgFont();
    ::SendMessageA(host.Window(), WM_SETFONT, 0, 0);
    return Outcome(font != nullptr);
}

EOutcome ReadLists(CFunWizard& wizard)
{
    short kind = 0;
    short code = 0;
    int value = 0;
    unsigned char flags[2] = {};
    SFunSetData data = {};
    SFWzdInstCode record = {};
    char comment[100] = "";
    for (int i = 0; i < wizard.GetContInfoCount(); i++)
        EXPECT_EQ(wizard.GetContInfo(i, kind, code, value), 1);
    for (int i = 0; i < wizard.GetOprdInfoCount(); i++)
        EXPECT_EQ(wizard.GetOprdInfo(i, code, value), 1);
    for (int i = 0; i < wizard.GetDataInfoCount(); i++)
        EXPECT_EQ(wizard.GetDataInfo(i, &data), 1);
    for (int i = 0; i < wizard.GetCmtInfoCount(); i++)
        EXPECT_EQ(wizard.GetCmtInfo(i, comment), 1);
    for (int i = 0; i < wizard.GetInstCodeCount(); i++)
    {
        EXPECT_EQ(wizard.GetInstCodeInfo(i, &record), 1);
        EXPECT_EQ(wizard.GetInstCode(i, kind, code, value, flags[0], flags[1]), 1);
    }
    return kNothing;
}

EOutcome ReadSettings(CFunWizard& wizard)
{
    short kind = 0;
    short code = 0;
    unsigned char bitKind = 0;
    for (int i = 0; i < 24; i++)
        wizard.GetSeqDevInfo(i, kind, code, bitKind, 3);
    int low = 0;
    int high = 0;
    EXPECT_EQ(wizard.GetDevRange(-1, 9, low, high), 1);
    EXPECT_EQ(wizard.GetPlcType(), 1);
    EXPECT_EQ(wizard.GetMaxSlot(), 32);
    EXPECT_EQ(wizard.GetNumOfChannel(171), 2);
    EXPECT_EQ(wizard.GetChannelNo(0, 171), 0);
    EXPECT_EQ(wizard.GetChannelTypeIndex(171), 0);
    wizard.GetF175DispType();
    wizard.GetLoadInstance();
    EXPECT_EQ(wizard.FindSupportFun(168), 1);
    EXPECT_EQ(wizard.GetSupportFunNum(0), 168);
    EXPECT_EQ(wizard.IsCmtRec(), 1);
    EXPECT_EQ(wizard.IsOnlyDataTable(), 0);
    EXPECT_EQ(wizard.GetStartType(), 0);
    wizard.IsAxisType();
    EXPECT_EQ(wizard.IsStartCondition(), 0);
    wizard.IsSameCondition();
    EXPECT_EQ(wizard.GetDlgDataPtr(), nullptr);
    EXPECT_TRUE(wizard.IsKindOf(RUNTIME_CLASS(CFunWizard)));
    return kNothing;
}

EOutcome ChangeSettings(CFunWizard& wizard)
{
    wizard.SetPlcType(160);
    wizard.SetMaxSlot(0);
    wizard.SetDefaultMaxSlot();
    wizard.ResetChannelNo();
    wizard.SetChannelNo(3, 175);
    wizard.SetF175DispType(2);
    wizard.SetCmtRec(0);
    wizard.SetOnlyDataTable(1);
    wizard.SetStartType(2);
    wizard.SetDlgDataPtr(nullptr);
    wizard.RemoveDlgData();
    wizard.ClearSuppportFunInfo();
    return kNothing;
}

EOutcome EmptyLists(CFunWizard& wizard)
{
    wizard.RemoveAllContInfo();
    wizard.RemoveAllOprdInfo();
    wizard.RemoveAllDataInfo();
    wizard.RemoveAllCmtInfo();
    wizard.RemoveAllInstCodeInfo();
    return kNothing;
}

template <int (CFunWizard::*Generate)()>
EOutcome Run(CFunWizard& wizard, CPressingHost&)
{
    return Outcome((wizard.*Generate)() == 1);
}

const SOperation kOperations[] = {
    {"Build",
     [](CFunWizard&, CPressingHost&) {
         const CFunWizard another;
         return kNothing;
     }},
    {"New",
     [](CFunWizard&, CPressingHost&) { return Outcome(std::unique_ptr<CFunWizard>(new CFunWizard) != nullptr); }},
    {"ResetContents",
     [](CFunWizard& wizard, CPressingHost&) {
         wizard.ResetContents();
         return kNothing;
     }},
    {"PosDlgPulse",
     [](CFunWizard& wizard, CPressingHost& host) { return OpenPos(wizard, host, 0); },
     {IDOK, IDOK},
     true},
    {"PosDlgUnit", [](CFunWizard& wizard, CPressingHost& host) { return OpenPos(wizard, host, 1); }, {}, true},
    {"PosCtrlDlg",
     [](CFunWizard& wizard, CPressingHost& host) {
         ULONG code = 3;
         const int result = wizard.DoInputPosCtrlDlg(code, CWnd::FromHandle(host.Window()));
         EXPECT_EQ(code, 3u);
         return Outcome(result == IDOK);
     },
     {IDOK},
     true},
    {"PIDDlg",
     [](CFunWizard& wizard, CPressingHost& host) {
         EXPECT_EQ(wizard.DoOpenPIDDlg(30, CWnd::FromHandle(host.Window())), kCancelled);
         return kNothing;
     },
     {IDOK},
     true},
    {"SCRDlg",
     [](CFunWizard& wizard, CPressingHost& host) {
         EXPECT_EQ(wizard.DoOpenSCRDlg(g_permitted, CWnd::FromHandle(host.Window())), kCancelled);
         return kNothing;
     }},
    {"SCALDlg",
     [](CFunWizard& wizard, CPressingHost& host) {
         for (int kind = 0; kind < 3; kind++)
             EXPECT_EQ(wizard.DoOpenSCALDlg(g_permitted, kind, CWnd::FromHandle(host.Window())), kCancelled);
         return kNothing;
     }},
    {"SetDevRange",
     [](CFunWizard& wizard, CPressingHost&) {
         for (short code = 100; code < 130; code++)
             wizard.SetDevRange(-1, code, 0, 10);
         return kNothing;
     }},
    {"SetLanguageInfo",
     [](CFunWizard& wizard, CPressingHost&) { return Outcome(wizard.SetLanguageInfo(0) != nullptr); }},
    {"DlgFont", CreateFont},
    {"SetHelpPath",
     [](CFunWizard& wizard, CPressingHost&) {
         wizard.SetHelpPath(kLongText.c_str());
         return kNothing;
     }},
    {"GetHelpPath", [](CFunWizard& wizard, CPressingHost&) { return Outcome(!wizard.GetHelpPath().IsEmpty()); }},
    {"SetAppName",
     [](CFunWizard& wizard, CPressingHost&) {
         wizard.SetAppName(kLongText.c_str());
         return kNothing;
     }},
    {"ModuleAppName",
     [](CFunWizard&, CPressingHost&) {
         PexloDll_SetAppName(kLongText.c_str());
         PexloDll_SetAppName(nullptr);
         return kNothing;
     }},
    {"EntrySupportFunInfo",
     [](CFunWizard& wizard, CPressingHost&) {
         wizard.ClearSuppportFunInfo();
         return Outcome(wizard.EntrySupportFunInfo(170) == 0);
     }},
    {"Settings", [](CFunWizard& wizard, CPressingHost&) { return ReadSettings(wizard); }},
    {"ChangeSettings", [](CFunWizard& wizard, CPressingHost&) { return ChangeSettings(wizard); }},
    {"AddContInfo",
     [](CFunWizard& wizard, CPressingHost&) {
         wizard.RemoveAllContInfo();
         return Outcome(wizard.AddContInfo(2, 3, 5) == 1);
     }},
    {"AddOprdInfo",
     [](CFunWizard& wizard, CPressingHost&) {
         wizard.RemoveAllOprdInfo();
         return Outcome(wizard.AddOprdInfo(9, 100) == 1);
     }},
    {"AddDataInfo",
     [](CFunWizard& wizard, CPressingHost&) {
         wizard.RemoveAllDataInfo();
         return Outcome(wizard.AddDataInfo(9, 100, 1, 0, 5) == 1);
     }},
    {"AddCmtInfo",
     [](CFunWizard& wizard, CPressingHost&) {
         wizard.RemoveAllCmtInfo();
         return Outcome(wizard.AddCmtInfo("Home return") == 1);
     }},
    {"AddInstCodeInfo",
     [](CFunWizard& wizard, CPressingHost&) {
         wizard.RemoveAllInstCodeInfo();
         return Outcome(wizard.AddInstCodeInfo(8, -1, 168, 0, 0) == 1);
     }},
    {"ReadLists", [](CFunWizard& wizard, CPressingHost&) { return ReadLists(wizard); }},
    {"EmptyLists", [](CFunWizard& wizard, CPressingHost&) { return EmptyLists(wizard); }},
    {"CreateInstCode", Run<&CFunWizard::CreateInstCode>},
    {"CreateInstCode_1", Run<&CFunWizard::CreateInstCode_1>},
    {"CreateInstCode_11", Run<&CFunWizard::CreateInstCode_11>},
    {"CreateInstCode_2", Run<&CFunWizard::CreateInstCode_2>},
    {"CreateInstCode_3", Run<&CFunWizard::CreateInstCode_3>},
    {"CreateInstCode_4", Run<&CFunWizard::CreateInstCode_4>},
};

void Configure(CFunWizard& wizard)
{
    wizard.SetPlcType(1);
    for (short code = 0; code < 10; code++)
        wizard.SetDevRange(-1, code, 0, 1599);
    wizard.SetChannelNo(0, 171);
    wizard.EntrySupportFunInfo(168);
    wizard.EntrySupportFunInfo(171);
    wizard.SetHelpPath("C:\\help.chm");
    wizard.AddContInfo(2, 3, 5);
    wizard.AddOprdInfo(9, 100);
    for (int i = 0; i < 20; i++)
        wizard.AddDataInfo(9, 100 + i, 0, 0, i);
    wizard.AddCmtInfo("Control code");
}

class FailingOperations : public ::testing::TestWithParam<SOperation>
{
protected:
    void SetUp() override
    {
        for (const CImportedFunction* function : {&m_malloc, &m_calloc, &m_realloc})
            ASSERT_TRUE(function->IsReplaced());
    }

    /// Calls the operation on an object of its own, with allocations failing as told. Returns how many failed.
    int CallWithout(int successes, int failures)
    {
        CFunWizard wizard;
        Configure(wizard);
        m_host.Press(GetParam().buttons);
        g_memory = {true, successes, failures, 0};
        m_outcome = GetParam().call(wizard, m_host);
        g_memory.isShort = false;
        m_host.StopPressing();
        return g_memory.failed;
    }

    /// How far to go on; dialogs take their time, and without a library between they are tested at every place.
    static int Step(int sampled) { return GetParam().opensDialogs ? SampledStep(sampled) : 1; }

    CPressingHost m_host;
    CImportedFunction m_malloc{"Pexlo.dll", "malloc", Address(FailingMalloc)};
    CImportedFunction m_calloc{"Pexlo.dll", "calloc", Address(FailingCalloc)};
    CImportedFunction m_realloc{"Pexlo.dll", "realloc", Address(FailingRealloc)};
    EOutcome m_outcome = kNothing;
};

} // namespace

TEST_P(FailingOperations, LetNoExceptionOut)
{
    for (int successes = 0; CallWithout(successes, 1) > 0; successes += Step(3))
        ;
}

// Then there is no memory for the exception either.
TEST_P(FailingOperations, LetNoExceptionOutWithoutAnyMemory)
{
    for (int successes = 0; CallWithout(successes, INT_MAX) > 0; successes += Step(11))
        ;
}

INSTANTIATE_TEST_SUITE_P(Every, FailingOperations, ::testing::ValuesIn(kOperations),
                         [](const auto& test) { return std::string(test.param.name); });

// Those that need memory of their own say that there was none.

class RefusedOperations : public FailingOperations
{
};

TEST_P(RefusedOperations, SayThatThereWasNoMemory)
{
    EXPECT_GT(CallWithout(0, INT_MAX), 0);
    EXPECT_EQ(m_outcome, kRefused);
}

TEST_P(RefusedOperations, SucceedWithMemory)
{
    EXPECT_EQ(CallWithout(INT_MAX, 0), 0);
    EXPECT_EQ(m_outcome, kSucceeded);
}

std::vector<SOperation> OperationsWithResult()
{
    std::vector<SOperation> found;
    for (const SOperation& operation : kOperations)
        for (const std::string name : {"New", "PosCtrlDlg", "SetLanguageInfo", "DlgFont", "GetHelpPath",
                                       "EntrySupportFunInfo", "AddContInfo", "AddOprdInfo", "AddDataInfo", "AddCmtInfo",
                                       "AddInstCodeInfo", "CreateInstCode", "CreateInstCode_1", "CreateInstCode_2"})
            if (operation.name == name)
                found.push_back(operation);
    return found;
}

INSTANTIATE_TEST_SUITE_P(Those, RefusedOperations, ::testing::ValuesIn(OperationsWithResult()),
                         [](const auto& test) { return std::string(test.param.name); });

TEST(RefusedResources, WithoutAFolderThereIsNoLanguageLibrary)
{
    CFunWizard wizard;
    ASSERT_NE(wizard.SetLanguageInfo(0), nullptr) << "it lies beside this program, where a bare name is searched for";
    const CImportedFunction getFileName("Pexlo.dll", "GetModuleFileNameA", Address(NoFileName));
    ASSERT_TRUE(getFileName.IsReplaced());
    EXPECT_EQ(wizard.SetLanguageInfo(0), nullptr);
}

TEST(RefusedResources, WithoutADeviceContextThereIsNoFont)
{
    const CPressingHost host;
    CFunWizard wizard;
    const CImportedFunction getDC("Pexlo.dll", "GetDC", Address(NoDC));
    ASSERT_TRUE(getDC.IsReplaced());
    EXPECT_EQ(wizard.CreateDlgFont(CWnd::FromHandle(host.Window())), nullptr);
    EXPECT_EQ(wizard.CreateDlgFont(nullptr), nullptr);
}
