#include "core/pexlo.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <thread>

using testing::ElementsAre;

namespace
{
constexpr int kX = 3;
constexpr int kY = 2;
constexpr int kR = 1;
constexpr int kDT = 9;

class CppWrapperTest : public testing::Test
{
protected:
    CppWrapperTest()
    {
        m_wizard.SetPlcType(1);
        m_wizard.SetDevRange(-1, kX, 0, 12 * 16 + 15);
        m_wizard.SetDevRange(-1, kY, 0, 12 * 16 + 15);
        m_wizard.SetDevRange(-1, kR, 0, 62 * 16 + 15);
        m_wizard.SetDevRange(-1, kDT, 0, 1659);
        m_wizard.EntrySupportFunInfo(168);
        m_wizard.EntrySupportFunInfo(174);
        m_wizard.ResetChannelNo();
        m_wizard.SetChannelNo(0, 174);
        m_wizard.SetChannelNo(2, 174);
    }

    static std::vector<pexlo::Entry> Entries()
    {
        return {{"contact-device", "R"},  {"contact-number", "10A"}, {"start", "1653"},
                {"initial-speed", "500"}, {"maximum-speed", "5000"}, {"acceleration-time", "300"},
                {"target", "-8388608"},   {"", "Y1", 2103}};
    }

    static const pexlo::Field& Named(const pexlo::Description& description, const std::string& name)
    {
        for (const pexlo::Field& field : description.fields)
        {
            if (field.name == name)
                return field;
        }
        throw std::out_of_range(name);
    }

    pexlo::Wizard m_wizard;
};

template <typename TCall>
int CodeOf(TCall call)
{
    try
    {
        call();
    }
    catch (const pexlo::Error& error)
    {
        EXPECT_STREQ(error.what(), pexlo::Error::Text(error.Code()));
        return error.Code();
    }
    return 0;
}

std::vector<std::vector<int>> Numbers(const std::vector<PexloData>& table)
{
    std::vector<std::vector<int>> numbers;
    for (const PexloData& data : table)
        numbers.push_back({data.code, data.number, data.type, data.format, data.value});
    return numbers;
}
} // namespace

TEST_F(CppWrapperTest, FillsAFormAndReadsTheListsBack)
{
    pexlo::Form form(168);
    ASSERT_FALSE(m_wizard.Fill(form, Entries()));

    ASSERT_EQ(m_wizard.Contacts().size(), 1u);
    EXPECT_EQ(m_wizard.Contacts()[0].code, kR);
    EXPECT_EQ(m_wizard.Contacts()[0].number, 10 * 16 + 0xA);
    ASSERT_EQ(m_wizard.Operands().size(), 2u);
    EXPECT_EQ(m_wizard.Operands()[0].value, 1653);
    EXPECT_EQ(m_wizard.Operands()[1].value, 1) << "Y1";
    EXPECT_THAT(Numbers(m_wizard.DataTable()),
                ElementsAre(std::vector<int>{kDT, 1653, 0, 1, 0}, std::vector<int>{kDT, 1654, 0, 0, 500},
                            std::vector<int>{kDT, 1655, 0, 0, 5000}, std::vector<int>{kDT, 1656, 0, 0, 300},
                            std::vector<int>{kDT, 1657, 1, 0, -8388608}, std::vector<int>{kDT, 1659, 0, 0, 0}));
    EXPECT_THAT(m_wizard.Comments(), ElementsAre("Control code", "Initial speed", "Maximum speed",
                                                 "Acceleration/deceleration time", "Target value"));
    EXPECT_TRUE(m_wizard.CreateInstCode());
    const std::vector<PexloInstCode> sequence = m_wizard.InstCodes();
    ASSERT_EQ(sequence.size(), 23u);
    EXPECT_EQ(static_cast<int>(sequence.size()), m_wizard.GetInstCodeCount());
    EXPECT_EQ(sequence[20].kind, 8);
    EXPECT_EQ(sequence[20].value, 168);
}

