// The wizard object: what it holds after construction, its settings, and what ResetContents takes and leaves.
#include "tests/core/FunWizardTest.h"

#include <climits>
#include <cstddef>
#include <cstring>
#include <memory>
#include <new>
#include <type_traits>

#include "core/AppName.h"

namespace
{

constexpr int kSupported[] = {168, 169, 170, 171, 172, 173, 174, 175, 176, 177};

void AddContacts(CFunWizard& wizard, std::initializer_list<std::pair<short, int>> contacts)
{
    wizard.RemoveAllContInfo();
    for (const auto& [code, number] : contacts)
        wizard.AddContInfo(2, code, number);
}

} // namespace

TEST(Records, AreAsLargeAsTheInterfaceSays)
{
    EXPECT_EQ(sizeof(SContact), 8u);
    EXPECT_EQ(sizeof(SOperand), 8u);
    EXPECT_EQ(sizeof(SFunSetData), 12u);
    EXPECT_EQ(sizeof(SFWzdInstCode), 10u);
}

TEST(Records, StandInTheirOrderWithoutGaps)
{
    EXPECT_EQ(offsetof(SFunSetData, code), 0u);
    EXPECT_EQ(offsetof(SFunSetData, number), 2u);
    EXPECT_EQ(offsetof(SFunSetData, type), 6u);
    EXPECT_EQ(offsetof(SFunSetData, format), 7u);
    EXPECT_EQ(offsetof(SFunSetData, value), 8u);
    EXPECT_EQ(offsetof(SFWzdInstCode, kind), 0u);
    EXPECT_EQ(offsetof(SFWzdInstCode, code), 2u);
    EXPECT_EQ(offsetof(SFWzdInstCode, value), 4u);
    EXPECT_EQ(offsetof(SFWzdInstCode, flag1), 8u);
    EXPECT_EQ(offsetof(SFWzdInstCode, flag2), 9u);
    EXPECT_EQ(offsetof(SContact, number), 0u);
    EXPECT_EQ(offsetof(SContact, kindAndCode), 4u);
    EXPECT_EQ(offsetof(SOperand, value), 0u);
    EXPECT_EQ(offsetof(SOperand, codeWord), 4u);
}

TEST(FunWizard, IsConstructedEmpty)
{
    CFunWizard wizard;
    EXPECT_EQ(wizard.GetContInfoCount(), 0);
    EXPECT_EQ(wizard.GetOprdInfoCount(), 0);
    EXPECT_EQ(wizard.GetDataInfoCount(), 0);
    EXPECT_EQ(wizard.GetCmtInfoCount(), 0);
    EXPECT_EQ(wizard.GetInstCodeCount(), 0);
    EXPECT_EQ(SFunWizardTest::RangeCount(wizard), 0);
    EXPECT_EQ(wizard.GetDlgDataPtr(), nullptr);
    EXPECT_EQ(wizard.GetLoadInstance(), nullptr);
    EXPECT_EQ(SFunWizardTest::DialogFont(wizard), nullptr);
    EXPECT_STREQ(wizard.GetHelpPath(), "");
    EXPECT_STREQ(SFunWizardTest::AppName(wizard), "");
    for (const int instruction : kSupported)
        EXPECT_EQ(wizard.FindSupportFun(instruction), 0);
}

