// The duty of a PWM output: every text of up to six characters against readers of their own, and samples in the
// dialogs.
#include "dialogs/pulse/DutyFormat.h"

#include "tests/dialogs/pulse/PulseFormTest.h"
#include "tests/support/Sampled.h"

#include <optional>
#include <string_view>

namespace
{

constexpr std::string_view kAlphabet = "0159.,- ";
constexpr size_t kLongest = 6;

std::string_view WithoutBlanks(std::string_view text)
{
    while (!text.empty() && text.front() == ' ')
        text.remove_prefix(1);
    while (!text.empty() && text.back() == ' ')
        text.remove_suffix(1);
    return text;
}

bool AreDigits(std::string_view text) { return text.find_first_not_of("0123456789") == std::string_view::npos; }

int Number(std::string_view digits)
{
    int number = 0;
    for (const char digit : digits)
        number = number * 10 + (digit - '0');
    return number;
}

struct SParts
{
    std::string_view whole;
    std::optional<std::string_view> fraction; // behind the first point
};

SParts Split(std::string_view text)
{
    const size_t point = text.find('.');
    if (point == std::string_view::npos)
        return {text, std::nullopt};
    return {text.substr(0, point), text.substr(point + 1)};
}

/// At most two digits, a point, and one digit; of zeros that end the fraction all but the first count for nothing.
std::optional<int> Tenths(std::string_view text)
{
    const SParts parts = Split(WithoutBlanks(text));
    std::string_view fraction = parts.fraction.value_or("");
    while (fraction.size() >= 2 && fraction.substr(fraction.size() - 2) == "00")
        fraction.remove_suffix(1);
    if (parts.whole.size() > 2 || fraction.size() > 1 || parts.whole.size() + fraction.size() == 0)
        return std::nullopt;
    if (!AreDigits(parts.whole) || !AreDigits(fraction))
        return std::nullopt;
    return Number(parts.whole) * 10 + Number(fraction);
}

/// An integer, or one with a fraction of zeros.
std::optional<int> WholePercents(std::string_view text)
{
    const SParts parts = Split(WithoutBlanks(text));
    if (parts.whole.empty() || !AreDigits(parts.whole))
        return std::nullopt;
    if (parts.fraction && (parts.fraction->empty() || parts.fraction->find_first_not_of('0') != std::string_view::npos))
        return std::nullopt;
    return Number(parts.whole) * 10;
}

template <typename TVisit>
void ForEachText(std::string& text, const TVisit& visit)
{
    visit(text);
    if (text.size() == kLongest)
        return;
    for (const char character : kAlphabet)
    {
        text.push_back(character);
        ForEachText(text, visit);
        text.pop_back();
    }
}

using Reader = std::optional<int> (*)(std::string_view text);

/// Returns how many texts were numbers.
int CompareAllTexts(const SWzdFormat& format, Reader expected)
{
    constexpr LONGLONG kUntouched = -77;
    int texts = 0, numbers = 0, differences = 0;
    std::string text;
    ForEachText(text, [&](const std::string& entry) {
        ++texts;
        LONGLONG value = kUntouched;
        const bool read = format.Parse(entry.c_str(), value);
        const std::optional<int> number = expected(entry);
        numbers += number ? 1 : 0;
        if (read != number.has_value() || value != number.value_or(kUntouched))
            if (++differences <= 10)
            {
                ADD_FAILURE() << '"' << entry << "\" reads as " << value << ", not as " << number.value_or(kUntouched);
            }
    });
    EXPECT_EQ(texts, 299593);
    EXPECT_EQ(differences, 0);
    return numbers;
}

} // namespace

TEST(CDutyFormatTest, ReadsTenthsFromEveryText)
{
    const int numbers = CompareAllTexts(kDutyInTenths, Tenths);
    EXPECT_GT(numbers, 100);
    EXPECT_LT(numbers, 20000);
}

TEST(CDutyFormatTest, ReadsWholePercentsFromEveryText)
{
    const int numbers = CompareAllTexts(kWholeDuty, WholePercents);
    EXPECT_GT(numbers, 100);
    EXPECT_LT(numbers, 20000);
}

