#include "tests/dialogs/process/ScalTest.h"

#include "tests/core/FunWizardTest.h"

#include <algorithm>
#include <bit>
#include <cstdlib>

// clang-format off
const std::vector<SScalKind> kScalKinds = {
    {.argument = 0, .instruction = 282, .caption = "F282 (SCAL)", .heading = "SCAL (282)\tScaling of 16-bit data",
     .width = 1, .type = 0, .format = 0, .limit = 6, .range = "(-32768 - 32767)",
     .inside = {"-32768", "-32767", "-1", "0", "1", "32766", "32767"},
     .outside = {"-32769", "32768", "65535", "99999", "4294967296", "18446744073709551616", "-18446744073709551616"},
     .unreadable = {"", "x", "1.5", "1e3", "+1", "1-", "--1", "0x1", "1 2", "."},
     .constants = {{"K", "(-32768 - 32767)", {"-32768", "32767", "0", "-1"},
                    {"-32769", "32768", "65535", "4294967296", "-99999999999999999999"}, {"", "x", "1.5", "FF"}},
                   {"H", "(0 - FFFF)", {"0", "FFFF", "ffff", "7FFF", "8000", " 0000FFFF "},
                    {"10000", "FFFFFFFF", "100000000", "FFFFFFFFFFFFFFFFF"}, {"", " ", "-1", "G", "0x1", "1.0"}}}},
    {.argument = 1, .instruction = 283, .caption = "F283 (DSCAL)", .heading = "DSCAL (283)\tScaling of 32-bit data",
     .width = 2, .type = 1, .format = 0, .limit = 11, .range = "(-2147483648 - 2147483647)",
     .inside = {"-2147483648", "-32769", "-1", "0", "1", "65536", "2147483647"},
     .outside = {"-2147483649", "2147483648", "4294967295", "4294967296", "18446744073709551616",
                 "-18446744073709551616", "9223372036854775808"},
     .unreadable = {"", "x", "1.5", "1e3", "+1", "1-", "--1", "0x1", "1 2", "."},
     .constants = {{"K", "(-2147483648 - 2147483647)", {"-2147483648", "2147483647", "0"},
                    {"-2147483649", "2147483648", "18446744073709551616"}, {"", "x", "1.5", "FF"}},
                   {"H", "(0 - FFFFFFFF)", {"0", "FFFFFFFF", "80000000", "7fffffff", "0000000001"},
                    {"100000000", "FFFFFFFFF", "10000000000000000", "100000000000000001"}, {"", "-1", "G", "0x1"}}}},
    {.argument = 2, .instruction = 354, .caption = "F354 (FSCAL)", .heading = "FSCAL (354)\tScaling of real number data",
     .width = 2, .type = 2, .format = 2, .limit = 0, .range = "+-1.175494e-38 - 3.402823e+38",
     .inside = {"-3.402822e38", "-1E6", "-1.5", "-1.175494e-38", "0", "1.175494e-38", "0.1", "1000000.", "9999999",
                "3.402822E+38"},
     .outside = {"3.402823e38", "-3.402823e38", "1.175493e-38", "-1.175493e-38", "1e39", "1e-39", "12345678e50"},
     .unreadable = {"", "x", "1,5", "+1", "1e", "1e+", "1-", ".", "1.5.2", "12345678", "0.12345678", "nan", "inf", "1e5.0"},
     .constants = {{"f", "+-1.175494e-38 - 3.402823e+38",
                    {"0", "-0", "1.5", "-1.5e-20", "3.402822e38", "-3.402822e38", "1.175494e-38", "-1.175494e-38"},
                    {"3.402823e38", "-3.402823e38", "1.175493e-38", "1e39", "1e-99"},
                    {"", "x", "1,5", "+1", "12345678", "1e"}}}},
};
// clang-format on

void PrintTo(const SScalKind& kind, std::ostream* out) { *out << kind.caption; }

std::string ScalKindName(const testing::TestParamInfo<SScalKind>& info)
{
    return "F" + std::to_string(info.param.instruction);
}

std::vector<SPointEntry> Points(int count)
{
    std::vector<SPointEntry> points;
    for (int i = 0; i < count; ++i)
        points.push_back({std::to_string(i - count / 2), std::to_string(i % 2 == 0 ? i % 30000 : -(i % 3000))});
    return points;
}

std::string AsText(const std::vector<SPointEntry>& points)
{
    std::string text;
    for (const SPointEntry& point : points)
        text += point.x + "\t" + point.y + "\r\n";
    return text;
}

int ScalValue(const SScalKind& kind, const std::string& text)
{
    return kind.IsReal() ? std::bit_cast<int>(std::strtof(text.c_str(), nullptr)) : std::stoi(text);
}