TEST(FunWizard, IsConstructedWithItsDefaults)
{
    CFunWizard wizard;
    EXPECT_EQ(wizard.GetPlcType(), 0);
    EXPECT_EQ(wizard.GetMaxSlot(), 32);
    EXPECT_EQ(wizard.IsCmtRec(), 1);
    EXPECT_EQ(wizard.IsOnlyDataTable(), 0);
    EXPECT_EQ(wizard.GetStartType(), 0);
    EXPECT_EQ(wizard.IsAxisType(), 0);
    EXPECT_EQ(wizard.IsStartCondition(), 1);
    EXPECT_EQ(wizard.IsSameCondition(), 1);
    EXPECT_EQ(SFunWizardTest::UnitMode(wizard), 0);
    EXPECT_EQ(SFunWizardTest::AxisFlag(wizard), 1);
    EXPECT_EQ(SFunWizardTest::LastInstruction(wizard), -1);
    EXPECT_EQ(SFunWizardTest::LastVariant(wizard), 0);
    const int options[] = {1, 0, 1, 0};
    for (int i = 0; i < 4; ++i)
        EXPECT_EQ(SFunWizardTest::Option(wizard, i), options[i]) << i;
    for (int i = 0; i < 5; ++i)
        EXPECT_EQ(SFunWizardTest::ChannelWord(wizard, i), 5) << i;
}

TEST(FunWizard, CarriesRunTimeClassInformation)
{
    CFunWizard wizard;
    CRuntimeClass* record = RUNTIME_CLASS(CFunWizard);
    EXPECT_EQ(wizard.GetRuntimeClass(), record);
    EXPECT_EQ(record, &CFunWizard::classCFunWizard);
    EXPECT_STREQ(record->m_lpszClassName, "CFunWizard");
    EXPECT_EQ(static_cast<size_t>(record->m_nObjectSize), sizeof(CFunWizard));
    EXPECT_TRUE(wizard.IsKindOf(RUNTIME_CLASS(CFunWizard)));
    EXPECT_TRUE(wizard.IsKindOf(RUNTIME_CLASS(CObject)));
    EXPECT_FALSE(wizard.IsKindOf(RUNTIME_CLASS(CWnd)));
}

TEST(FunWizard, KeepsItsFieldsInOrder)
{
    constexpr bool isPacked = sizeof(void*) == 4; // only 32-bit hosts know the layout
    CFunWizard wizard;
    size_t end = sizeof(void*);
    for (const auto& field : SFunWizardTest::Fields(wizard))
    {
        EXPECT_GE(field.offset, end);
        if (isPacked)
        {
            EXPECT_EQ(field.offset, end) << "a gap";
        }
        end = field.offset + field.size;
    }
    if (isPacked)
    {
        EXPECT_EQ(sizeof wizard, end);
    }
}

TEST(FunWizard, HasTheSizeThatHostsAreCompiledAgainst)
{
    EXPECT_EQ(sizeof(CFunWizard), sizeof(void*) == 4 ? 219u : 344u);
}

TEST(FunWizard, IsDestroyedThroughItsBase)
{
    static_assert(std::has_virtual_destructor<CFunWizard>::value, "hosts delete it through CObject");
    auto* wizard = new CFunWizard;
    wizard->AddCmtInfo("Control code");
    wizard->SetDlgDataPtr(::operator new(100));
    CObject* object = wizard;
    delete object; // the leak checker of the sanitizer build sees to it that everything went
}

TEST(FunWizard, KeepsFlagsAsPassed)
{
    CFunWizard wizard;
    for (const int flag : {0, 1, 2, -1, 0x10000})
    {
        wizard.SetCmtRec(flag);
        wizard.SetOnlyDataTable(flag);
        EXPECT_EQ(wizard.IsCmtRec(), flag);
        EXPECT_EQ(wizard.IsOnlyDataTable(), flag);
    }
}

TEST(FunWizard, StoresStartTypesUpToTwo)
{
    CFunWizard wizard;
    for (int type = 0; type < 256; ++type)
    {
        wizard.SetStartType(1);
        wizard.SetStartType(static_cast<unsigned char>(type));
        EXPECT_EQ(wizard.GetStartType(), type <= 2 ? type : 0);
    }
}

TEST(FunWizard, AxisTypeIsTheInvertedFlag)
{
    CFunWizard wizard;
    SFunWizardTest::SetAxisFlag(wizard, 0);
    EXPECT_EQ(wizard.IsAxisType(), 1);
    SFunWizardTest::SetAxisFlag(wizard, 2);
    EXPECT_EQ(wizard.IsAxisType(), 0);
}

