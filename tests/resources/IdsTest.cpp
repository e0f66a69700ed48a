// resource.h names every id, and every number of a kind, exactly once.
#include <gtest/gtest.h>

#include <fstream>
#include <map>
#include <regex>
#include <string>
#include <vector>

namespace
{

struct SDefine
{
    std::string name;
    unsigned value;
};

std::vector<SDefine> ReadDefines()
{
    std::vector<SDefine> defines;
    std::ifstream file(PEXLO_SOURCE_DIR "/resources/resource.h");
    const std::regex pattern(R"(#define (\w+) (0[xX][0-9A-Fa-f]+|\d+)\s*(//.*)?)");
    std::smatch match;
    for (std::string line; std::getline(file, line);)
        if (std::regex_match(line, match, pattern))
            defines.push_back({match[1], static_cast<unsigned>(std::stoul(match[2], nullptr, 0))});
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
    const std::regex pattern(R"(\s*#define (ID[A-Z]*|HELP)_\w+ .*)");
    std::smatch match;
    for (std::string line; std::getline(file, line);)
        if (std::regex_match(line, match, pattern))
            ++lines[match[1]];
    --lines["IDC"]; // IDC_STATIC, the one that is no number of its own

    EXPECT_EQ(counts, lines);
    EXPECT_GT(counts["IDD"], 30);
    EXPECT_GT(counts["IDC"], 40);
    EXPECT_GT(counts["IDS"], 300);
    EXPECT_EQ(counts["HELP"], 6);
}

TEST(ResourceIds, HaveOneNameEach)
{
    std::map<std::string, unsigned> values;
    std::map<std::pair<std::string, unsigned>, std::string> names;
    for (const SDefine& define : ReadDefines())
    {
        EXPECT_TRUE(values.emplace(define.name, define.value).second) << define.name << " is defined twice";
        const auto [known, isNew] = names.emplace(std::pair(Kind(define), define.value), define.name);
        EXPECT_TRUE(isNew) << define.value << " is both " << known->second << " and " << define.name;
    }
}

TEST(ResourceIds, FitTheirSixteenBits)
{
    for (const SDefine& define : ReadDefines())
        EXPECT_LE(define.value, 0xFFFFu) << define.name;
}

} // namespace