namespace
{

SOperandRow Operand(const std::string& device, const std::string& text)
{
    if (device == "K")
        return {kK, std::stoi(text)};
    if (device == "H")
        return {kH, static_cast<int>(std::stoul(text, nullptr, 16))};
    if (device == "f")
    {
        const float value = std::strtof(text.c_str(), nullptr);
        return {kF, value == 0 ? 0 : std::bit_cast<int>(value)};
    }
    const auto* row = std::find_if(std::begin(kWordDevices), std::end(kWordDevices),
                                   [&device](const SWordDevice& word) { return device == word.name; });
    EXPECT_NE(row, std::end(kWordDevices)) << device;
    return {row->code, std::stoi(text)};
}

} // namespace

SResults ScalResults(const SScalKind& kind, const SScalEntries& entries)
{
    const SOperandRow table = Operand(entries.startDevice, entries.start);
    const int n = entries.Count();
    SResults results;
    if (!entries.onlyDataTable)
        results.contacts.push_back({2, entries.device, entries.contactNumber});
    if (!entries.onlyDataTable && entries.differential)
        results.contacts.push_back({17, -1, 0});
    const SOperandRow none = {-1, -1};
    results.operands = {entries.onlyDataTable ? none : Operand(entries.inputDevice, entries.input), table,
                        entries.onlyDataTable ? none : Operand(entries.outputDevice, entries.output)};
    results.data = {{table.code, table.value, 0, 0, n}};
    for (int i = 0; i < n; ++i)
        results.data.push_back({table.code, table.value + 1 + i * kind.width, kind.type, kind.format,
                                ScalValue(kind, entries.points[static_cast<size_t>(i)].x)});
    for (int i = 0; i < n; ++i)
        results.data.push_back({table.code, table.value + 1 + (n + i) * kind.width, kind.type, kind.format,
                                ScalValue(kind, entries.points[static_cast<size_t>(i)].y)});
    results.comments = {"Input value X", "Output result Y", "Starting address", "Number of data(n)"};
    return results;
}

int LowestOf(const SWordDevice& device)
{
    const auto* row = std::find_if(std::begin(kWordDevices), std::end(kWordDevices),
                                   [&device](const SWordDevice& word) { return device.code == word.code; });
    return static_cast<int>(row - std::begin(kWordDevices));
}

CScalTest::CScalTest()
{
    SetUpController(m_wizard);
    SFunWizardTest::SetLastWizard(m_wizard, 0, GetParam().instruction, 0);
    PexloDll_SetAppName(kTestAppName);
}

CScalTest::~CScalTest() { PexloDll_SetAppName(nullptr); }

int CScalTest::Open(std::vector<Scene> scenes)
{
    return Play([this] { return m_wizard.DoOpenSCALDlg(m_permitted, GetParam().argument, nullptr); },
                std::move(scenes));
}

void CScalTest::Confirm(const Scene& scene)
{
    EXPECT_EQ(Open({[&](CDialogRobot& dialog) {
                  scene(dialog);
                  if (dialog.IsOpen())
                  {
                      EXPECT_EQ(dialog.ClickAndAnswer(IDOK), CString()) << "OK was refused";
                  }
                  if (dialog.IsOpen())
                      dialog.Click(IDCANCEL);
              }}),
              IDOK);
}

void CScalTest::Leave(const Scene& scene)
{
    EXPECT_EQ(Open({[&](CDialogRobot& dialog) {
                  scene(dialog);
                  if (dialog.IsOpen())
                      dialog.Click(IDCANCEL);
              }}),
              IDCANCEL);
}

SResults CScalTest::Confirmed(const SScalEntries& entries)
{
    Confirm([&](CDialogRobot& dialog) { FillIn(dialog, entries); });
    return ReadResults(m_wizard);
}

void CScalTest::AddAllWords()
{
    for (const SWordDevice& device : kWordDevices)
        SetDeviceRange(m_wizard, device.code, LowestOf(device), 30000);
}

void FillIn(CDialogRobot& dialog, const SScalEntries& entries)
{
    dialog.Check(2061, entries.onlyDataTable);
    if (!entries.onlyDataTable)
    {
        dialog.SelectText(2051, DeviceName(entries.device).c_str());
        dialog.Type(2052, entries.contact.c_str());
        dialog.Check(3361, entries.differential);
        dialog.SelectText(3362, entries.inputDevice.c_str());
        dialog.Type(3363, entries.input.c_str());
        dialog.SelectText(3365, entries.outputDevice.c_str());
        dialog.Type(3366, entries.output.c_str());
    }
    dialog.SelectText(3368, entries.startDevice.c_str());
    dialog.Type(3369, entries.start.c_str());
    PasteCells(dialog, AsText(entries.points));
    dialog.Type(3371, entries.count.empty() ? std::to_string(entries.points.size()).c_str() : entries.count.c_str());
}
