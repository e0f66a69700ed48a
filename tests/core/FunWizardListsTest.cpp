// The five result lists: what goes in comes out, and a bad read changes nothing.
#include "tests/core/FunWizardTest.h"

#include <climits>
#include <cstring>

namespace
{

constexpr short kShorts[] = {0, 1, -1, 9, 20001, SHRT_MAX, SHRT_MIN};
constexpr int kInts[] = {0, 1, -1, 14416, 0x12345678, INT_MAX, INT_MIN};
constexpr unsigned char kBytes[] = {0, 1, 2, 127, 128, 255};
constexpr int kManyRecords = 100000;

class ListsTest : public ::testing::Test
{
protected:
    /// Indexes that no list of `count` records has.
    static std::vector<int> BadIndexes(int count) { return {-1, count, count + 1, INT_MAX, INT_MIN}; }

    CFunWizard m_wizard;
};

} // namespace

TEST_F(ListsTest, ContactsReadBack)
{
    int count = 0;
    for (const short kind : kShorts)
        for (const short code : kShorts)
            for (const int number : kInts)
            {
                ASSERT_EQ(m_wizard.AddContInfo(kind, code, number), 1);
                short readKind = 7;
                short readCode = 7;
                int readNumber = 7;
                ASSERT_EQ(m_wizard.GetContInfo(count, readKind, readCode, readNumber), 1);
                ASSERT_EQ(m_wizard.GetContInfoCount(), ++count);
                EXPECT_EQ(readKind, kind);
                EXPECT_EQ(readCode, code);
                EXPECT_EQ(readNumber, number);
            }
    m_wizard.RemoveAllContInfo();
    EXPECT_EQ(m_wizard.GetContInfoCount(), 0);
}

TEST_F(ListsTest, OperandsReadBack)
{
    int count = 0;
    for (const short code : kShorts)
        for (const int value : kInts)
        {
            ASSERT_EQ(m_wizard.AddOprdInfo(code, value), 1);
            short readCode = 7;
            int readValue = 7;
            ASSERT_EQ(m_wizard.GetOprdInfo(count, readCode, readValue), 1);
            ASSERT_EQ(m_wizard.GetOprdInfoCount(), ++count);
            EXPECT_EQ(readCode, code);
            EXPECT_EQ(readValue, value);
        }
    m_wizard.RemoveAllOprdInfo();
    EXPECT_EQ(m_wizard.GetOprdInfoCount(), 0);
}

TEST_F(ListsTest, DataReadsBack)
{
    int count = 0;
    for (const short code : kShorts)
        for (const int number : kInts)
            for (const unsigned char parameter : kBytes)
                for (const int value : kInts)
                {
                    const auto format = static_cast<unsigned char>(parameter + 1);
                    ASSERT_EQ(m_wizard.AddDataInfo(code, number, parameter, format, value), 1);
                    SFunSetData data;
                    ASSERT_EQ(m_wizard.GetDataInfo(count, &data), 1);
                    ASSERT_EQ(m_wizard.GetDataInfoCount(), ++count);
                    const SFunSetData expected = {code, number, parameter, format, value};
                    EXPECT_EQ(std::memcmp(&data, &expected, sizeof data), 0);
                }
    m_wizard.RemoveAllDataInfo();
    EXPECT_EQ(m_wizard.GetDataInfoCount(), 0);
}

TEST_F(ListsTest, InstructionsReadBackWholeAndInFields)
{
    int count = 0;
    for (const short kind : kShorts)
        for (const short code : kShorts)
            for (const int value : kInts)
                for (const unsigned char flag : kBytes)
                {
                    const auto flag2 = static_cast<unsigned char>(255 - flag);
                    ASSERT_EQ(m_wizard.AddInstCodeInfo(kind, code, value, flag, flag2), 1);
                    SFWzdInstCode record;
                    ASSERT_EQ(m_wizard.GetInstCodeInfo(count, &record), 1);
                    const SFWzdInstCode expected = {kind, code, value, flag, flag2};
                    EXPECT_EQ(std::memcmp(&record, &expected, sizeof record), 0);
                    short readKind = 7;
                    short readCode = 7;
                    int readValue = 7;
                    unsigned char read1 = 7;
                    unsigned char read2 = 7;
                    ASSERT_EQ(m_wizard.GetInstCode(count, readKind, readCode, readValue, read1, read2), 1);
                    ASSERT_EQ(m_wizard.GetInstCodeCount(), ++count);
                    EXPECT_EQ(readKind, kind);
                    EXPECT_EQ(readCode, code);
                    EXPECT_EQ(readValue, value);
                    EXPECT_EQ(read1, flag);
                    EXPECT_EQ(read2, flag2);
                }
    m_wizard.RemoveAllInstCodeInfo();
    EXPECT_EQ(m_wizard.GetInstCodeCount(), 0);
}

