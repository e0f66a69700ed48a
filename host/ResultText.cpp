#include "host/ResultText.h"

#include "host/DeviceText.h"
#include "host/Utf8.h"

#include <cstdarg>

namespace
{
constexpr int kLongestComment = 255; // as the library promises

[[gnu::format(printf, 1, 2)]] std::string Print(const char* format, ...)
{
    va_list values;
    va_start(values, format);
    CString text;
    text.FormatV(format, values);
    va_end(values);
    return static_cast<const char*>(text);
}

std::string List(const char* name, int count, const std::string& entries)
{
    return Print("%s: %d\n", name, count) + entries;
}

const char* WidthText(int type)
{
    constexpr const char* kWidths[] = {"1 word", "2 words", "real"};
    return type < 3 ? kWidths[type] : "?";
}

int ConstantCode(int format)
{
    constexpr int kCodes[] = {11, 12, 20}; // K, H, f
    return format < 3 ? kCodes[format] : -1;
}

// The host adds no comments of its own, and those of the library have a limit.
std::string Comment(const CFunWizard& wizard, int index)
{
    char text[kLongestComment + 1] = "";
    wizard.GetCmtInfo(index, text);
    return ToUtf8(text, wizard.GetTextCodePage());
}
} // namespace

std::string ContactsText(const CFunWizard& wizard)
{
    std::string text;
    short kind, code;
    int number;
    for (int i = 0; wizard.GetContInfo(i, kind, code, number) != 0; ++i)
        text += Print("%4d  kind %-2d  %s\n", i, kind, DeviceText(code, number).c_str());
    return text;
}

std::string OperandsText(const CFunWizard& wizard)
{
    std::string text;
    short code;
    int value;
    for (int i = 0; wizard.GetOprdInfo(i, code, value) != 0; ++i)
        text += Print("%4d  %s\n", i, DeviceText(code, value).c_str());
    return text;
}

std::string DataTableText(const CFunWizard& wizard)
{
    std::string text;
    SFunSetData data;
    for (int i = 0; wizard.GetDataInfo(i, &data) != 0; ++i)
    {
        text += Print("%4d  %-10s  %-7s  %s\n", i, DeviceText(data.code, data.number).c_str(), WidthText(data.type),
                      DeviceText(ConstantCode(data.format), data.value).c_str());
    }
    return text;
}

std::string CommentsText(const CFunWizard& wizard)
{
    std::string text;
    for (int i = 0; i < wizard.GetCmtInfoCount(); ++i)
        text += Print("%4d  %s\n", i, Comment(wizard, i).c_str());
    return text;
}

std::string InstructionsText(const CFunWizard& wizard)
{
    std::string text;
    SFWzdInstCode record;
    for (int i = 0; wizard.GetInstCodeInfo(i, &record) != 0; ++i)
    {
        text +=
            Print("%4d  %3d %6d %11d  %d %d\n", i, record.kind, record.code, record.value, record.flag1, record.flag2);
    }
    return text;
}

std::string ResultText(const CFunWizard& wizard)
{
    return List("Contacts", wizard.GetContInfoCount(), ContactsText(wizard)) +
           List("Operands", wizard.GetOprdInfoCount(), OperandsText(wizard)) +
           List("Data table", wizard.GetDataInfoCount(), DataTableText(wizard)) +
           List("Comments", wizard.GetCmtInfoCount(), CommentsText(wizard)) +
           List("Instructions", wizard.GetInstCodeCount(), InstructionsText(wizard));
}