TEST_F(CppWrapperTest, ARefusalIsAResult)
{
    std::vector<pexlo::Entry> entries = Entries();
    entries[4].text = "9500";
    pexlo::Form form(168);
    const auto refusal = m_wizard.Fill(form, entries);
    ASSERT_TRUE(refusal);
    EXPECT_EQ(refusal->reason, PEXLO_REFUSED_BY_MESSAGE);
    EXPECT_EQ(refusal->messageId, 20005);
    EXPECT_EQ(refusal->control, 2107);
    EXPECT_EQ(refusal->name, "maximum-speed");
    EXPECT_EQ(refusal->message,
              "The inputted maximum speed value has become the outside of the range.\nPlease input the right value.");
    EXPECT_TRUE(m_wizard.DataTable().empty());

    const auto missing = m_wizard.Check(form, {{"maximum-sped", "1"}});
    ASSERT_TRUE(missing);
    EXPECT_EQ(missing->reason, PEXLO_REFUSED_NO_FIELD);
    EXPECT_EQ(missing->entry, 0);
}

TEST_F(CppWrapperTest, CheckingStoresNothing)
{
    EXPECT_FALSE(m_wizard.Check(pexlo::Form(168), Entries()));
    EXPECT_TRUE(m_wizard.DataTable().empty());
    EXPECT_TRUE(m_wizard.Contacts().empty());
}

TEST_F(CppWrapperTest, DescribesFields)
{
    const pexlo::Description description = m_wizard.DescribeFields(pexlo::Form(168), {{"maximum-speed", "6001"}});
    EXPECT_EQ(description.caption, "F168 (SPD1)");
    EXPECT_FALSE(description.refusal);

    const pexlo::Field& output = Named(description, "output");
    EXPECT_EQ(output.info.kind, PEXLO_FIELD_LIST);
    EXPECT_EQ(output.info.control, 2103);
    EXPECT_EQ(output.label, "Candidate for a pulse output");
    EXPECT_EQ(output.text, "Y0");
    ASSERT_EQ(output.items.size(), 2u);
    EXPECT_EQ(output.items[1].text, "Y1");
    EXPECT_EQ(output.items[1].code, 1u);

    const pexlo::Field& speed = Named(description, "maximum-speed");
    EXPECT_EQ(speed.text, "6001");
    EXPECT_EQ(speed.info.low, 40);
    EXPECT_EQ(speed.info.high, 6000);
    EXPECT_EQ(speed.info.problem, 20005);

    const pexlo::Description refused = m_wizard.DescribeFields(pexlo::Form(168), {{"output", "Y2"}});
    ASSERT_TRUE(refused.refusal);
    EXPECT_EQ(refused.refusal->reason, PEXLO_REFUSED_NO_ITEM);
    EXPECT_EQ(refused.refusal->name, "output");
    EXPECT_EQ(refused.fields.size(), description.fields.size());
}

TEST_F(CppWrapperTest, TextsOfFieldsAreWhole)
{
    std::string rows;
    for (int i = 1; i <= 100; ++i)
        rows += std::to_string(1000 + i) + "\t" + std::to_string(i) + "\n";
    const pexlo::Description description = m_wizard.DescribeFields(pexlo::Form(174), {{"table", rows}});
    ASSERT_FALSE(description.refusal) << description.refusal->message;
    const pexlo::Field& table = Named(description, "table");
    EXPECT_EQ(table.info.kind, PEXLO_FIELD_TABLE);
    EXPECT_EQ(table.info.selected, 100);
    EXPECT_EQ(table.items.size(), 2u);
    EXPECT_GT(table.text.size(), sizeof table.info.text);
    EXPECT_NE(table.text.find("1100\t100"), std::string::npos);
}

TEST_F(CppWrapperTest, TellsWhatAPlcHas)
{
    const std::vector<pexlo::Offer> offers = m_wizard.Offers();
    ASSERT_GT(offers.size(), 3u);
    EXPECT_EQ(offers[0].instruction, 168);
    EXPECT_EQ(offers[0].variant, 0);
    EXPECT_EQ(offers[0].text, "SPD1\t(168)\tPositioning control (Trapezoidal control)");
    EXPECT_EQ(offers[1].variant, 1);
    EXPECT_FALSE(m_wizard.GetOffer(-1));
    EXPECT_FALSE(m_wizard.GetOffer(static_cast<int>(offers.size())));
}

