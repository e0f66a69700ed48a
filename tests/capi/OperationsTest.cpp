// The operations of the class through the C interface, beside the same calls on an object of the class.
#include "tests/capi/Capi.h"
#include "tests/core/FunWizardTest.h"
#include "tests/robust/CodePage.h"
#include "tests/support/Controller.h"
#include "tests/support/DesktopTest.h"
#include "tests/support/PrintTo.h"

#include <array>
#include <climits>
#include <cstring>
#include <memory>

namespace
{

constexpr int kJapanese = 1;
constexpr int kNumbers[] = {0, 1, 2, 3, 15, 16, 31, 32, 127, 128, 168, 171, 175, 177, 178, 255};

/// A handle and an object of the class that are told the same.
class CapiOperationsTest : public CDesktopTest
{
protected:
    ~CapiOperationsTest() override { UseCodePage(1252); }

    /// The lists of both.
    void ExpectSameLists()
    {
        EXPECT_EQ(ReadResults(m_handle), ReadResults(m_wizard));
        EXPECT_EQ(Pexlo_GetContInfoCount(m_handle), m_wizard.GetContInfoCount());
        EXPECT_EQ(Pexlo_GetOprdInfoCount(m_handle), m_wizard.GetOprdInfoCount());
        EXPECT_EQ(Pexlo_GetDataInfoCount(m_handle), m_wizard.GetDataInfoCount());
        EXPECT_EQ(Pexlo_GetCmtInfoCount(m_handle), m_wizard.GetCmtInfoCount());
        EXPECT_EQ(Pexlo_GetInstCodeCount(m_handle), m_wizard.GetInstCodeCount());
    }

