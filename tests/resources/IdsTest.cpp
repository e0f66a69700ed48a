// resource.h names every id, and every number of a kind, exactly once.
#include <gtest/gtest.h>

#include <charconv>
#include <fstream>
#include <map>
#include <sstream>
#include <string>
#include <tuple>
#include <vector>

namespace
{

struct SDefine
{
    std::string name;
    unsigned value;
};

// The words of a line up to its comment; std::regex would be shorter, but the compiler warns of its insides.
std::vector<std::string> Words(const std::string& line)
{
    std::istringstream stream(line.substr(0, line.find("//")));
    std::vector<std::string> words;
    for (std::string word; stream >> word;)
        words.push_back(word);
    return words;
}

/// `number` in C's notation; false when it is anything else.
bool ReadNumber(const std::string& number, unsigned& value)
{
    const bool isHexadecimal = number.starts_with("0x") || number.starts_with("0X");
    const char* const end = number.data() + number.size();
    const auto result = std::from_chars(number.data() + (isHexadecimal ? 2 : 0), end, value, isHexadecimal ? 16 : 10);
    return result.ec == std::errc() && result.ptr == end;
}

std::vector<SDefine> ReadDefines()
{
    std::vector<SDefine> defines;
    std::ifstream file(PEXLO_SOURCE_DIR "/resources/resource.h");
    for (std::string line; std::getline(file, line);)
    {
        const std::vector<std::string> words = Words(line);
        unsigned value = 0;
        if (words.size() == 3 && words[0] == "#define" && ReadNumber(words[2], value))
            defines.push_back({words[1], value});
    }
    return defines;
}

std::string Kind(const SDefine& define) { return define.name.substr(0, define.name.find('_')); }

TEST(ResourceIds, AreAllReadByThisTest)
{
    std::map<std::string, int> counts;
    for (const SDefine& define : ReadDefines())
        ++counts[Kind(define)];

    std::map<std::string, int> lines;
    std::ifstream file(PEXLO_SOURCE_DIR "/resources/resource.h");
    for (std::string line; std::getline(file, line);)
    {
        const std::vector<std::string> words = Words(line);
        if (words.size() < 3 || words[0] != "#define")
            continue;
        const std::string kind = Kind({words[1], 0});
        if (kind.starts_with("ID") || kind == "HELP")
            ++lines[kind];
    }
    --lines["IDC"]; // IDC_STATIC, the one that is no number of its own

    EXPECT_EQ(counts, lines);
    EXPECT_GT(counts["IDD"], 30);
    EXPECT_GT(counts["IDC"], 40);
    EXPECT_GT(counts["IDS"], 300);
    EXPECT_EQ(counts["HELP"], 6);
}

/// Controls of one family's dialogs alone: their numbers mean something else in the templates of the others.
std::string FamilyOf(const SDefine& define)
{
    const std::string prefix = define.name.substr(0, std::string("IDC_B_").size());
    return prefix == "IDC_B_" || prefix == "IDC_C_" ? prefix : "";
}

TEST(ResourceIds, HaveOneNameEach)
{
    std::map<std::string, unsigned> values;
    std::map<std::tuple<std::string, std::string, unsigned>, std::string> names;
    for (const SDefine& define : ReadDefines())
    {
        EXPECT_TRUE(values.emplace(define.name, define.value).second) << define.name << " is defined twice";
        const auto [known, isNew] =
            names.emplace(std::tuple(Kind(define), FamilyOf(define), define.value), define.name);
        EXPECT_TRUE(isNew) << define.value << " is both " << known->second << " and " << define.name;
    }
}

TEST(ResourceIds, FitTheirSixteenBits)
{
    for (const SDefine& define : ReadDefines())
        EXPECT_LE(define.value, 0xFFFFu) << define.name;
}

} // namespace
