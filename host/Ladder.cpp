#include "host/Ladder.h"

#include "host/DeviceText.h"

#include <algorithm>

namespace
{
// Values of SInstructionEntry::kind.
constexpr int kOperand = -1;
constexpr int kAndContact = 1;
constexpr int kContact = 2;
constexpr int kCoil = 3;
constexpr int kFunction = 8;
constexpr int kDifferential = 17;

const char* Mnemonic(int function)
{
    struct SFunction
    {
        int number;
        const char* mnemonic;
    };
    constexpr SFunction kFunctions[] = {
        {0, "MV"},     {1, "DMV"},     {168, "SPD1"}, {169, "PLS"},   {170, "PWM"},  {171, "SPDH"},
        {172, "PLSH"}, {173, "PWMH"},  {174, "SP0H"}, {175, "SPSH"},  {176, "SPCH"}, {180, "SCR"},
        {282, "SCAL"}, {283, "DSCAL"}, {309, "FMV"},  {354, "FSCAL"}, {355, "PID"},
    };
    for (const SFunction& entry : kFunctions)
    {
        if (entry.number == function)
            return entry.mnemonic;
    }
    return "";
}

std::string Pad(std::string text, size_t width)
{
    text.resize(std::max(text.size(), width), ' ');
    return text;
}
} // namespace

CLadder CLadder::Of(const std::vector<SInstructionEntry>& sequence)
{
    CLadder ladder;
    for (const SInstructionEntry& record : sequence)
        ladder.Add(record);
    return ladder;
}

CLadder::SRung& CLadder::RungForContact()
{
    if (m_rungs.empty() || !m_rungs.back().outputs.empty())
        m_rungs.emplace_back();
    return m_rungs.back();
}

CLadder::SRung& CLadder::RungForOutput()
{
    if (m_rungs.empty())
        m_rungs.emplace_back();
    return m_rungs.back();
}

void CLadder::Add(const SInstructionEntry& record)
{
    const std::string device = DeviceText(record.code, record.value);
    switch (record.kind)
    {
    case kContact:
    case kAndContact:
        RungForContact().contacts.push_back((record.flag2 != 0 ? "|/" : "| ") + device + " |");
        break;
    case kDifferential:
        RungForContact().contacts.push_back("( DF )");
        break;
    case kCoil:
        RungForOutput().outputs.push_back({{device}, true});
        break;
    case kFunction:
        RungForOutput().outputs.push_back(
            {{std::string("F") + std::to_string(record.value), Mnemonic(record.value)}, false});
        break;
    case kOperand:
        if (!m_rungs.empty() && !m_rungs.back().outputs.empty() && !m_rungs.back().outputs.back().isCoil)
        {
            m_rungs.back().outputs.back().words.push_back(device);
            break;
        }
        [[fallthrough]];
    default:
        RungForContact().contacts.push_back(std::string("? ") + std::to_string(record.kind) + " " + device + " ?");
    }
}

std::vector<size_t> CLadder::ColumnWidths() const
{
    std::vector<size_t> widths;
    for (const SRung& rung : m_rungs)
    {
        for (const SOutput& output : rung.outputs)
        {
            widths.resize(std::max(widths.size(), output.words.size()));
            for (size_t i = 0; i < output.words.size() && !output.isCoil; ++i)
                widths[i] = std::max(widths[i], output.words[i].size());
        }
    }
    return widths;
}

std::string CLadder::Text() const
{
    const std::vector<size_t> widths = ColumnWidths();
    std::vector<std::string> lines;
    for (const SRung& rung : m_rungs)
    {
        std::string left = "|--";
        for (const std::string& contact : rung.contacts)
            left += contact + "--";
        std::string below(left.size(), ' ');
        below.front() = '|';

        bool first = true;
        for (const SOutput& output : rung.outputs)
        {
            std::string line = first ? left : below;
            line += rung.outputs.size() > 1 ? "+--" : "---";
            first = false;

            line += output.isCoil ? "( " : "[ ";
            for (size_t i = 0; i < output.words.size(); ++i)
                line += (i == 0 ? "" : "  ") + (output.isCoil ? output.words[i] : Pad(output.words[i], widths[i]));
            line += output.isCoil ? " )" : " ]";
            lines.push_back(line);
        }
        if (rung.outputs.empty())
            lines.push_back(left);
    }

    size_t width = 0;
    for (const std::string& line : lines)
        width = std::max(width, line.size());

    std::string text;
    for (std::string& line : lines)
    {
        line.resize(width + 2, '-');
        text += line + "|\n";
    }
    return text;
}
