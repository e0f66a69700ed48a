// Texts with gaps: what fills them, and what stays as it stands.
#include "core/FillText.h"

#include <gtest/gtest.h>

#include <cctype>
#include <charconv>
#include <climits>
#include <clocale>
#include <cstdlib>
#include <initializer_list>
#include <optional>
#include <random>
#include <string>
#include <variant>
#include <vector>

#include "core/ResourceScope.h"
#include "resources/resource.h"

namespace
{

std::string Fill(LPCSTR text, std::initializer_list<CGapValue> values)
{
    return static_cast<LPCSTR>(FillText(text, values));
}

std::string FillId(UINT id, std::initializer_list<CGapValue> values)
{
    return static_cast<LPCSTR>(FillText(id, values));
}

} // namespace

TEST(FillText, FillsTheTextsOfTheModule)
{
    const CResourceScope module(nullptr);
    EXPECT_EQ(FillId(IDS_OUTPUT_Y, {1}), "Y1");
    EXPECT_EQ(FillId(IDS_RANGE_DECIMAL, {-5, 100}), "(-5 - 100)");
    EXPECT_EQ(FillId(IDS_PLS_DUTY_RATIO, {90}), "Duty ration approx90%");
    EXPECT_EQ(FillId(IDS_CHANNEL, {3}), "ch3");
    EXPECT_EQ(FillId(IDS_STEPS, {60}), "60 steps");
    EXPECT_EQ(FillId(IDS_RANGE_TENTHS, {0.0, 99.9}), "0.0 - 99.9");
    EXPECT_EQ(FillId(IDS_DT_ADDRESS, {32764}), "DT 32764");
    EXPECT_EQ(FillId(IDS_STEP_FREQUENCY, {2}), "Frequency 2");
    EXPECT_EQ(FillId(IDS_STEP_TARGET_VALUE, {16}), "Target value 16");
    EXPECT_EQ(FillId(IDS_REGISTER_SPAN, {"DT 1", CString("DT 9")}), "DT 1 - DT 9");
    EXPECT_EQ(FillId(IDS_RANGE_TEXT, {"0", "FF"}), "(0 - FF)");
    EXPECT_EQ(FillId(IDS_CODE_DIVIDED, {128}), "128 devided");
    EXPECT_EQ(FillId(IDS_CODE_MILLISECONDS, {10}), "10ms");
    EXPECT_EQ(FillId(IDS_CODE_MULTIPLE, {1000}), "x 1000");
}

TEST(FillText, IsEmptyWhereThereIsNoText)
{
    const CResourceScope module(nullptr);
    EXPECT_EQ(FillId(64999, {1, 2}), "");
    EXPECT_EQ(Fill("", {1, 2}), "");
    EXPECT_EQ(Fill("", {}), "");
}

TEST(FillText, HonoursFlagsWidthAndPrecision)
{
    EXPECT_EQ(Fill("[%1d|%5d|%-5d|%05d|%+d|% d|%.3d|%8.3d]", {1, 2, 3, 4, 5, 6, 7, 8}),
              "[1|    2|3    |00004|+5| 6|007|     008]");
    EXPECT_EQ(Fill("%08X %x %o %u %i", {0xC0C8, 255, 8, 7, -7}), "0000C0C8 ff 10 7 -7");
    EXPECT_EQ(Fill("[%s|%5s|%-5s|%.2s|%5.1s]", {"abc", "abc", "abc", "abc", "abc"}), "[abc|  abc|abc  |ab|    a]");
    EXPECT_EQ(Fill("[%f|%.0f|%6.1f|%-6.1f|%+.2f|%06.1f]", {1.5, 2.75, 99.9, 99.9, 0.25, -0.5}),
              "[1.500000|3|  99.9|99.9  |+0.25|-000.5]");
}

TEST(FillText, PrintsNumbersOfEverySizeWhateverSizeTheTextNames)
{
    for (const char* size : {"", "h", "hh", "l", "ll", "I32", "I64"})
    {
        const std::string text = std::string("%") + size;
        EXPECT_EQ(Fill((text + "d").c_str(), {INT_MIN}), "-2147483648");
        EXPECT_EQ(Fill((text + "d").c_str(), {LLONG_MIN}), "-9223372036854775808");
        EXPECT_EQ(Fill((text + "u").c_str(), {-1}), "4294967295");
        EXPECT_EQ(Fill((text + "X").c_str(), {-1}), "FFFFFFFF");
        EXPECT_EQ(Fill((text + "X").c_str(), {-1LL}), "FFFFFFFFFFFFFFFF");
    }
}