TEST(SupportedInstructions, AreTheTenFrom168)
{
    CFunWizard wizard;
    for (int index = 0; index < 10; ++index)
        EXPECT_EQ(wizard.GetSupportFunNum(index), kSupported[index]);
    for (const int index : {10, -1, 11, 100, INT_MAX, INT_MIN})
        EXPECT_EQ(wizard.GetSupportFunNum(index), -1);
}

TEST(SupportedInstructions, AreRegisteredOnce)
{
    CFunWizard wizard;
    for (int round = 0; round < 2; ++round)
    {
        EXPECT_EQ(wizard.EntrySupportFunInfo(170), 0);
        EXPECT_EQ(wizard.FindSupportFun(170), 1);
        EXPECT_EQ(SFunWizardTest::SupportedCount(wizard), 1);
    }
    for (const int instruction : kSupported)
        EXPECT_EQ(wizard.EntrySupportFunInfo(instruction), 0);
    EXPECT_EQ(SFunWizardTest::SupportedCount(wizard), 10);
}

TEST(SupportedInstructions, RefuseEverythingElse)
{
    CFunWizard wizard;
    for (const int instruction : {178, 167, 355, 282, 283, 354, 151, 0, -1, 168 + 0x10000, INT_MAX, INT_MIN})
    {
        EXPECT_EQ(wizard.EntrySupportFunInfo(instruction), 1) << instruction;
        EXPECT_EQ(wizard.FindSupportFun(instruction), 0) << instruction;
    }
    EXPECT_EQ(SFunWizardTest::SupportedCount(wizard), 0);
}

TEST(SupportedInstructions, AreCleared)
{
    CFunWizard wizard;
    wizard.EntrySupportFunInfo(168);
    wizard.ClearSuppportFunInfo();
    EXPECT_EQ(wizard.FindSupportFun(168), 0);
    EXPECT_EQ(wizard.EntrySupportFunInfo(168), 0);
    EXPECT_EQ(wizard.FindSupportFun(168), 1);
}

TEST(StartCondition, IsCompleteWhenEmptyOrEndingOnY)
{
    CFunWizard wizard;
    AddContacts(wizard, {{2, 0}});
    EXPECT_EQ(wizard.IsStartCondition(), 0);
    AddContacts(wizard, {{2, 0}, {2, 0}});
    EXPECT_EQ(wizard.IsStartCondition(), 0);
    AddContacts(wizard, {{3, 0}, {3, 0}, {2, 0}});
    EXPECT_EQ(wizard.IsStartCondition(), 1);
    AddContacts(wizard, {{2, 0}, {2, 0}, {3, 0}});
    EXPECT_EQ(wizard.IsStartCondition(), 0);
    AddContacts(wizard, {{3, 0}, {3, 0}, {3, 0}, {2, 0}});
    EXPECT_EQ(wizard.IsStartCondition(), 1);
    AddContacts(wizard, {});
    EXPECT_EQ(wizard.IsStartCondition(), 1);
}

TEST(SameCondition, ComparesTheFirstWithTheLastButOne)
{
    CFunWizard wizard;
    AddContacts(wizard, {{3, 1}, {3, 2}});
    EXPECT_EQ(wizard.IsSameCondition(), 1) << "fewer than three contacts";
    AddContacts(wizard, {{3, 1}, {3, 1}, {2, 9}});
    EXPECT_EQ(wizard.IsSameCondition(), 1);
    AddContacts(wizard, {{3, 1}, {3, 2}, {2, 9}});
    EXPECT_EQ(wizard.IsSameCondition(), 0) << "another number";
    AddContacts(wizard, {{3, 1}, {1, 1}, {2, 9}});
    EXPECT_EQ(wizard.IsSameCondition(), 0) << "another device";
    AddContacts(wizard, {{1, 1}, {20001, 1}, {2, 9}});
    EXPECT_EQ(wizard.IsSameCondition(), 0) << "special areas are devices of their own";
    AddContacts(wizard, {{3, 1}, {3, 5}, {3, 1}, {2, 9}});
    EXPECT_EQ(wizard.IsSameCondition(), 1) << "records in between do not count";
}

