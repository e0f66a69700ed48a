#include "tests/support/Results.h"

#include <cstring>
#include <initializer_list>

namespace
{
std::ostream& Braces(std::ostream& out, std::initializer_list<int> numbers)
{
    const char* before = "{";
    for (int number : numbers)
    {
        out << before << number;
        before = ", ";
    }
    return out << '}';
}

template <typename T>
void PrintList(std::ostream& out, const char* name, const std::vector<T>& rows)
{
    out << name << ": " << rows.size() << '\n';
    for (const T& row : rows)
        out << "    " << row << '\n';
}

std::vector<std::string> ReadComments(const CFunWizard& wizard)
{
    std::vector<std::string> comments;
    std::vector<char> text(4096);
    for (int i = 0; wizard.GetCmtInfo(i, text.data()) != 0; ++i)
        comments.emplace_back(text.data());
    return comments;
}
} // namespace

SResults ReadResults(const CFunWizard& wizard)
{
    SResults results;
    short kind, code;
    int number;
    for (int i = 0; wizard.GetContInfo(i, kind, code, number) != 0; ++i)
        results.contacts.push_back({kind, code, number});
    for (int i = 0; wizard.GetOprdInfo(i, code, number) != 0; ++i)
        results.operands.push_back({code, number});

    SFunSetData data;
    for (int i = 0; wizard.GetDataInfo(i, &data) != 0; ++i)
        results.data.push_back({data.code, data.number, data.type, data.format, data.value});

    results.comments = ReadComments(wizard);

    SFWzdInstCode record;
    for (int i = 0; wizard.GetInstCodeInfo(i, &record) != 0; ++i)
        results.instructions.push_back({record.kind, record.code, record.value, record.flag1, record.flag2});
    return results;
}

void WriteResults(CFunWizard& wizard, const SResults& results)
{
    wizard.RemoveAllContInfo();
    for (const SContactRow& row : results.contacts)
        wizard.AddContInfo(static_cast<short>(row.kind), static_cast<short>(row.code), row.number);
    wizard.RemoveAllOprdInfo();
    for (const SOperandRow& row : results.operands)
        wizard.AddOprdInfo(static_cast<short>(row.code), row.value);
    wizard.RemoveAllDataInfo();
    for (const SDataRow& row : results.data)
    {
        wizard.AddDataInfo(static_cast<short>(row.code), row.number, static_cast<unsigned char>(row.type),
                           static_cast<unsigned char>(row.format), row.value);
    }
    wizard.RemoveAllCmtInfo();
    for (const std::string& comment : results.comments)
        wizard.AddCmtInfo(comment.c_str());
    wizard.RemoveAllInstCodeInfo();
    for (const SInstructionRow& row : results.instructions)
    {
        wizard.AddInstCodeInfo(static_cast<short>(row.kind), static_cast<short>(row.code), row.value,
                               static_cast<unsigned char>(row.flag1), static_cast<unsigned char>(row.flag2));
    }
}

std::ostream& operator<<(std::ostream& out, const SContactRow& row)
{
    return Braces(out, {row.kind, row.code, row.number});
}

std::ostream& operator<<(std::ostream& out, const SOperandRow& row) { return Braces(out, {row.code, row.value}); }

std::ostream& operator<<(std::ostream& out, const SDataRow& row)
{
    return Braces(out, {row.code, row.number, row.type, row.format, row.value});
}

std::ostream& operator<<(std::ostream& out, const SInstructionRow& row)
{
    return Braces(out, {row.kind, row.code, row.value, row.flag1, row.flag2});
}

std::ostream& operator<<(std::ostream& out, const SResults& results)
{
    out << '\n';
    PrintList(out, "contacts", results.contacts);
    PrintList(out, "operands", results.operands);
    PrintList(out, "data", results.data);
    PrintList(out, "comments", results.comments);
    PrintList(out, "instructions", results.instructions);
    return out;
}