TEST(CDutyFormatTest, ReadsWhatItWrites)
{
    for (LONGLONG tenths = 0; tenths <= 999; ++tenths)
    {
        LONGLONG read = -1;
        EXPECT_TRUE(kDutyInTenths.Parse(kDutyInTenths.Format(tenths), read));
        EXPECT_EQ(read, tenths);
        read = -1;
        EXPECT_EQ(kWholeDuty.Parse(kWholeDuty.Format(tenths), read), tenths % 10 == 0);
        EXPECT_EQ(read, tenths % 10 == 0 ? tenths : -1);
        const std::string expected = std::to_string(tenths / 10) + "." + std::to_string(tenths % 10);
        EXPECT_EQ(std::string(kDutyInTenths.Format(tenths)), expected);
        EXPECT_EQ(std::string(kWholeDuty.Format(tenths)), expected);
    }
}

// ---- In the dialogs -------------------------------------------------------------------------------------------------

namespace
{

struct SDutyForm
{
    const char* form;
    int low, high; // tenths
    Reader read;
};

constexpr SDutyForm kDutyForms[] = {
    {"Pwm", 1, 999, Tenths}, {"Pwmh1000", 0, 999, Tenths}, {"Pwmh100", 0, 990, WholePercents}};

constexpr const char* kSamples[] = {"0",     "0.0",    "0.1", "99.9",  "100",  "99.95", "50.00", "50.000", "12.50",
                                    "50",    "7.",     ".5",  ".",     "",     "  ",    " 9 ",   "-1",     "5,0",
                                    "1.0.0", "1..0",   "1 0", "00.0",  "005",  "5.5",   "5.0",   "99",     "99.0",
                                    "0.01",  "99.900", "1.",  "0.1.0", "-0.5", "5.000"};

class CDutyTest : public CPulseFormTest, public testing::WithParamInterface<SDutyForm>
{
};

INSTANTIATE_TEST_SUITE_P(Forms, CDutyTest, testing::ValuesIn(kDutyForms),
                         [](const auto& row) { return std::string(row.param.form); });

} // namespace

TEST_P(CDutyTest, IsTakenOrRefusedAsItReads)
{
    const SPulseForm& form = PulseForm(GetParam().form);
    const UINT duty = form.numbers[0].id;
    int refused = 0, taken = 0;
    for (const char* text : Sampled(kSamples, 2))
    {
        SCOPED_TRACE(testing::Message() << '"' << text << '"');
        const std::optional<int> value = GetParam().read(text);
        const bool inside = value && *value >= GetParam().low && *value <= GetParam().high;
        if (inside)
        {
            ++taken;
            Confirm(form, [&](CDialogRobot& dialog) {
                FillIn(dialog, form);
                SetTextByProgram(dialog, duty, text);
            });
            EXPECT_EQ(ReadResults(m_wizard).data[1], (SDataRow{9, 101, 0, 0, *value}));
            continue;
        }
        ++refused;
        Leave(form, [&](CDialogRobot& dialog) {
            FillIn(dialog, form);
            SetTextByProgram(dialog, duty, text);
            ExpectRefusal(dialog, value ? 20009 : 20001, duty);
        });
    }
    EXPECT_GT(taken, 5);
    EXPECT_GT(refused, 5);
}

TEST_P(CDutyTest, IsRestoredWithOneDecimal)
{
    const SPulseForm& form = PulseForm(GetParam().form);
    const std::pair<int, const char*> rows[] = {{500, "50.0"},   {7, "0.7"},   {0, "0.0"},   {999, "99.9"},
                                                {1000, "100.0"}, {-5, "-0.5"}, {-15, "-1.5"}};
    for (const auto& [stored, text] : rows)
    {
        WriteResults(m_wizard, {.data = {{9, 1, 0, 0, ControlCode(form, {})}, {9, 2, 0, 0, stored}}});
        Leave(form,
              [&, shown = text](CDialogRobot& dialog) { EXPECT_EQ(dialog.Text(form.numbers[0].id), CString(shown)); });
    }
}