TEST(DialogData, IsOwnedOnceHandedOver)
{
    CFunWizard wizard;
    wizard.RemoveDlgData();
    EXPECT_EQ(wizard.GetDlgDataPtr(), nullptr);
    void* data = ::operator new(64);
    wizard.SetDlgDataPtr(data);
    EXPECT_EQ(wizard.GetDlgDataPtr(), data);
    wizard.RemoveDlgData();
    EXPECT_EQ(wizard.GetDlgDataPtr(), nullptr);
    wizard.RemoveDlgData();
    EXPECT_EQ(wizard.GetDlgDataPtr(), nullptr);
}

TEST(DialogData, IsNotFreedByANewPointer)
{
    CFunWizard wizard;
    auto* first = static_cast<char*>(::operator new(64));
    std::memset(first, 'a', 64);
    wizard.SetDlgDataPtr(first);
    wizard.SetDlgDataPtr(::operator new(64));
    EXPECT_EQ(first[63], 'a');
    ::operator delete(first);
}

TEST(AppNames, OfTheObjectAndOfTheModuleAreSeparate)
{
    CFunWizard wizard;
    char name[] = "Ladder tool";
    wizard.SetAppName(name);
    PexloDll_SetAppName("Messages");
    name[0] = 'B';
    EXPECT_STREQ(SFunWizardTest::AppName(wizard), "Ladder tool") << "the text is copied";
    EXPECT_STREQ(GetAppName(), "Messages");
    PexloDll_SetAppName("");
    EXPECT_STREQ(GetAppName(), "");
}

TEST(AppNames, HaveAnyLength)
{
    const std::string name(100000, 'n');
    CFunWizard wizard;
    wizard.SetAppName(name.c_str());
    PexloDll_SetAppName(name.c_str());
    EXPECT_EQ(SFunWizardTest::AppName(wizard).GetLength(), 100000);
    EXPECT_STREQ(GetAppName(), name.c_str());
    PexloDll_SetAppName("");
}

TEST(HelpPath, IsCopiedInBothDirections)
{
    CFunWizard wizard;
    char path[] = "C:\\Help\\Wizard.chm";
    wizard.SetHelpPath(path);
    path[0] = 'D';
    CString copy = wizard.GetHelpPath();
    EXPECT_STREQ(copy, "C:\\Help\\Wizard.chm");
    copy = "changed";
    EXPECT_STREQ(wizard.GetHelpPath(), "C:\\Help\\Wizard.chm");
    wizard.SetHelpPath(nullptr);
    EXPECT_STREQ(wizard.GetHelpPath(), "");
    wizard.SetHelpPath("x");
    wizard.SetHelpPath("");
    EXPECT_STREQ(wizard.GetHelpPath(), "");
}

namespace
{

/// A wizard in which nothing is as it was constructed.
std::unique_ptr<CFunWizard> UsedWizard()
{
    auto wizard = std::make_unique<CFunWizard>();
    wizard->SetAppName("Tool");
    wizard->SetHelpPath("C:\\a.chm");
    wizard->CreateDlgFont(nullptr);
    wizard->SetDlgDataPtr(::operator new(16));
    wizard->SetDevRange(-1, 9, 0, 100);
    SFunWizardTest::SetLastWizard(*wizard, 1, 151, 10050);
    SFunWizardTest::SetAxisFlag(*wizard, 0);
    wizard->ResetChannelNo();
    wizard->SetChannelNo(3, 175);
    wizard->SetMaxSlot(7);
    wizard->EntrySupportFunInfo(168);
    wizard->AddContInfo(2, 3, 5);
    wizard->AddOprdInfo(9, 100);
    wizard->AddDataInfo(9, 100, 1, 1, 5);
    wizard->AddInstCodeInfo(8, -1, 168, 0, 0);
    wizard->AddCmtInfo("Control code");
    wizard->SetOnlyDataTable(1);
    wizard->SetCmtRec(0);
    wizard->SetStartType(2);
    wizard->SetPlcType(72);
    for (int i = 0; i < 4; ++i)
        SFunWizardTest::SetOption(*wizard, i, 40 + i);
    return wizard;
}

} // namespace