TEST(FillText, PercentSignsAreWrittenTwice)
{
    EXPECT_EQ(Fill("%%", {}), "%");
    EXPECT_EQ(Fill("%%%d%%", {5}), "%5%");
    EXPECT_EQ(Fill("%%d %d", {5}), "%d 5");
    EXPECT_EQ(Fill("100 %", {5}), "100 %");
    EXPECT_EQ(Fill("%", {}), "%");
    EXPECT_EQ(Fill("%%%", {}), "%%");
}

TEST(FillText, DirectivesOfAnotherKindStandAsTheyAre)
{
    EXPECT_EQ(Fill("%s %n %d", {5}), "%s %n 5");
    EXPECT_EQ(Fill("%d %n %s %f", {"text"}), "%d %n text %f");
    EXPECT_EQ(Fill("%d %s %f", {0.5}), "%d %s 0.500000");
    EXPECT_EQ(Fill("%s%s%s%n%p%c%C%S%ls%hs%Z%e%g%a%E%G%A%1$d%*d%.*d%#x%'d%Id%", {1, 2}),
              "%s%s%s%n%p%c%C%S%ls%hs%Z%e%g%a%E%G%A%1$d%*d%.*d%#x%'d%Id%");
    EXPECT_EQ(Fill("%05s %+s %s", {"text"}), "%05s %+s text");
}

TEST(FillText, ValuesAndGapsNeedNotBeOfOneNumber)
{
    EXPECT_EQ(Fill("no gap", {1, "text", 0.5}), "no gap");
    EXPECT_EQ(Fill("%d", {1, 2, 3}), "1");
    EXPECT_EQ(Fill("%d %d %s %d", {1, 2}), "1 2 %s %d");
    EXPECT_EQ(Fill("%s - %s", {}), "%s - %s");
    EXPECT_EQ(Fill("%d %s", {"first", 2}), "%d first") << "the number finds no gap behind the text";
}

TEST(FillText, UnreasonableWidthsAreNoDirectives)
{
    for (const char* text : {"%999999999d", "%.999999999d", "%100d", "%.100d", "%-999999999999999999999d",
                             "%5.2147483647d", "%2147483648s", "%.999999999s", "%0000100d", "%999999999f", "%.100f"})
        EXPECT_EQ(Fill(text, {1, "a", 0.5}), text);
    EXPECT_EQ(Fill("%99d", {1}).size(), 99u);
    EXPECT_EQ(Fill("%.99d", {-1}).size(), 100u);
    EXPECT_EQ(Fill("%.99f", {1e300}).size(), 301u + 1 + 99);
}

TEST(FillText, TextsMayBeLongAndNull)
{
    const std::string longText(100000, 'x');
    EXPECT_EQ(Fill("(%s)", {longText.c_str()}), "(" + longText + ")");
    EXPECT_EQ(Fill((longText + "%d").c_str(), {7}), longText + "7");
    EXPECT_EQ(Fill("(%s)", {static_cast<LPCSTR>(nullptr)}), "()");
    EXPECT_EQ(Fill("(%s %s)", {"%d%n%s", "%%"}), "(%d%n%s %%)") << "values are no texts with gaps";
}

TEST(FillText, RealNumbersHaveAPointInEveryLocale)
{
    const std::string before = std::setlocale(LC_NUMERIC, nullptr);
    for (const char* locale : {"German", "de_DE", "de_DE.UTF-8", "French", "fr_FR.UTF-8"})
    {
        std::setlocale(LC_NUMERIC, locale); // where it exists
        EXPECT_EQ(Fill("%2.1f - %2.1f", {0.0, 99.9}), "0.0 - 99.9") << std::localeconv()->decimal_point;
    }
    std::setlocale(LC_NUMERIC, before.c_str());
}

// ---- Random texts against a model -----------------------------------------------------------------------------------

