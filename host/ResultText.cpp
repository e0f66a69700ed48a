#include "host/ResultText.h"

#include "host/DeviceText.h"

#include <cstdarg>
#include <cstdio>
#include <iterator>

namespace
{
[[gnu::format(printf, 1, 2)]] std::string Print(const char* format, ...)
{
    char text[128];
    va_list values;
    va_start(values, format);
    std::vsnprintf(text, sizeof text, format, values);
    va_end(values);
    return text;
}

template <typename T, size_t N>
T Choose(const T (&choices)[N], int index, T otherwise)
{
    return index >= 0 && index < static_cast<int>(N) ? choices[index] : otherwise;
}

template <typename TEntries, typename TPrint>
std::string Lines(const TEntries& entries, TPrint print)
{
    std::string text;
    int index = 0;
    for (const auto& entry : entries)
        text += Print("%4d  ", index++) + print(entry) + '\n';
    return text;
}
} // namespace

const char* WidthText(const SDataEntry& entry)
{
    constexpr const char* kWidths[] = {"1 word", "2 words", "real"};
    return Choose(kWidths, entry.type, "?");
}

std::string ConstantText(const SDataEntry& entry)
{
    constexpr int kCodes[] = {11, 12, 20}; // K, H, f
    return DeviceText(Choose(kCodes, entry.format, -1), entry.value);
}

std::string ContactsText(const std::vector<SContactEntry>& contacts)
{
    return Lines(contacts, [](const SContactEntry& entry) {
        return Print("kind %-2d  %s", entry.kind, DeviceText(entry.code, entry.number).c_str());
    });
}

std::string OperandsText(const std::vector<SOperandEntry>& operands)
{
    return Lines(operands, [](const SOperandEntry& entry) { return DeviceText(entry.code, entry.value); });
}

std::string DataTableText(const std::vector<SDataEntry>& data)
{
    return Lines(data, [](const SDataEntry& entry) {
        return Print("%-10s  %-7s  %s", DeviceText(entry.code, entry.number).c_str(), WidthText(entry),
                     ConstantText(entry).c_str());
    });
}

std::string CommentsText(const std::vector<std::string>& comments)
{
    return Lines(comments, [](const std::string& comment) { return comment; });
}

std::string InstructionsText(const std::vector<SInstructionEntry>& instructions)
{
    return Lines(instructions, [](const SInstructionEntry& entry) {
        return Print("%3d %6d %11d  %d %d", entry.kind, entry.code, entry.value, entry.flag1, entry.flag2);
    });
}

std::string ListText(const char* name, size_t count, const std::string& entries)
{
    return std::string(name) + ": " + std::to_string(count) + '\n' + entries;
}

std::string ResultText(const SResultLists& lists)
{
    return ListText("Contacts", lists.contacts.size(), ContactsText(lists.contacts)) +
           ListText("Operands", lists.operands.size(), OperandsText(lists.operands)) +
           ListText("Data table", lists.data.size(), DataTableText(lists.data)) +
           ListText("Comments", lists.comments.size(), CommentsText(lists.comments)) +
           ListText("Instructions", lists.instructions.size(), InstructionsText(lists.instructions));
}
