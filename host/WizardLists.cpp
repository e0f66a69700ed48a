#include "host/WizardLists.h"

#include "host/Utf8.h"

namespace
{
constexpr int kLongestComment = 255; // as the library promises

// The host adds no comments of its own, and those of the library have a limit.
std::string Comment(const CFunWizard& wizard, int index)
{
    char text[kLongestComment + 1] = "";
    wizard.GetCmtInfo(index, text);
    return ToUtf8(text, wizard.GetTextCodePage());
}
} // namespace

SResultLists ReadLists(const CFunWizard& wizard)
{
    SResultLists lists;
    short kind, code;
    int number;
    for (int i = 0; wizard.GetContInfo(i, kind, code, number) != 0; ++i)
        lists.contacts.push_back({kind, code, number});
    for (int i = 0; wizard.GetOprdInfo(i, code, number) != 0; ++i)
        lists.operands.push_back({code, number});
    SFunSetData data;
    for (int i = 0; wizard.GetDataInfo(i, &data) != 0; ++i)
        lists.data.push_back({data.code, data.number, data.type, data.format, data.value});
    for (int i = 0; i < wizard.GetCmtInfoCount(); ++i)
        lists.comments.push_back(Comment(wizard, i));
    SFWzdInstCode record;
    for (int i = 0; wizard.GetInstCodeInfo(i, &record) != 0; ++i)
        lists.instructions.push_back({record.kind, record.code, record.value, record.flag1, record.flag2});
    return lists;
}
