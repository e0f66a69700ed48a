#include "cli/InstructionNames.h"

#include <algorithm>
#include <cctype>

namespace
{
bool IsSameLetter(unsigned char a, unsigned char b) { return std::tolower(a) == std::tolower(b); }

bool IsSameWord(const std::string& a, const std::string& b)
{
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), IsSameLetter);
}

std::string Numbers(int instruction, int variant)
{
    return std::to_string(instruction) + (variant != 0 ? ":" + std::to_string(variant) : "");
}

// Beside the first names of their dialogs.
constexpr SFormName kOtherNames[] = {
    {"F180", 180, 0},
    {"pid", 355, 0},
};
} // namespace

const std::vector<SFormName>& FormNames()
{
    static const std::vector<SFormName> names = {
        {"F168", 168, 0},
        {"F168:home", 168, 1},
        {"F169", 169, 0},
        {"F170", 170, 0},
        {"F171", 171, 0},
        {"F171:home", 171, 1},
        {"F172", 172, 0},
        {"F173", 173, 0},
        {"F174", 174, 0},
        {"F175", 175, 0},
        {"F176", 176, 0},
        {"F177", 177, 0},
        {"unit:e-point", 151, 10010},
        {"unit:p-point", 151, 10020},
        {"unit:p-point-passing", 151, 10030},
        {"unit:jog", 151, 10040},
        {"unit:jog-speed-change", 151, 10050},
        {"unit:jog-positioning", 151, 10060},
        {"unit:home", 151, 10070},
        {"unit:pulsar", 151, 10080},
        {"F355", 355, 0},
        {"screen", 180, 0},
        {"F282", 282, 0},
        {"F283", 283, 0},
        {"F354", 354, 0},
        {"control-code", 0, 0},
    };
    return names;
}

std::optional<SFormName> FindForm(const std::string& text)
{
    const auto isMeant = [&](const SFormName& form) {
        return IsSameWord(text, form.name) || text == Numbers(form.instruction, form.variant);
    };
    const auto form = std::find_if(FormNames().begin(), FormNames().end(), isMeant);
    if (form != FormNames().end())
        return *form;
    const auto other = std::find_if(std::begin(kOtherNames), std::end(kOtherNames), isMeant);
    return other != std::end(kOtherNames) ? std::optional(*other) : std::nullopt;
}

std::string FormName(int instruction, int variant)
{
    const auto form = std::find_if(FormNames().begin(), FormNames().end(), [&](const SFormName& name) {
        return name.instruction == instruction && name.variant == variant;
    });
    return form != FormNames().end() ? form->name : Numbers(instruction, variant);
}
