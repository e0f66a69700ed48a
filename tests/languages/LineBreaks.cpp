#include "tests/languages/LineBreaks.h"

#include <gtest/gtest.h>

#include <string_view>

namespace
{

constexpr std::string_view kNeverFirst[] = {"、", "。", "，", "．", "；", "：", "？", "！", "）", "」", "』",
                                            "】", "〉", "》", "”",  "’",  "ー", ")",  ",",  ".",  ":",  ";",
                                            "?",  "!",  "ะ",  "ั",   "า",  "ำ",  "ิ",   "ี",   "ึ",   "ื",   "ุ",
                                            "ู",   "็",   "่",   "้",   "๊",   "๋",   "์",   "ๆ"};

constexpr std::string_view kNeverLast[] = {"（", "「", "『", "【", "〈", "《", "“", "‘", "(", "เ", "แ", "โ", "ใ", "ไ"};

bool IsLetter(char c) { return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z'); }

bool MayBreakBetween(std::string_view before, std::string_view after)
{
    if (before.empty() || after.empty())
        return true;
    for (const std::string_view c : kNeverFirst)
        if (after.starts_with(c))
            return false;
    for (const std::string_view c : kNeverLast)
        if (before.ends_with(c))
            return false;
    return !IsLetter(before.back()) || !IsLetter(after.front());
}

} // namespace

void ExpectAllowedBreaks(const std::string& lines)
{
    const std::string_view all = lines;
    for (size_t at = 0; (at = all.find("\r\n", at)) != std::string_view::npos; at += 2)
        EXPECT_TRUE(MayBreakBetween(all.substr(0, at), all.substr(at + 2))) << "at " << at << ":\n" << lines;
}