TEST_F(CppWrapperTest, ConfirmsAControlCode)
{
    pexlo::Form form(PEXLO_FORM_CONTROL_CODE);
    form.controlCode = 0x20;
    EXPECT_FALSE(m_wizard.Fill(form, {}));
    EXPECT_EQ(form.controlCode, 0x20u);
}

TEST_F(CppWrapperTest, WrongCallsAreThrown)
{
    EXPECT_EQ(CodeOf([&] { m_wizard.SetPlcType(256); }), PEXLO_E_ARGUMENT);
    pexlo::Form unknown(999);
    EXPECT_EQ(CodeOf([&] { m_wizard.Fill(unknown, {}); }), PEXLO_E_INSTRUCTION);
    EXPECT_EQ(CodeOf([&] { m_wizard.DescribeFields(unknown); }), PEXLO_E_INSTRUCTION);
    pexlo::Form sizeless(168);
    sizeless.size = 0;
    EXPECT_EQ(CodeOf([&] { m_wizard.Fill(sizeless, {}); }), PEXLO_E_SIZE);
    EXPECT_EQ(CodeOf([&] { m_wizard.Fill(sizeless, {{"", "1"}}); }), PEXLO_E_SIZE);
    pexlo::Form form(168);
    EXPECT_EQ(CodeOf([&] { m_wizard.Fill(form, {{"", "1"}}); }), PEXLO_E_ARGUMENT) << "no field is named";

    pexlo::Wizard other(std::move(m_wizard));
    EXPECT_EQ(CodeOf([&] { m_wizard.GetPlcType(); }), PEXLO_E_HANDLE); // NOLINT(bugprone-use-after-move): it is meant
    EXPECT_EQ(other.GetPlcType(), 1);
}

TEST_F(CppWrapperTest, ResultsBelowZeroAreNoWrongCalls)
{
    EXPECT_EQ(m_wizard.GetChannelNo(0, 171), -1);
    EXPECT_EQ(m_wizard.GetChannelTypeIndex(168), -1);
    EXPECT_EQ(m_wizard.GetSupportFunNum(99), -1);
    EXPECT_EQ(m_wizard.GetSeqDevInfo(99, 0).result, -1);
    EXPECT_EQ(m_wizard.GetSeqDevInfo(0, 0).code, kX);
}

TEST_F(CppWrapperTest, AHandleBelongsToAThread)
{
    int foreign = 0, own = -1;
    std::thread([&] {
        foreign = CodeOf([&] { m_wizard.GetPlcType(); });
        own = CodeOf([&] {
            m_wizard.TakeOver();
            m_wizard.GetPlcType();
        });
    }).join();
    EXPECT_EQ(foreign, PEXLO_E_THREAD);
    EXPECT_EQ(own, 0);
    EXPECT_EQ(CodeOf([&] { m_wizard.GetPlcType(); }), PEXLO_E_THREAD);
    m_wizard.TakeOver();
    EXPECT_EQ(m_wizard.GetPlcType(), 1);
}

TEST_F(CppWrapperTest, HandlesAreMovedAndGivenAway)
{
    const PexloHandle handle = m_wizard.Handle();
    pexlo::Wizard other;
    const PexloHandle freed = other.Handle();
    other = std::move(m_wizard);
    EXPECT_EQ(other.Handle(), handle);
    m_wizard = pexlo::Wizard(); // NOLINT(bugprone-use-after-move): it may be filled again
    EXPECT_NE(m_wizard.Handle(), nullptr);
    EXPECT_EQ(Pexlo_GetPlcType(freed), PEXLO_E_HANDLE);

    EXPECT_EQ(other.Release(), handle);
    EXPECT_EQ(other.Handle(), nullptr);
    EXPECT_EQ(pexlo::Wizard(handle).GetPlcType(), 1);
    EXPECT_EQ(Pexlo_GetPlcType(handle), PEXLO_E_HANDLE) << "destroyed by the one who took it over";
}