namespace
{

using Value = std::variant<int, long long, double, std::string>;

/// Digits of a magnitude, by the functions of the standard library that know no formats.
template <typename... TForm>
std::string Digits(TForm... form)
{
    char text[512];
    const auto result = std::to_chars(text, text + sizeof text, form...);
    return std::string(text, result.ptr);
}

/// What the model makes of one directive.
std::optional<std::string> Printed(const std::string& flags, int width, int precision, const std::string& size,
                                   char conversion, const Value& value)
{
    const auto padded = [&](std::string sign, std::string body, bool zeros) {
        const size_t length = sign.size() + body.size();
        const size_t fill = width > static_cast<int>(length) ? static_cast<size_t>(width) - length : 0;
        if (flags.find('-') != std::string::npos)
            return sign + body + std::string(fill, ' ');
        return zeros ? sign + std::string(fill, '0') + body : std::string(fill, ' ') + sign + body;
    };
    const auto signOf = [&](bool negative) -> std::string {
        if (negative)
            return "-";
        if (flags.find('+') != std::string::npos)
            return "+";
        return flags.find(' ') != std::string::npos ? " " : "";
    };
    const bool zeros = flags.find('0') != std::string::npos;

    if (const auto* text = std::get_if<std::string>(&value))
    {
        if (conversion != 's' || !size.empty() || flags.find_first_not_of('-') != std::string::npos)
            return std::nullopt;
        return padded("", precision < 0 ? *text : text->substr(0, static_cast<size_t>(precision)), false);
    }
    if (const auto* real = std::get_if<double>(&value))
    {
        if (conversion != 'f')
            return std::nullopt;
        const std::string body = Digits(std::abs(*real), std::chars_format::fixed, precision < 0 ? 6 : precision);
        return padded(signOf(std::signbit(*real)), body, zeros);
    }

    const bool isInt = std::holds_alternative<int>(value);
    const long long number = isInt ? std::get<int>(value) : std::get<long long>(value);
    const auto bits = isInt ? static_cast<unsigned>(number) : static_cast<unsigned long long>(number);
    std::string digits;
    switch (conversion)
    {
    case 'd':
    case 'i':
        digits = std::to_string(number);
        digits.erase(0, number < 0);
        break;
    case 'u':
        digits = Digits(bits, 10);
        break;
    case 'x':
    case 'X':
        digits = Digits(bits, 16);
        for (char& digit : digits)
            digit = conversion == 'X' ? static_cast<char>(std::toupper(digit)) : digit;
        break;
    case 'o':
        digits = Digits(bits, 8);
        break;
    default:
        return std::nullopt;
    }
    if (precision == 0 && number == 0)
        digits.clear();
    if (static_cast<int>(digits.size()) < precision)
        digits.insert(0, static_cast<size_t>(precision) - digits.size(), '0');
    const bool isSigned = conversion == 'd' || conversion == 'i';
    return padded(isSigned ? signOf(number < 0) : "", digits, zeros && precision < 0);
}

class CTextModel
{
public:
    explicit CTextModel(unsigned seed) : m_random(seed) {}

    /// Draws a text of directives and plain pieces, with the values, and tells what it looks like when filled.
    void Draw()
    {
        m_values.clear();
        for (unsigned count = Number(4); count > 0; --count)
            m_values.push_back(DrawValue());
        m_text.clear();
        m_filled.clear();
        size_t next = 0;
        for (unsigned pieces = Number(8); pieces > 0; --pieces)
            AddPiece(next);
    }

    const std::string& Text() const { return m_text; }
    const std::string& Filled() const { return m_filled; }

    std::string FilledByTheLibrary() const
    {
        std::vector<CGapValue> values(4, CGapValue(0));
        for (size_t i = 0; i < m_values.size(); ++i)
            values[i] = ValueOf(m_values[i]);
        switch (m_values.size())
        {
        case 0:
            return Fill(m_text.c_str(), {});
        case 1:
            return Fill(m_text.c_str(), {values[0]});
        case 2:
            return Fill(m_text.c_str(), {values[0], values[1]});
        case 3:
            return Fill(m_text.c_str(), {values[0], values[1], values[2]});
        default:
            return Fill(m_text.c_str(), {values[0], values[1], values[2], values[3]});
        }
    }

private:
    unsigned Number(unsigned highest) { return static_cast<unsigned>(m_random() % (highest + 1)); }