TEST_F(ListsTest, BadReadsLeaveOutputsAlone)
{
    for (const bool filled : {false, true})
    {
        if (filled)
        {
            m_wizard.AddContInfo(2, 3, 5);
            m_wizard.AddOprdInfo(9, 100);
            m_wizard.AddDataInfo(9, 100, 1, 1, 5);
            m_wizard.AddInstCodeInfo(8, -1, 168, 1, 1);
            m_wizard.AddCmtInfo("text");
        }
        for (const int index : BadIndexes(filled ? 1 : 0))
        {
            short a = 11;
            short b = 12;
            int c = 13;
            unsigned char d = 14;
            unsigned char e = 15;
            EXPECT_EQ(m_wizard.GetContInfo(index, a, b, c), 0);
            EXPECT_EQ(m_wizard.GetOprdInfo(index, a, c), 0);
            EXPECT_EQ(m_wizard.GetInstCode(index, a, b, c, d, e), 0);
            EXPECT_TRUE(a == 11 && b == 12 && c == 13 && d == 14 && e == 15) << index;

            SFunSetData data = {1, 2, 3, 4, 5};
            SFWzdInstCode record = {1, 2, 3, 4, 5};
            char text[8] = "sevenxx";
            EXPECT_EQ(m_wizard.GetDataInfo(index, &data), 0);
            EXPECT_EQ(m_wizard.GetInstCodeInfo(index, &record), 0);
            EXPECT_EQ(m_wizard.GetCmtInfo(index, text), 0);
            EXPECT_TRUE(data.code == 1 && data.number == 2 && data.type == 3 && data.format == 4 && data.value == 5);
            EXPECT_EQ(RecordText(record), "1 2 3 /4 5");
            EXPECT_STREQ(text, "sevenxx");
        }
    }
}

TEST_F(ListsTest, NullDestinationsFail)
{
    m_wizard.AddDataInfo(9, 100, 1, 1, 5);
    m_wizard.AddInstCodeInfo(8, -1, 168, 1, 1);
    m_wizard.AddCmtInfo("text");
    for (const int index : {0, 1, -1})
    {
        EXPECT_EQ(m_wizard.GetDataInfo(index, nullptr), 0);
        EXPECT_EQ(m_wizard.GetInstCodeInfo(index, nullptr), 0);
        EXPECT_EQ(m_wizard.GetCmtInfo(index, nullptr), 0);
    }
}

TEST_F(ListsTest, CommentsAreCopiedWithTheirTerminatorAndNotAByteMore)
{
    const std::string texts[] = {
        "", "a", "Control code", "Target value X-axis (CH0)", "\x83\x5c\x81\x40\xff", "line\r\nbreak\ttab"};
    int count = 0;
    for (const std::string& text : texts)
    {
        std::string source = text;
        ASSERT_EQ(m_wizard.AddCmtInfo(source.c_str()), 1);
        source.assign(source.size(), '#'); // the list holds a copy
        std::vector<char> buffer(64, 'x');
        ASSERT_EQ(m_wizard.GetCmtInfo(count, buffer.data()), 1);
        ASSERT_EQ(m_wizard.GetCmtInfoCount(), ++count);
        EXPECT_STREQ(buffer.data(), text.c_str());
        for (size_t i = text.size() + 1; i < buffer.size(); ++i)
            ASSERT_EQ(buffer[i], 'x') << i;
    }
    m_wizard.RemoveAllCmtInfo();
    EXPECT_EQ(m_wizard.GetCmtInfoCount(), 0);
}

TEST_F(ListsTest, CommentsHaveAnyLength)
{
    for (const size_t length : {127u, 128u, 255u, 256u, 1000u, 65535u, 65536u, 1000000u})
    {
        const std::string text(length, 'c');
        ASSERT_EQ(m_wizard.AddCmtInfo(text.c_str()), 1);
        std::vector<char> buffer(length + 2, 'x');
        ASSERT_EQ(m_wizard.GetCmtInfo(m_wizard.GetCmtInfoCount() - 1, buffer.data()), 1);
        EXPECT_EQ(std::strlen(buffer.data()), length);
        EXPECT_EQ(buffer.back(), 'x');
    }
}