    CCapiHandle m_handle;
    CFunWizard m_wizard;
};

TEST_F(CapiOperationsTest, TellTheVersion)
{
    EXPECT_EQ(Pexlo_GetVersion(), PEXLO_INTERFACE_VERSION);
    EXPECT_GE(Pexlo_GetVersion(), 0x010000);
}

// ---- The PLC --------------------------------------------------------------------------------------------------------

TEST_F(CapiOperationsTest, StoreNumbers)
{
    EXPECT_EQ(Pexlo_GetPlcType(m_handle), m_wizard.GetPlcType());
    EXPECT_EQ(Pexlo_GetMaxSlot(m_handle), m_wizard.GetMaxSlot());
    EXPECT_EQ(Pexlo_GetStartType(m_handle), m_wizard.GetStartType());
    EXPECT_EQ(Pexlo_IsCmtRec(m_handle), m_wizard.IsCmtRec());
    EXPECT_EQ(Pexlo_IsOnlyDataTable(m_handle), m_wizard.IsOnlyDataTable());
    for (const int number : kNumbers)
    {
        const auto byte = static_cast<unsigned char>(number);
        EXPECT_EQ(Pexlo_SetPlcType(m_handle, number), 1);
        m_wizard.SetPlcType(byte);
        EXPECT_EQ(Pexlo_GetPlcType(m_handle), m_wizard.GetPlcType());
        EXPECT_EQ(Pexlo_SetMaxSlot(m_handle, number), 1);
        m_wizard.SetMaxSlot(byte);
        EXPECT_EQ(Pexlo_GetMaxSlot(m_handle), m_wizard.GetMaxSlot());
        EXPECT_EQ(Pexlo_SetStartType(m_handle, number), 1);
        m_wizard.SetStartType(byte);
        EXPECT_EQ(Pexlo_GetStartType(m_handle), m_wizard.GetStartType());
        EXPECT_EQ(Pexlo_SetF175DispType(m_handle, number), 1);
        m_wizard.SetF175DispType(byte);
        EXPECT_EQ(Pexlo_GetF175DispType(m_handle), m_wizard.GetF175DispType());
    }
    for (const int number : {0, 1, 2, -1, INT_MAX, INT_MIN})
    {
        EXPECT_EQ(Pexlo_SetCmtRec(m_handle, number), 1);
        EXPECT_EQ(Pexlo_SetOnlyDataTable(m_handle, number), 1);
        m_wizard.SetCmtRec(number);
        m_wizard.SetOnlyDataTable(number);
        EXPECT_EQ(Pexlo_IsCmtRec(m_handle), m_wizard.IsCmtRec());
        EXPECT_EQ(Pexlo_IsOnlyDataTable(m_handle), m_wizard.IsOnlyDataTable());
    }
    EXPECT_EQ(Pexlo_SetDefaultMaxSlot(m_handle), 1);
    m_wizard.SetDefaultMaxSlot();
    EXPECT_EQ(Pexlo_GetMaxSlot(m_handle), m_wizard.GetMaxSlot());
}

TEST_F(CapiOperationsTest, RefuseNumbersThatDoNotFit)
{
    Pexlo_SetPlcType(m_handle, 70);
    Pexlo_SetMaxSlot(m_handle, 7);
    Pexlo_SetStartType(m_handle, 1);
    Pexlo_SetF175DispType(m_handle, 2);
    int low = 5, high = 6, bitKind = 7;
    for (const int number : {-1, 256, 70000, INT_MAX, INT_MIN})
    {
        EXPECT_EQ(Pexlo_SetPlcType(m_handle, number), PEXLO_E_ARGUMENT) << number;
        EXPECT_EQ(Pexlo_SetMaxSlot(m_handle, number), PEXLO_E_ARGUMENT) << number;
        EXPECT_EQ(Pexlo_SetStartType(m_handle, number), PEXLO_E_ARGUMENT) << number;
        EXPECT_EQ(Pexlo_GetSeqDevInfo(m_handle, 0, &low, &high, &bitKind, number), PEXLO_E_ARGUMENT) << number;
        EXPECT_EQ(Pexlo_AddDataInfo(m_handle, kDT, 0, number, 0, 0), PEXLO_E_ARGUMENT) << number;
        EXPECT_EQ(Pexlo_AddDataInfo(m_handle, kDT, 0, 0, number, 0), PEXLO_E_ARGUMENT) << number;
        EXPECT_EQ(Pexlo_AddInstCodeInfo(m_handle, 8, -1, 0, number, 0), PEXLO_E_ARGUMENT) << number;
        EXPECT_EQ(Pexlo_AddInstCodeInfo(m_handle, 8, -1, 0, 0, number), PEXLO_E_ARGUMENT) << number;
    }
    for (const int number : {32768, -32769, INT_MAX, INT_MIN})
    {
        EXPECT_EQ(Pexlo_SetDevRange(m_handle, number, kDT, 0, 1), PEXLO_E_ARGUMENT) << number;
        EXPECT_EQ(Pexlo_SetDevRange(m_handle, -1, number, 0, 1), PEXLO_E_ARGUMENT) << number;
        EXPECT_EQ(Pexlo_GetDevRange(m_handle, number, kDT, &low, &high), PEXLO_E_ARGUMENT) << number;
        EXPECT_EQ(Pexlo_GetDevRange(m_handle, -1, number, &low, &high), PEXLO_E_ARGUMENT) << number;
        EXPECT_EQ(Pexlo_AddContInfo(m_handle, number, 0, 0), PEXLO_E_ARGUMENT) << number;
        EXPECT_EQ(Pexlo_AddContInfo(m_handle, 0, number, 0), PEXLO_E_ARGUMENT) << number;
        EXPECT_EQ(Pexlo_AddOprdInfo(m_handle, number, 0), PEXLO_E_ARGUMENT) << number;
        EXPECT_EQ(Pexlo_AddDataInfo(m_handle, number, 0, 0, 0, 0), PEXLO_E_ARGUMENT) << number;
        EXPECT_EQ(Pexlo_AddInstCodeInfo(m_handle, number, -1, 0, 0, 0), PEXLO_E_ARGUMENT) << number;
        EXPECT_EQ(Pexlo_AddInstCodeInfo(m_handle, 8, number, 0, 0, 0), PEXLO_E_ARGUMENT) << number;
    }
    for (const int number : {-1, 65536, INT_MAX, INT_MIN})
        EXPECT_EQ(Pexlo_SetF175DispType(m_handle, number), PEXLO_E_ARGUMENT) << number;

    EXPECT_EQ(Pexlo_GetPlcType(m_handle), 70);
    EXPECT_EQ(Pexlo_GetMaxSlot(m_handle), 7);
    EXPECT_EQ(Pexlo_GetStartType(m_handle), 1);
    EXPECT_EQ(Pexlo_GetF175DispType(m_handle), 2);
    EXPECT_EQ(low, 5);
    EXPECT_EQ(high, 6);
    EXPECT_EQ(bitKind, 7);
    EXPECT_EQ(ReadResults(m_handle), SResults());
}

TEST_F(CapiOperationsTest, StoreDeviceRanges)
{
    for (const auto& [kind, code, low, high] :
         {std::tuple(-1, kDT, 0, 32764), {-1, kX, 5, 4}, {0, kDT, -7, INT_MAX}, {-32768, 32767, INT_MIN, 1}})
    {
        EXPECT_EQ(Pexlo_SetDevRange(m_handle, kind, code, low, high), 1);
        m_wizard.SetDevRange(static_cast<short>(kind), static_cast<short>(code), low, high);
        int gotLow = 77, gotHigh = 78;
        EXPECT_EQ(Pexlo_GetDevRange(m_handle, kind, code, &gotLow, &gotHigh), 1);
        EXPECT_EQ(gotLow, low);
        EXPECT_EQ(gotHigh, high);
        EXPECT_EQ(Pexlo_GetDevRange(m_handle, kind, code, nullptr, &gotHigh), PEXLO_E_ARGUMENT);
        EXPECT_EQ(Pexlo_GetDevRange(m_handle, kind, code, &gotLow, nullptr), PEXLO_E_ARGUMENT);
    }
    int low = 77, high = 78;
    EXPECT_EQ(Pexlo_GetDevRange(m_handle, -1, kY, &low, &high), 0);
    EXPECT_EQ(low, 77);
    EXPECT_EQ(high, 78);
}

TEST_F(CapiOperationsTest, WalkTheDevices)
{
    SetUpController(m_wizard);
    SetUpController(WizardOf(m_handle));
    for (const int options : {0, 1, 2, 3, 255})
        for (int index = -2; index < 27; ++index)
        {
            SCOPED_TRACE(testing::Message() << "index " << index << ", options " << options);
            int kind = 501, code = 502, bitKind = 503;
            short ownKind = 501, ownCode = 502;
            unsigned char ownBitKind = 99;
            const int result = Pexlo_GetSeqDevInfo(m_handle, index, &kind, &code, &bitKind, options);
            EXPECT_EQ(result,
                      m_wizard.GetSeqDevInfo(index, ownKind, ownCode, ownBitKind, static_cast<unsigned char>(options)));
            EXPECT_EQ(kind, ownKind);
            EXPECT_EQ(code, ownCode);
            EXPECT_EQ(bitKind, ownBitKind == 99 ? 503 : ownBitKind);
        }
    int number = 0;
    EXPECT_EQ(Pexlo_GetSeqDevInfo(m_handle, 0, nullptr, &number, &number, 0), PEXLO_E_ARGUMENT);
    EXPECT_EQ(Pexlo_GetSeqDevInfo(m_handle, 0, &number, nullptr, &number, 0), PEXLO_E_ARGUMENT);
    EXPECT_EQ(Pexlo_GetSeqDevInfo(m_handle, 0, &number, &number, nullptr, 0), PEXLO_E_ARGUMENT);
}

TEST_F(CapiOperationsTest, OfferChannels)
{
    for (const int instruction : {168, 170, 171, 172, 173, 174, 175, 176, 0, -1, INT_MAX})
    {
        EXPECT_EQ(Pexlo_GetChannelTypeIndex(m_handle, instruction), m_wizard.GetChannelTypeIndex(instruction));
        for (const int channel : {0, 3, 15, 16, 33, -1, INT_MAX, INT_MIN})
        {
            EXPECT_EQ(Pexlo_SetChannelNo(m_handle, channel, instruction), 1);
            m_wizard.SetChannelNo(channel, instruction);
        }
        EXPECT_EQ(Pexlo_GetNumOfChannel(m_handle, instruction), m_wizard.GetNumOfChannel(instruction));
        for (const int n : {-1, 0, 1, 2, 3, 16, INT_MAX})
            EXPECT_EQ(Pexlo_GetChannelNo(m_handle, n, instruction), m_wizard.GetChannelNo(n, instruction));
    }
    EXPECT_GT(Pexlo_GetNumOfChannel(m_handle, 171), 2);
    EXPECT_EQ(Pexlo_ResetChannelNo(m_handle), 1);
    EXPECT_EQ(Pexlo_GetNumOfChannel(m_handle, 171), 0);
    EXPECT_EQ(Pexlo_GetChannelNo(m_handle, 0, 171), -1);
}

TEST_F(CapiOperationsTest, RegisterInstructions)
{
    for (const int instruction : {168, 168, 177, 180, 0, -1, INT_MAX})
    {
        EXPECT_EQ(Pexlo_EntrySupportFunInfo(m_handle, instruction), m_wizard.EntrySupportFunInfo(instruction));
        EXPECT_EQ(Pexlo_FindSupportFun(m_handle, instruction), m_wizard.FindSupportFun(instruction));
    }
    for (const int index : {-1, 0, 1, 9, 10, INT_MAX, INT_MIN})
        EXPECT_EQ(Pexlo_GetSupportFunNum(m_handle, index), m_wizard.GetSupportFunNum(index));
    EXPECT_EQ(Pexlo_FindSupportFun(m_handle, 168), 1);
    EXPECT_EQ(Pexlo_ClearSuppportFunInfo(m_handle), 1);
    EXPECT_EQ(Pexlo_FindSupportFun(m_handle, 168), 0);
}

// ---- Settings -------------------------------------------------------------------------------------------------------

TEST_F(CapiOperationsTest, LoadLanguages)
{
    EXPECT_EQ(Pexlo_GetLoadInstance(m_handle), nullptr);
    for (int language = -2; language <= 11; ++language)
    {
        const HINSTANCE library = m_wizard.SetLanguageInfo(language);
        EXPECT_EQ(Pexlo_SetLanguageInfo(m_handle, language), library != nullptr ? 1 : 0) << language;
        EXPECT_EQ(Pexlo_GetLoadInstance(m_handle), static_cast<void*>(library)) << language;
        EXPECT_EQ(Pexlo_GetTextCodePage(m_handle), static_cast<int>(m_wizard.GetTextCodePage())) << language;
    }
    Pexlo_SetLanguageInfo(m_handle, kJapanese);
    EXPECT_EQ(Pexlo_GetTextCodePage(m_handle), 932);
}

TEST_F(CapiOperationsTest, MakeTheFont)
{
    void* const font = Pexlo_CreateDlgFont(m_handle, nullptr);
    ASSERT_NE(font, nullptr);
    LOGFONTW own = {}, other = {};
    EXPECT_NE(::GetObjectW(static_cast<HGDIOBJ>(font), sizeof own, &own), 0);
    EXPECT_NE(::GetObjectW(m_wizard.CreateDlgFont(nullptr)->m_hObject, sizeof other, &other), 0);
    EXPECT_EQ(own.lfHeight, other.lfHeight);
    EXPECT_TRUE(std::basic_string<WCHAR>(own.lfFaceName) == other.lfFaceName);

    EXPECT_EQ(Pexlo_SetDlgFont(m_handle, nullptr, 0, nullptr), PEXLO_E_ARGUMENT);
    EXPECT_EQ(Pexlo_SetDlgFont(m_handle, reinterpret_cast<void*>(0x4711), 0, nullptr), PEXLO_E_ARGUMENT);
    EXPECT_NE(Pexlo_CreateDlgFont(m_handle, reinterpret_cast<void*>(0x4711)), nullptr); // gone: counts as null
    EXPECT_EQ(Pexlo_DeleteDlgFont(m_handle), 1);
    EXPECT_EQ(SFunWizardTest::DialogFont(WizardOf(m_handle)), nullptr);
}

TEST_F(CapiOperationsTest, GiveTheFontToWindows)
{
    CWnd parent;
    ASSERT_TRUE(parent.CreateEx(0, "STATIC", "", WS_POPUP, 0, 0, 100, 100, nullptr, nullptr));
    CButton first, second;
    ASSERT_TRUE(first.Create("one", WS_CHILD, {0, 0, 10, 10}, &parent, 11));
    ASSERT_TRUE(second.Create("two", WS_CHILD, {0, 0, 10, 10}, &parent, 12));
    const auto font = reinterpret_cast<LRESULT>(Pexlo_CreateDlgFont(m_handle, parent.m_hWnd));
    const int excluded[] = {12, 0};
    EXPECT_EQ(Pexlo_SetDlgFont(m_handle, parent.m_hWnd, 1, excluded), 1);
    EXPECT_NE(parent.SendMessage(WM_GETFONT), font);
    EXPECT_EQ(first.SendMessage(WM_GETFONT), font);
    EXPECT_NE(second.SendMessage(WM_GETFONT), font);
    EXPECT_EQ(Pexlo_SetDlgFont(m_handle, parent.m_hWnd, 0, nullptr), 1);
    EXPECT_EQ(parent.SendMessage(WM_GETFONT), font);
    EXPECT_EQ(second.SendMessage(WM_GETFONT), font);
    EXPECT_EQ(Pexlo_SetDlgFont(m_handle, parent.m_hWnd, 256, nullptr), PEXLO_E_ARGUMENT);
    parent.DestroyWindow();
}

TEST_F(CapiOperationsTest, KeepDialogData)
{
    EXPECT_EQ(Pexlo_GetDlgDataPtr(m_handle), nullptr);
    char data[] = "twelve bytes";
    EXPECT_EQ(Pexlo_SetDlgDataPtr(m_handle, data, sizeof data), 1);
    const void* const kept = Pexlo_GetDlgDataPtr(m_handle);
    data[0] = 'T';
    ASSERT_NE(kept, nullptr);
    EXPECT_STREQ(static_cast<const char*>(kept), "twelve bytes");
    EXPECT_EQ(Pexlo_SetDlgDataPtr(m_handle, data, -1), PEXLO_E_ARGUMENT);
    EXPECT_EQ(Pexlo_GetDlgDataPtr(m_handle), kept);
    EXPECT_EQ(Pexlo_SetDlgDataPtr(m_handle, kept, 3), 1); // of itself
    EXPECT_EQ(std::memcmp(Pexlo_GetDlgDataPtr(m_handle), "twe", 3), 0);
    EXPECT_EQ(Pexlo_RemoveDlgData(m_handle), 1);
    EXPECT_EQ(Pexlo_GetDlgDataPtr(m_handle), nullptr);
    for (const bool hasData : {true, false})
    {
        Pexlo_SetDlgDataPtr(m_handle, data, 1);
        EXPECT_EQ(Pexlo_SetDlgDataPtr(m_handle, hasData ? data : nullptr, hasData ? 0 : 5), 1);
        EXPECT_EQ(Pexlo_GetDlgDataPtr(m_handle), nullptr);
    }
}

// ---- Lists ----------------------------------------------------------------------------------------------------------

TEST_F(CapiOperationsTest, AddToTheLists)
{
    for (const int number : {0, 1, -1, 32767, -32768, INT_MAX, INT_MIN})
    {
        const auto narrow = static_cast<short>(number);
        const auto byte = static_cast<unsigned char>(number);
        EXPECT_EQ(Pexlo_AddContInfo(m_handle, narrow, 2, number), m_wizard.AddContInfo(narrow, 2, number));
        EXPECT_EQ(Pexlo_AddContInfo(m_handle, 3, narrow, number), m_wizard.AddContInfo(3, narrow, number));
        EXPECT_EQ(Pexlo_AddOprdInfo(m_handle, narrow, number), m_wizard.AddOprdInfo(narrow, number));
        EXPECT_EQ(Pexlo_AddDataInfo(m_handle, narrow, number, byte, 3, number),
                  m_wizard.AddDataInfo(narrow, number, byte, 3, number));
        EXPECT_EQ(Pexlo_AddDataInfo(m_handle, 1, 2, 1, byte, 5), m_wizard.AddDataInfo(1, 2, 1, byte, 5));
        EXPECT_EQ(Pexlo_AddInstCodeInfo(m_handle, narrow, 8, number, byte, 1),
                  m_wizard.AddInstCodeInfo(narrow, 8, number, byte, 1));
        EXPECT_EQ(Pexlo_AddInstCodeInfo(m_handle, 8, narrow, 1, 2, byte),
                  m_wizard.AddInstCodeInfo(8, narrow, 1, 2, byte));
    }
    for (const char* const text : {"Speed", "", static_cast<const char*>(nullptr)})
        EXPECT_EQ(Pexlo_AddCmtInfo(m_handle, text), m_wizard.AddCmtInfo(text));
    EXPECT_EQ(Pexlo_AddCmtInfoUtf8(m_handle, "Time"), m_wizard.AddCmtInfo("Time"));
    EXPECT_EQ(Pexlo_AddCmtInfoUtf8(m_handle, nullptr), m_wizard.AddCmtInfo(""));
    ExpectSameLists();
    EXPECT_EQ(ReadResults(m_handle).contacts.size(), 14u);

    auto record = Sized<PexloInstCode>();
    for (int i = 0; i < m_wizard.GetInstCodeCount(); ++i)
    {
        SFWzdInstCode own;
        EXPECT_EQ(Pexlo_GetInstCodeInfo(m_handle, i, &record), m_wizard.GetInstCodeInfo(i, &own));
        EXPECT_EQ(record.kind, own.kind);
        EXPECT_EQ(record.code, own.code);
        EXPECT_EQ(record.value, own.value);
        EXPECT_EQ(record.flag1, own.flag1);
        EXPECT_EQ(record.flag2, own.flag2);
    }

    EXPECT_EQ(Pexlo_RemoveAllContInfo(m_handle), 1);
    EXPECT_EQ(Pexlo_RemoveAllOprdInfo(m_handle), 1);
    EXPECT_EQ(Pexlo_RemoveAllDataInfo(m_handle), 1);
    EXPECT_EQ(Pexlo_RemoveAllCmtInfo(m_handle), 1);
    EXPECT_EQ(Pexlo_RemoveAllInstCodeInfo(m_handle), 1);
    EXPECT_EQ(ReadResults(m_handle), SResults());
}

TEST_F(CapiOperationsTest, LeaveOutputsAloneAtABadIndex)
{
    Pexlo_AddContInfo(m_handle, 1, 2, 3);
    Pexlo_AddOprdInfo(m_handle, 1, 2);
    Pexlo_AddDataInfo(m_handle, 1, 2, 0, 0, 3);
    Pexlo_AddInstCodeInfo(m_handle, 8, -1, 168, 0, 0);
    Pexlo_AddCmtInfo(m_handle, "Speed");
    for (const int index : {-1, 1, 2, INT_MAX, INT_MIN})
    {
        int a = 91, b = 92, c = 93, d = 94, e = 95;
        EXPECT_EQ(Pexlo_GetContInfo(m_handle, index, &a, &b, &c), 0);
        EXPECT_EQ(Pexlo_GetOprdInfo(m_handle, index, &a, &b), 0);
        EXPECT_EQ(Pexlo_GetInstCode(m_handle, index, &a, &b, &c, &d, &e), 0);
        EXPECT_EQ((std::vector{a, b, c, d, e}), (std::vector{91, 92, 93, 94, 95}));
        PexloData data = {sizeof data, 1, 2, 3, 4, 5};
        PexloInstCode record = {sizeof record, 1, 2, 3, 4, 5};
        EXPECT_EQ(Pexlo_GetDataInfo(m_handle, index, &data), 0);
        EXPECT_EQ(Pexlo_GetInstCodeInfo(m_handle, index, &record), 0);
        EXPECT_EQ(data.number, 2);
        EXPECT_EQ(record.flag2, 5);
        char text[8] = "as it";
        EXPECT_EQ(Pexlo_GetCmtInfo(m_handle, index, text, sizeof text), 0);
        EXPECT_EQ(Pexlo_GetCmtInfoUtf8(m_handle, index, text, sizeof text), 0);
        EXPECT_STREQ(text, "as it");
    }
}

TEST_F(CapiOperationsTest, RefuseNullPointers)
{
    Pexlo_AddContInfo(m_handle, 1, 2, 3);
    Pexlo_AddOprdInfo(m_handle, 1, 2);
    Pexlo_AddDataInfo(m_handle, 1, 2, 0, 0, 3);
    Pexlo_AddInstCodeInfo(m_handle, 8, -1, 168, 0, 0);
    int a = 91;
    EXPECT_EQ(Pexlo_GetContInfo(m_handle, 0, nullptr, &a, &a), PEXLO_E_ARGUMENT);
    EXPECT_EQ(Pexlo_GetContInfo(m_handle, 0, &a, nullptr, &a), PEXLO_E_ARGUMENT);
    EXPECT_EQ(Pexlo_GetContInfo(m_handle, 0, &a, &a, nullptr), PEXLO_E_ARGUMENT);
    EXPECT_EQ(Pexlo_GetOprdInfo(m_handle, 0, nullptr, &a), PEXLO_E_ARGUMENT);
    EXPECT_EQ(Pexlo_GetOprdInfo(m_handle, 0, &a, nullptr), PEXLO_E_ARGUMENT);
    EXPECT_EQ(Pexlo_GetDataInfo(m_handle, 0, nullptr), PEXLO_E_ARGUMENT);
    EXPECT_EQ(Pexlo_GetInstCodeInfo(m_handle, 0, nullptr), PEXLO_E_ARGUMENT);
    for (int missing = 0; missing < 5; ++missing)
    {
        const auto out = [&](int which) { return which == missing ? nullptr : &a; };
        EXPECT_EQ(Pexlo_GetInstCode(m_handle, 0, out(0), out(1), out(2), out(3), out(4)), PEXLO_E_ARGUMENT);
    }
    EXPECT_EQ(a, 91);
}

TEST_F(CapiOperationsTest, GenerateTheSequence)
{
    using Generate = int(PEXLO_CALL*)(PexloHandle);
    const std::pair<Generate, int (CFunWizard::*)()> generators[] = {
        {Pexlo_CreateInstCode, &CFunWizard::CreateInstCode},
        {Pexlo_CreateInstCode_1, &CFunWizard::CreateInstCode_1},
        {Pexlo_CreateInstCode_11, &CFunWizard::CreateInstCode_11},
        {Pexlo_CreateInstCode_2, &CFunWizard::CreateInstCode_2},
        {Pexlo_CreateInstCode_3, &CFunWizard::CreateInstCode_3},
        {Pexlo_CreateInstCode_4, &CFunWizard::CreateInstCode_4}};
    for (const bool hasOperands : {false, true})
    {
        for (const bool isHandle : {false, true})
        {
            CFunWizard& wizard = isHandle ? WizardOf(m_handle) : m_wizard;
            wizard.ResetContents();
            wizard.RemoveAllContInfo();
            wizard.AddContInfo(2, kR, 10);
            for (int i = 0; hasOperands && i < 4; ++i)
                wizard.AddOprdInfo(kDT, 100 + i);
            for (int i = 0; i < 12; ++i)
                wizard.AddDataInfo(kDT, 200 + i, 0, 0, i);
            SFunWizardTest::SetLastWizard(wizard, 0, 168, 0);
        }
        for (const auto& [ofTheInterface, ofTheClass] : generators)
        {
            EXPECT_EQ(ofTheInterface(m_handle), (m_wizard.*ofTheClass)());
            ExpectSameLists();
        }
    }
    EXPECT_GT(Pexlo_GetInstCodeCount(m_handle), 20);
    SetUpController(m_wizard);
    SetUpController(WizardOf(m_handle));
    EXPECT_EQ(Pexlo_IsStartCondition(m_handle), m_wizard.IsStartCondition());
    EXPECT_EQ(Pexlo_IsSameCondition(m_handle), m_wizard.IsSameCondition());
    EXPECT_EQ(Pexlo_IsAxisType(m_handle), m_wizard.IsAxisType());
    for (const int code : {kX, kX, kY})
    {
        Pexlo_AddContInfo(m_handle, 2, code, 5);
        m_wizard.AddContInfo(2, static_cast<short>(code), 5);
        EXPECT_EQ(Pexlo_IsStartCondition(m_handle), m_wizard.IsStartCondition());
        EXPECT_EQ(Pexlo_IsSameCondition(m_handle), m_wizard.IsSameCondition());
    }
    SFunWizardTest::SetAxisFlag(m_wizard, 1);
    SFunWizardTest::SetAxisFlag(WizardOf(m_handle), 1);
    EXPECT_EQ(Pexlo_IsAxisType(m_handle), m_wizard.IsAxisType());

    EXPECT_EQ(Pexlo_ResetContents(m_handle), 1);
    m_wizard.ResetContents();
    ExpectSameLists();
    EXPECT_EQ(Pexlo_CreateInstCode(m_handle), m_wizard.CreateInstCode());
}

// ---- Texts ----------------------------------------------------------------------------------------------------------

/// Reads a text into buffers of every size: as much as fits, whole characters, a terminator, nothing behind it.
/// `characters` are the text's, each with its bytes.
template <typename TGet>
void ExpectCutAnywhere(TGet get, const std::vector<std::string>& characters)
{
    std::string whole;
    for (const std::string& character : characters)
        whole += character;
    const int needed = static_cast<int>(whole.size()) + 1;
    EXPECT_EQ(get(nullptr, 0), needed);
    EXPECT_EQ(get(nullptr, 100), needed);
    EXPECT_EQ(get(nullptr, -1), PEXLO_E_ARGUMENT);
    for (int size = 0; size <= needed + 2; ++size)
    {
        // Of the buffer's exact size, so that a byte behind it is found.
        const auto buffer = std::make_unique<char[]>(static_cast<size_t>(size));
        std::memset(buffer.get(), '~', static_cast<size_t>(size));
        EXPECT_EQ(get(buffer.get(), size), needed);
        std::string fitting;
        for (const std::string& character : characters)
        {
            if (static_cast<int>(fitting.size() + character.size()) >= size)
                break;
            fitting += character;
        }
        if (size > 0)
        {
            EXPECT_STREQ(buffer.get(), fitting.c_str()) << "size " << size;
        }
        EXPECT_EQ(get(buffer.get(), -1), PEXLO_E_ARGUMENT);
    }
}

TEST_F(CapiOperationsTest, CutCommentsBetweenCharacters)
{
    ASSERT_EQ(Pexlo_SetLanguageInfo(m_handle, kJapanese), 1);
    // "Aソ表ーZ" of page 932: bytes that are a backslash or a letter by themselves.
    Pexlo_AddCmtInfo(m_handle, "A\x83\x5C\x95\x5C\x81\x5BZ");
    ExpectCutAnywhere([&](char* buffer, int size) { return Pexlo_GetCmtInfo(m_handle, 0, buffer, size); },
                      {"A", "\x83\x5C", "\x95\x5C", "\x81\x5B", "Z"});
    ExpectCutAnywhere([&](char* buffer, int size) { return Pexlo_GetCmtInfoUtf8(m_handle, 0, buffer, size); },
                      {"A", "\xE3\x82\xBD", "\xE8\xA1\xA8", "\xE3\x83\xBC", "Z"});
    Pexlo_AddCmtInfoUtf8(m_handle, "\xE8\xA1\xA8");
    EXPECT_EQ(Comment(m_handle, 1), "\x95\x5C");
    EXPECT_EQ(CommentUtf8(m_handle, 1), "\xE8\xA1\xA8");
    // What the page lacks, and what is no UTF-8 at all, becomes something.
    Pexlo_AddCmtInfoUtf8(m_handle, "a\xE0\xB8\x81z");
    EXPECT_EQ(Comment(m_handle, 2), "a?z");
    Pexlo_AddCmtInfoUtf8(m_handle, "a\xFF\xC3z\xE3\x82");
    EXPECT_EQ(CommentUtf8(m_handle, 3).front(), 'a');
    Pexlo_AddCmtInfo(m_handle, "");
    ExpectCutAnywhere([&](char* buffer, int size) { return Pexlo_GetCmtInfo(m_handle, 4, buffer, size); }, {});
    // Half a character at the end, longer than any comment of a dialog.
    const std::string halved = std::string(5000, 'x') + "\x83";
    Pexlo_AddCmtInfo(m_handle, halved.c_str());
    EXPECT_EQ(Comment(m_handle, 5), halved);
    ExpectCutAnywhere([&](char* buffer, int size) { return Pexlo_GetCmtInfo(m_handle, 6, buffer, size); },
                      (Pexlo_AddCmtInfo(m_handle, "ab"), std::vector<std::string>{"a", "b"}));
}

TEST_F(CapiOperationsTest, KeepTheHelpPath)
{
    EXPECT_EQ(Pexlo_GetHelpPath(m_handle, nullptr, 0), 1);
    EXPECT_EQ(Pexlo_SetHelpPath(m_handle, "C:\\Tool\\a.chm"), 1);
    EXPECT_STREQ(WizardOf(m_handle).GetHelpPath(), "C:\\Tool\\a.chm");
    ExpectCutAnywhere([&](char* buffer, int size) { return Pexlo_GetHelpPath(m_handle, buffer, size); },
                      {"C", ":", "\\", "T", "o", "o", "l", "\\", "a", ".", "c", "h", "m"});
    // "é" of page 1252, which both desktops have here.
    if (::GetACP() == 1252)
    {
        EXPECT_EQ(Pexlo_SetHelpPathUtf8(m_handle, "\xC3\xA9\xE8\xA1\xA8.chm"), 1);
        EXPECT_STREQ(WizardOf(m_handle).GetHelpPath(), "\xE9?.chm");
        ExpectCutAnywhere([&](char* buffer, int size) { return Pexlo_GetHelpPathUtf8(m_handle, buffer, size); },
                          {"\xC3\xA9", "?", ".", "c", "h", "m"});
    }
    EXPECT_EQ(Pexlo_SetHelpPath(m_handle, nullptr), 1);
    EXPECT_EQ(Pexlo_GetHelpPath(m_handle, nullptr, 0), 1);
    EXPECT_EQ(Pexlo_SetHelpPathUtf8(m_handle, "x"), 1);
    EXPECT_EQ(Pexlo_SetHelpPathUtf8(m_handle, nullptr), 1);
    EXPECT_EQ(Pexlo_GetHelpPathUtf8(m_handle, nullptr, 0), 1);
}

TEST_F(CapiOperationsTest, CutPathsByTheSystemsPage)
{
    UseCodePage(932);
    if (::GetACP() != 932)
        GTEST_SKIP() << "the system's page is another one";
    Pexlo_SetHelpPath(m_handle, "\x83\x5C\\\x95\x5C");
    ExpectCutAnywhere([&](char* buffer, int size) { return Pexlo_GetHelpPath(m_handle, buffer, size); },
                      {"\x83\x5C", "\\", "\x95\x5C"});
    ExpectCutAnywhere([&](char* buffer, int size) { return Pexlo_GetHelpPathUtf8(m_handle, buffer, size); },
                      {"\xE3\x82\xBD", "\\", "\xE8\xA1\xA8"});
}

TEST_F(CapiOperationsTest, StoreTheNames)
{
    EXPECT_EQ(Pexlo_SetAppName(m_handle, "Tool"), 1);
    EXPECT_STREQ(SFunWizardTest::AppName(WizardOf(m_handle)), "Tool");
    EXPECT_EQ(Pexlo_SetAppName(m_handle, nullptr), 1);
    EXPECT_STREQ(SFunWizardTest::AppName(WizardOf(m_handle)), "");
    EXPECT_EQ(Pexlo_SetAppNameUtf8(m_handle, "\xC3\xA9"), 1);
    if (::GetACP() == 1252)
    {
        EXPECT_STREQ(SFunWizardTest::AppName(WizardOf(m_handle)), "\xE9");
    }
    EXPECT_EQ(Pexlo_SetAppNameUtf8(m_handle, nullptr), 1);
    EXPECT_STREQ(SFunWizardTest::AppName(WizardOf(m_handle)), "");
}

// ---- Structures -----------------------------------------------------------------------------------------------------

template <typename TStructure>
struct SLater
{
    TStructure known;
    unsigned char rest[40];
};

TEST_F(CapiOperationsTest, KnowTheSizesOfStructuresThatAreReturned)
{
    Pexlo_AddDataInfo(m_handle, 9, 100, 1, 0, 5);
    Pexlo_AddInstCodeInfo(m_handle, 8, -1, 168, 1, 2);
    const auto expectSizes = [](auto known, auto get) {
        using TStructure = decltype(known);
        for (const unsigned size : {0u, 1u, 4u, static_cast<unsigned>(sizeof known) - 1})
        {
            std::memset(&known, 0x55, sizeof known);
            known.size = size;
            const auto before = known;
            EXPECT_EQ(get(&known), PEXLO_E_SIZE) << size;
            EXPECT_EQ(std::memcmp(&known, &before, sizeof known), 0) << size;
        }
        SLater<TStructure> later;
        std::memset(&later, 0x55, sizeof later);
        later.known.size = sizeof later;
        EXPECT_EQ(get(&later.known), 1);
        EXPECT_EQ(later.known.size, sizeof later.known);
        for (const unsigned char byte : later.rest)
            EXPECT_EQ(byte, 0x55);
    };
    expectSizes(PexloData(), [&](PexloData* data) { return Pexlo_GetDataInfo(m_handle, 0, data); });
    expectSizes(PexloInstCode(), [&](PexloInstCode* record) { return Pexlo_GetInstCodeInfo(m_handle, 0, record); });
    expectSizes(PexloOffer(), [&](PexloOffer* offer) { return Pexlo_GetOffer(m_handle, 0, offer); });
    Prepare(m_handle, FormRows()[0]);
    ASSERT_GT(Describe(m_handle, FormOf(FormRows()[0])).result, 0);
    int list = 0;
    while (FieldItems(m_handle, list).empty())
        ++list;
    expectSizes(PexloItem(), [&](PexloItem* item) { return Pexlo_GetFieldItem(m_handle, list, 0, item); });
    const auto form = FormOf(FormRows()[0]);
    expectSizes(PexloRefusal(), [&](PexloRefusal* refusal) {
        const int result = Pexlo_Check(m_handle, &form, nullptr, 0, refusal);
        return result == 2 ? 1 : result;
    });
    expectSizes(PexloRefusal(), [&](PexloRefusal* refusal) {
        const int result = Pexlo_DescribeFields(m_handle, &form, nullptr, 0, nullptr, 0, refusal);
        return result > 0 ? 1 : result;
    });
    expectSizes(PexloField(), [&](PexloField* field) {
        const int result = Pexlo_DescribeFields(m_handle, &form, nullptr, 0, field, 1, nullptr);
        return result > 0 ? 1 : result;
    });
}

TEST_F(CapiOperationsTest, KnowTheSizesOfFormsAndEntries)
{
    Prepare(m_handle, FormRows()[0]);
    const auto known = FormOf(FormRows()[0]);
    const PexloEntry entries[] = {{sizeof(PexloEntry), 0, "start", "100"}, {sizeof(PexloEntry), 0, "target", "5"}};
    for (const unsigned size :
         {0u, 1u, static_cast<unsigned>(sizeof known) - 1, static_cast<unsigned>(sizeof known) + 1})
    {
        auto form = known;
        form.size = size;
        EXPECT_EQ(Pexlo_Check(m_handle, &form, entries, 2, nullptr), PEXLO_E_SIZE);
        EXPECT_EQ(Pexlo_Fill(m_handle, &form, entries, 2, nullptr), PEXLO_E_SIZE);
        EXPECT_EQ(Pexlo_DescribeFields(m_handle, &form, entries, 2, nullptr, 0, nullptr), PEXLO_E_SIZE);
    }
    SLater<PexloForm> later = {known, {}};
    later.known.size = sizeof later;
    EXPECT_EQ(Pexlo_Check(m_handle, &later.known, entries, 2, nullptr), 2);
    later.rest[39] = 1;
    EXPECT_EQ(Pexlo_Check(m_handle, &later.known, entries, 2, nullptr), PEXLO_E_SIZE);
    auto huge = known;
    huge.size = UINT_MAX;
    EXPECT_EQ(Pexlo_Check(m_handle, &huge, entries, 2, nullptr), PEXLO_E_SIZE);

    // An array of a later version, and one whose elements do not agree.
    SLater<PexloEntry> laterEntries[] = {{entries[0], {}}, {entries[1], {}}};
    for (auto& entry : laterEntries)
        entry.known.size = sizeof entry;
    auto refusal = Sized<PexloRefusal>();
    EXPECT_EQ(Pexlo_DescribeFields(m_handle, &known, &laterEntries[0].known, 2, nullptr, 0, &refusal),
              Describe(m_handle, known).result);
    EXPECT_EQ(refusal.reason, 0);
    laterEntries[1].known.text = "-99999999999999999";
    EXPECT_EQ(Pexlo_Check(m_handle, &known, &laterEntries[0].known, 2, &refusal), 2);
    EXPECT_EQ(refusal.entry, 1);
    EXPECT_STREQ(refusal.name, "target");
    EXPECT_EQ(refusal.reason, PEXLO_REFUSED_TYPING);
    laterEntries[1].rest[0] = 1;
    EXPECT_EQ(Pexlo_Check(m_handle, &known, &laterEntries[0].known, 2, nullptr), PEXLO_E_SIZE);
    laterEntries[1].rest[0] = 0;
    laterEntries[1].known.size = sizeof(PexloEntry);
    EXPECT_EQ(Pexlo_Check(m_handle, &known, &laterEntries[0].known, 2, nullptr), PEXLO_E_SIZE);
    laterEntries[1].known.size = 0;
    EXPECT_EQ(Pexlo_Check(m_handle, &known, &laterEntries[0].known, 2, nullptr), PEXLO_E_SIZE);
    EXPECT_EQ(Pexlo_Check(m_handle, &known, &laterEntries[0].known, 1, nullptr), 2);

    // An array whose elements could not be read where they lie.
    laterEntries[0].known.size = sizeof(PexloEntry) + 1;
    EXPECT_EQ(Pexlo_Check(m_handle, &known, &laterEntries[0].known, 2, nullptr), PEXLO_E_SIZE);
}

// An entry that does not count is refused, whether it is made before or after the one that disables its field.
TEST_F(CapiOperationsTest, RefuseEntriesThatOthersDisable)
{
    Prepare(m_handle, FormRows()[0]);
    const auto form = FormOf(355);
    const PexloEntry limit = {sizeof(PexloEntry), 0, "upper-limit", "50"};
    const PexloEntry unused = {sizeof(PexloEntry), 0, "upper-limit-used", "0"};
    for (const auto& entries : {std::array{limit, unused}, std::array{unused, limit}})
    {
        auto refusal = Sized<PexloRefusal>();
        EXPECT_EQ(Pexlo_Check(m_handle, &form, entries.data(), 2, &refusal), 2);
        EXPECT_EQ(refusal.reason, PEXLO_REFUSED_NOT_ENABLED);
        EXPECT_STREQ(refusal.name, "upper-limit");
    }
}

// A switch that another one has switched and disabled holds what was asked for, in either order.
TEST_F(CapiOperationsTest, TakeSwitchesThatOthersSwitch)
{
    Prepare(m_handle, FormRows()[0]);
    const auto form = FormOf(355);
    const PexloEntry used = {sizeof(PexloEntry), 0, "derivative-time-used", "1"};
    const PexloEntry automatic = {sizeof(PexloEntry), 0, "auto-tuning", "#1"};
    const PexloEntry unused = {sizeof(PexloEntry), 0, "derivative-time-used", "0"};
    const auto reasonOf = [&](const std::array<PexloEntry, 2>& entries) {
        auto refusal = Sized<PexloRefusal>();
        Pexlo_DescribeFields(m_handle, &form, entries.data(), 2, nullptr, 0, &refusal);
        return refusal.reason;
    };
    EXPECT_EQ(reasonOf({used, automatic}), 0);
    EXPECT_EQ(reasonOf({automatic, used}), 0);
    EXPECT_NE(reasonOf({unused, automatic}), 0);
    EXPECT_NE(reasonOf({automatic, unused}), 0);
}

// Rows behind the number of points would not be stored.
TEST_F(CapiOperationsTest, RefuseMoreRowsThanPoints)
{
    Prepare(m_handle, FormRows()[0]);
    const auto form = FormOf(282);
    const PexloEntry table = {sizeof(PexloEntry), 0, "table", "1,2\n3,4\n5,6\n"};
    const PexloEntry two = {sizeof(PexloEntry), 0, "points", "2"};
    const PexloEntry three = {sizeof(PexloEntry), 0, "points", "3"};
    const auto reasonOf = [&](const std::array<PexloEntry, 2>& entries) {
        auto refusal = Sized<PexloRefusal>();
        Pexlo_DescribeFields(m_handle, &form, entries.data(), 2, nullptr, 0, &refusal);
        return refusal.reason;
    };
    EXPECT_EQ(reasonOf({table, two}), PEXLO_REFUSED_CHANGED);
    EXPECT_EQ(reasonOf({two, table}), PEXLO_REFUSED_CHANGED);
    EXPECT_EQ(reasonOf({table, three}), 0);
    EXPECT_EQ(reasonOf({three, table}), 0);
}

TEST_F(CapiOperationsTest, TellInUtf8WhatIsNoUtf8)
{
    Prepare(m_handle, FormRows()[0]);
    const auto form = FormOf(FormRows()[0]);
    auto refusal = Sized<PexloRefusal>();
    const auto expectUtf8 = [&](const char* text) {
        EXPECT_EQ(std::strchr(text, '\xFF'), nullptr) << text;
        EXPECT_STRNE(text, "");
    };
    for (const PexloEntry& entry :
         {PexloEntry{sizeof(PexloEntry), 0, "start", "1\xFF"}, PexloEntry{sizeof(PexloEntry), 0, "width", "1\xFF"},
          PexloEntry{sizeof(PexloEntry), 0, "st\xFF", "1"}})
    {
        EXPECT_EQ(Pexlo_Check(m_handle, &form, &entry, 1, &refusal), 2);
        expectUtf8(refusal.name);
        expectUtf8(refusal.message);
    }
    const PexloEntry entry = {sizeof(PexloEntry), 0, "start", "1\xFF"};
    EXPECT_EQ(Pexlo_Check(m_handle, &form, &entry, 1, &refusal), 2);
    EXPECT_EQ(refusal.reason, PEXLO_REFUSED_TYPING);
}

TEST_F(CapiOperationsTest, FillArraysOfALaterVersion)
{
    Prepare(m_handle, FormRows()[0]);
    const auto form = FormOf(FormRows()[0]);
    const SDescribed described = Describe(m_handle, form);
    std::vector<SLater<PexloField>> fields(described.fields.size() + 1);
    for (auto& field : fields)
    {
        std::memset(&field, 0x55, sizeof field);
        field.known.size = sizeof field;
    }
    const int capacity = static_cast<int>(fields.size());
    EXPECT_EQ(Pexlo_DescribeFields(m_handle, &form, nullptr, 0, &fields[0].known, capacity, nullptr), described.result);
    for (size_t i = 0; i < described.fields.size(); ++i)
    {
        EXPECT_EQ(std::memcmp(&fields[i].known, &described.fields[i], sizeof(PexloField)), 0) << i;
        EXPECT_EQ(fields[i].rest[0], 0x55);
    }
    EXPECT_EQ(fields.back().known.control, 0x55555555); // nothing behind the last one

    auto few = SizedArray<PexloField>(3);
    std::memset(&few[2], 0x55, sizeof few[2]);
    few[2].size = sizeof few[2];
    EXPECT_EQ(Pexlo_DescribeFields(m_handle, &form, nullptr, 0, few.data(), 2, nullptr), described.result);
    EXPECT_STREQ(few[1].name, described.fields[1].name);
    EXPECT_EQ(few[2].control, 0x55555555);
    few[0].size = few[1].size = sizeof(PexloField);
    few[2].size = sizeof(PexloField) - 1;
    EXPECT_EQ(Pexlo_DescribeFields(m_handle, &form, nullptr, 0, few.data(), 3, nullptr), PEXLO_E_SIZE);
    few[0].size = few[2].size = 0;
    EXPECT_EQ(Pexlo_DescribeFields(m_handle, &form, nullptr, 0, few.data(), 1, nullptr), PEXLO_E_SIZE);
    EXPECT_EQ(Pexlo_DescribeFields(m_handle, &form, nullptr, 0, nullptr, 1, nullptr), PEXLO_E_ARGUMENT);
    EXPECT_EQ(Pexlo_DescribeFields(m_handle, &form, nullptr, 0, few.data(), -1, nullptr), PEXLO_E_ARGUMENT);
    EXPECT_EQ(Pexlo_DescribeFields(m_handle, &form, nullptr, 0, nullptr, 0, nullptr), described.result);
}

TEST_F(CapiOperationsTest, RefuseFormsThatAreMissing)
{
    Prepare(m_handle, FormRows()[0]);
    auto form = FormOf(FormRows()[0]);
    const PexloEntry entry = {sizeof entry, 0, "start", "100"};
    EXPECT_EQ(Pexlo_Fill(m_handle, nullptr, &entry, 1, nullptr), PEXLO_E_ARGUMENT);
    EXPECT_EQ(Pexlo_Check(m_handle, nullptr, &entry, 1, nullptr), PEXLO_E_ARGUMENT);
    EXPECT_EQ(Pexlo_DescribeFields(m_handle, nullptr, &entry, 1, nullptr, 0, nullptr), PEXLO_E_ARGUMENT);
    EXPECT_EQ(Pexlo_Check(m_handle, &form, nullptr, 1, nullptr), PEXLO_E_ARGUMENT);
    EXPECT_EQ(Pexlo_Check(m_handle, &form, &entry, -1, nullptr), PEXLO_E_ARGUMENT);
    EXPECT_EQ(Pexlo_Check(m_handle, &form, nullptr, 0, nullptr), 2);
    for (const PexloEntry& nameless :
         {PexloEntry{sizeof entry, 0, nullptr, "1"}, {sizeof entry, 0, "", "1"}, {sizeof entry, -1, "start", "1"}})
        EXPECT_EQ(Pexlo_Check(m_handle, &form, &nameless, 1, nullptr), PEXLO_E_ARGUMENT);
    const PexloEntry textless = {sizeof textless, 0, "start", nullptr};
    auto refusal = Sized<PexloRefusal>();
    EXPECT_EQ(Pexlo_DescribeFields(m_handle, &form, &textless, 1, nullptr, 0, &refusal),
              Describe(m_handle, form).result);
    EXPECT_EQ(refusal.reason, 0);
    for (const int axisFlag : {-1, 256})
    {
        form.axisFlag = axisFlag;
        EXPECT_EQ(Pexlo_Check(m_handle, &form, nullptr, 0, nullptr), PEXLO_E_ARGUMENT);
    }
    EXPECT_EQ(Pexlo_GetOffer(m_handle, 0, nullptr), PEXLO_E_ARGUMENT);
    EXPECT_EQ(Pexlo_GetFieldItem(m_handle, 0, 0, nullptr), PEXLO_E_ARGUMENT);
}

} // namespace