    Value DrawValue()
    {
        constexpr int kInts[] = {0, 1, -1, 7, 255, 32767, INT_MAX, INT_MIN};
        constexpr long long kLongs[] = {0, -1, 1LL << 40, LLONG_MAX, LLONG_MIN};
        constexpr double kReals[] = {0.0, 0.5, 99.9, -99.9, 1e20, 1e-7};
        const std::string kTexts[] = {"", "DT 5", "%d", "%", "a long text of some words", "\x83\x5c"};
        switch (Number(3))
        {
        case 0:
            return kInts[Number(std::size(kInts) - 1)];
        case 1:
            return kLongs[Number(std::size(kLongs) - 1)];
        case 2:
            return kReals[Number(std::size(kReals) - 1)];
        default:
            return kTexts[Number(std::size(kTexts) - 1)];
        }
    }

    static CGapValue ValueOf(const Value& value)
    {
        if (const auto* text = std::get_if<std::string>(&value))
            return text->c_str();
        if (const auto* real = std::get_if<double>(&value))
            return *real;
        if (const auto* number = std::get_if<int>(&value))
            return *number;
        return static_cast<LONGLONG>(std::get<long long>(value));
    }

    void AddPiece(size_t& next)
    {
        const std::string kPlain[] = {" ", "x", "(", "Duty ", "\t", "\x83\x5c"};
        switch (Number(9))
        {
        case 0:
            m_text += "%%";
            m_filled += "%";
            return;
        case 1:
        case 2: {
            const std::string& plain = kPlain[Number(std::size(kPlain) - 1)];
            m_text += plain;
            m_filled += plain;
            return;
        }
        default:
            AddDirective(next);
        }
    }

    void AddDirective(size_t& next)
    {
        const char* const kFlags[] = {"", "", "", "-", "0", "+", " ", "-0", "+0", "#", "'", "*"};
        const int kSizes[] = {-1, -1, -1, 0, 1, 2, 8, 99, 100, 999999999};
        const char* const kPrefixes[] = {"", "", "", "h", "l", "ll", "I64", "I32", "L", "z"};
        const std::string conversions = "dddddiuxXosssffncpeS";
        const std::string flags = kFlags[Number(std::size(kFlags) - 1)];
        const int width = kSizes[Number(std::size(kSizes) - 1)];
        const int precision = kSizes[Number(std::size(kSizes) - 1)];
        const std::string prefix = kPrefixes[Number(std::size(kPrefixes) - 1)];
        const char conversion = conversions[Number(static_cast<unsigned>(conversions.size()) - 1)];

        std::string directive = "%" + flags;
        if (width > 0)
            directive += std::to_string(width);
        if (precision >= 0)
            directive += "." + std::to_string(precision);
        directive += prefix + conversion;
        m_text += directive;

        const bool isKnown = flags.find_first_of("#'*") == std::string::npos && prefix != "L" && prefix != "z" &&
                             width < 100 && precision < 100;
        const auto printed = isKnown && next < m_values.size()
                                 ? Printed(flags, width, precision, prefix, conversion, m_values[next])
                                 : std::nullopt;
        m_filled += printed.value_or(directive);
        next += printed.has_value();
    }

    std::mt19937 m_random;
    std::vector<Value> m_values;
    std::string m_text;
    std::string m_filled;
};

} // namespace

TEST(FillText, FillsRandomTextsAsTheModelDoes)
{
    constexpr int kTexts = 20000;
    CTextModel model(1);
    for (int i = 0; i < kTexts; ++i)
    {
        model.Draw();
        ASSERT_EQ(model.FilledByTheLibrary(), model.Filled()) << "\"" << model.Text() << "\"";
    }
}

// Every text of a few characters that can stand in a directive: nothing outside is read, and plain pieces stay.
TEST(FillText, AnyCharactersAreSafe)
{
    constexpr char kCharacters[] = "%%%%-+ #0123459.*$'hlLIz64dsnfXcuo";
    std::mt19937 random(2);
    for (int i = 0; i < 20000; ++i)
    {
        std::string text;
        for (auto length = random() % 12; length > 0; --length)
            text += kCharacters[random() % (std::size(kCharacters) - 1)];
        const std::string filled = Fill(text.c_str(), {-1, "text", 0.5, 7LL});
        ASSERT_LE(filled.size(), 1000u) << text;
        if (text.find('%') == std::string::npos)
        {
            ASSERT_EQ(filled, text);
        }
    }
}