TEST_F(ListsTest, RemovingEmptiesOneListOnly)
{
    m_wizard.AddContInfo(2, 3, 5);
    m_wizard.AddOprdInfo(9, 100);
    m_wizard.AddDataInfo(9, 100, 1, 1, 5);
    m_wizard.AddInstCodeInfo(8, -1, 168, 1, 1);
    m_wizard.AddCmtInfo("text");
    const auto counts = [this] {
        return std::vector<int>{m_wizard.GetContInfoCount(), m_wizard.GetOprdInfoCount(), m_wizard.GetDataInfoCount(),
                                m_wizard.GetInstCodeCount(), m_wizard.GetCmtInfoCount()};
    };
    EXPECT_EQ(counts(), std::vector<int>({1, 1, 1, 1, 1}));
    m_wizard.RemoveAllDataInfo();
    EXPECT_EQ(counts(), std::vector<int>({1, 1, 0, 1, 1}));
    m_wizard.RemoveAllCmtInfo();
    EXPECT_EQ(counts(), std::vector<int>({1, 1, 0, 1, 0}));
    m_wizard.RemoveAllContInfo();
    EXPECT_EQ(counts(), std::vector<int>({0, 1, 0, 1, 0}));
    m_wizard.RemoveAllInstCodeInfo();
    EXPECT_EQ(counts(), std::vector<int>({0, 1, 0, 0, 0}));
    m_wizard.RemoveAllOprdInfo();
    EXPECT_EQ(counts(), std::vector<int>({0, 0, 0, 0, 0}));
    m_wizard.RemoveAllOprdInfo();
    EXPECT_EQ(counts(), std::vector<int>({0, 0, 0, 0, 0}));
}

TEST_F(ListsTest, ListsCanBeRefilled)
{
    for (int round = 0; round < 5; ++round)
    {
        for (int i = 0; i < 50; ++i)
            m_wizard.AddOprdInfo(9, 1000 * round + i);
        ASSERT_EQ(m_wizard.GetOprdInfoCount(), 50);
        short code = 0;
        int value = 0;
        ASSERT_EQ(m_wizard.GetOprdInfo(49, code, value), 1);
        EXPECT_EQ(value, 1000 * round + 49);
        m_wizard.RemoveAllOprdInfo();
    }
}

TEST_F(ListsTest, HoldsManyRecords)
{
    for (int i = 0; i < kManyRecords; ++i)
    {
        ASSERT_EQ(m_wizard.AddContInfo(2, static_cast<short>(i), i), 1);
        ASSERT_EQ(m_wizard.AddOprdInfo(static_cast<short>(i), i), 1);
        ASSERT_EQ(m_wizard.AddDataInfo(9, i, 0, 0, -i), 1);
        ASSERT_EQ(m_wizard.AddInstCodeInfo(8, -1, i, 0, 1), 1);
        ASSERT_EQ(m_wizard.AddCmtInfo(std::to_string(i).c_str()), 1);
    }
    ASSERT_EQ(m_wizard.GetContInfoCount(), kManyRecords);
    for (int i = 0; i < kManyRecords; ++i)
    {
        short kind = 0;
        short code = 0;
        int number = 0;
        ASSERT_EQ(m_wizard.GetContInfo(i, kind, code, number), 1);
        ASSERT_TRUE(kind == 2 && code == static_cast<short>(i) && number == i);
        ASSERT_EQ(m_wizard.GetOprdInfo(i, code, number), 1);
        ASSERT_TRUE(code == static_cast<short>(i) && number == i);
        SFunSetData data;
        ASSERT_EQ(m_wizard.GetDataInfo(i, &data), 1);
        ASSERT_TRUE(data.number == i && data.value == -i);
        SFWzdInstCode record;
        ASSERT_EQ(m_wizard.GetInstCodeInfo(i, &record), 1);
        ASSERT_EQ(RecordText(record), "8 -1 " + std::to_string(i) + " /0 1");
        char text[8];
        ASSERT_EQ(m_wizard.GetCmtInfo(i, text), 1);
        ASSERT_EQ(text, std::to_string(i));
    }
    m_wizard.RemoveAllContInfo();
    m_wizard.AddContInfo(2, 3, 5);
    EXPECT_EQ(m_wizard.CreateInstCode(), 1);
    EXPECT_EQ(m_wizard.GetInstCodeCount(), (kManyRecords + 32) / 33 + 3 * kManyRecords + 1 + kManyRecords);
}