TEST_F(CppWrapperTest, KeepsSettings)
{
    const std::string path = "C:\\\xC3\x84.chm" + std::string(300, 'x'); // on every western Windows
    m_wizard.SetHelpPath(path);
    EXPECT_EQ(m_wizard.GetHelpPath(), path);
    m_wizard.SetHelpPath("");
    EXPECT_EQ(m_wizard.GetHelpPath(), "");
    m_wizard.SetAppName("Host");

    m_wizard.SetMaxSlot(8);
    EXPECT_EQ(m_wizard.GetMaxSlot(), 8);
    m_wizard.SetDefaultMaxSlot();
    EXPECT_EQ(m_wizard.GetMaxSlot(), 32);
    m_wizard.SetF175DispType(2);
    EXPECT_EQ(m_wizard.GetF175DispType(), 2);
    m_wizard.SetCmtRec(0);
    EXPECT_EQ(m_wizard.IsCmtRec(), 0);
    m_wizard.SetOnlyDataTable(1);
    EXPECT_EQ(m_wizard.IsOnlyDataTable(), 1);
    m_wizard.SetStartType(1);
    EXPECT_EQ(m_wizard.GetStartType(), 1);
    EXPECT_TRUE(m_wizard.FindSupportFun(168));
    m_wizard.ClearSuppportFunInfo();
    EXPECT_FALSE(m_wizard.FindSupportFun(168));
    EXPECT_EQ(m_wizard.GetNumOfChannel(174), 2);
    m_wizard.ResetChannelNo();
    EXPECT_EQ(m_wizard.GetNumOfChannel(174), 0);

    ASSERT_TRUE(m_wizard.GetDevRange(-1, kX));
    EXPECT_EQ(m_wizard.GetDevRange(-1, kX)->high, 207);
    EXPECT_FALSE(m_wizard.GetDevRange(-1, 99));
    m_wizard.ResetContents();
    EXPECT_FALSE(m_wizard.GetDevRange(-1, kX));
}

TEST_F(CppWrapperTest, HoldsLists)
{
    EXPECT_TRUE(m_wizard.AddContInfo(2, kX, 1));
    EXPECT_TRUE(m_wizard.AddContInfo(2, kR, 2));
    EXPECT_EQ(m_wizard.GetContInfoCount(), 2);
    EXPECT_EQ(m_wizard.GetContInfo(1)->number, 2);
    EXPECT_FALSE(m_wizard.GetContInfo(2));
    m_wizard.RemoveAllContInfo();
    EXPECT_TRUE(m_wizard.Contacts().empty());

    EXPECT_TRUE(m_wizard.AddOprdInfo(kDT, 5));
    EXPECT_EQ(m_wizard.GetOprdInfo(0)->value, 5);
    m_wizard.RemoveAllOprdInfo();
    EXPECT_EQ(m_wizard.GetOprdInfoCount(), 0);

    EXPECT_TRUE(m_wizard.AddDataInfo(kDT, 5, 1, 0, -7));
    EXPECT_EQ(m_wizard.GetDataInfo(0)->value, -7);
    EXPECT_FALSE(m_wizard.GetDataInfo(-1));
    m_wizard.RemoveAllDataInfo();
    EXPECT_EQ(m_wizard.GetDataInfoCount(), 0);

    const std::string longest(1000, 'c');
    EXPECT_TRUE(m_wizard.AddCmtInfo("short"));
    EXPECT_TRUE(m_wizard.AddCmtInfo(""));
    EXPECT_TRUE(m_wizard.AddCmtInfo(longest));
    EXPECT_THAT(m_wizard.Comments(), ElementsAre("short", "", longest));
    EXPECT_FALSE(m_wizard.GetCmtInfo(3));
    m_wizard.RemoveAllCmtInfo();
    EXPECT_EQ(m_wizard.GetCmtInfoCount(), 0);

    EXPECT_TRUE(m_wizard.AddInstCodeInfo(8, -1, 168, 0, 1));
    EXPECT_EQ(m_wizard.GetInstCodeInfo(0)->flag2, 1);
    m_wizard.RemoveAllInstCodeInfo();
    EXPECT_TRUE(m_wizard.InstCodes().empty());

    m_wizard.SetDlgDataPtr("data", 5);
    EXPECT_STREQ(static_cast<const char*>(m_wizard.GetDlgDataPtr()), "data");
    m_wizard.RemoveDlgData();
    EXPECT_EQ(m_wizard.GetDlgDataPtr(), nullptr);
}

TEST(CppWrapperVersionTest, IsThatOfTheHeader) { EXPECT_EQ(pexlo::Version() >> 16, PEXLO_INTERFACE_VERSION >> 16); }