TEST(ResetContents, TakesWhatBelongsToTheLastWizard)
{
    const auto wizard = UsedWizard();
    wizard->ResetContents();
    int low = 77;
    int high = 78;
    EXPECT_EQ(wizard->GetDevRange(-1, 9, low, high), 0);
    EXPECT_EQ(SFunWizardTest::RangeCount(*wizard), 0);
    EXPECT_EQ(wizard->GetDlgDataPtr(), nullptr);
    EXPECT_EQ(wizard->FindSupportFun(168), 0);
    EXPECT_EQ(SFunWizardTest::UnitMode(*wizard), 0);
    EXPECT_EQ(wizard->IsAxisType(), 0);
    EXPECT_EQ(SFunWizardTest::AxisFlag(*wizard), 1);
    EXPECT_EQ(SFunWizardTest::LastInstruction(*wizard), -1);
    EXPECT_EQ(SFunWizardTest::LastVariant(*wizard), 0);
    EXPECT_EQ(wizard->GetOprdInfoCount(), 0);
    EXPECT_EQ(wizard->GetDataInfoCount(), 0);
    EXPECT_EQ(wizard->GetInstCodeCount(), 0);
    EXPECT_EQ(wizard->GetCmtInfoCount(), 0);
    EXPECT_EQ(wizard->GetLoadInstance(), nullptr);
}

TEST(ResetContents, LeavesContactsAndSettings)
{
    const auto wizard = UsedWizard();
    CFont* font = SFunWizardTest::DialogFont(*wizard);
    wizard->ResetContents();
    EXPECT_EQ(wizard->GetContInfoCount(), 1);
    EXPECT_STREQ(SFunWizardTest::AppName(*wizard), "Tool");
    EXPECT_STREQ(wizard->GetHelpPath(), "C:\\a.chm");
    EXPECT_EQ(SFunWizardTest::DialogFont(*wizard), font);
    EXPECT_EQ(SFunWizardTest::ChannelWord(*wizard, 0), 0);
    EXPECT_EQ(SFunWizardTest::ChannelWord(*wizard, 4), 8);
    EXPECT_EQ(wizard->GetMaxSlot(), 7);
    EXPECT_EQ(wizard->IsOnlyDataTable(), 1);
    EXPECT_EQ(wizard->IsCmtRec(), 0);
    EXPECT_EQ(wizard->GetStartType(), 2);
    EXPECT_EQ(wizard->GetPlcType(), 72);
    for (int i = 0; i < 4; ++i)
        EXPECT_EQ(SFunWizardTest::Option(*wizard, i), 40 + i);
}

TEST(ResetContents, LeavesAUsableObject)
{
    const auto wizard = UsedWizard();
    wizard->ResetContents();
    wizard->ResetContents();
    wizard->SetDevRange(-1, 9, 1, 2);
    wizard->EntrySupportFunInfo(177);
    wizard->AddOprdInfo(11, 3);
    wizard->AddDataInfo(9, 1, 0, 0, 4);
    int low = 0;
    int high = 0;
    EXPECT_EQ(wizard->GetDevRange(-1, 9, low, high), 1);
    EXPECT_EQ(wizard->FindSupportFun(177), 1);
    EXPECT_EQ(wizard->GetOprdInfoCount(), 1);
    EXPECT_EQ(wizard->CreateInstCode(), 1);
    EXPECT_STREQ(ProgramText(*wizard).c_str(), "2 3 5\n17 -1 0\n8 -1 0\n-1 11 4\n-1 9 1\n");
}
