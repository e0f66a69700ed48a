#include "tests/dialogs/process/PidTest.h"

#include "tests/core/FunWizardTest.h"

SPidEntries PidWith(unsigned used)
{
    SPidEntries entries;
    for (size_t i = 0; i < kPidParameters; ++i)
        entries.used[i] = (used >> i & 1) != 0;
    return entries;
}

std::optional<long long> PidNumber(const std::string& text, int whole, int decimals)
{
    const size_t first = text.find_first_not_of(' ');
    if (first == std::string::npos)
        return std::nullopt;
    const std::string trimmed = text.substr(first, text.find_last_not_of(' ') - first + 1);

    const size_t point = trimmed.find('.');
    const std::string before = trimmed.substr(0, point);
    std::string after = point != std::string::npos ? trimmed.substr(point + 1) : "";
    if ((before + after).find_first_not_of("0123456789") != std::string::npos || (before + after).empty())
        return std::nullopt;
    while (!after.empty() && after.back() == '0')
        after.pop_back();
    if (before.size() > static_cast<size_t>(whole) || after.size() > static_cast<size_t>(decimals))
        return std::nullopt;
    after.resize(static_cast<size_t>(decimals), '0');
    return std::stoll("0" + before + after);
}

UINT PidMessage(const SPidParameterRow& parameter, const std::string& text)
{
    const auto number = PidNumber(text, parameter.whole, parameter.decimals);
    if (!number)
        return 20001;
    return *number >= parameter.low && *number <= parameter.high ? 0 : parameter.message;
}

SResults PidResults(const SPidEntries& entries)
{
    const bool automatic = entries.autoTuning == 1;
    const int n = static_cast<int>(PidNumber(entries.start, 5, 0).value());
    SResults results;
    results.contacts = {{2, entries.device, entries.contactNumber}};
    results.operands = {{9, n}};
    results.data = {{9, n, 0, 1, entries.autoTuning * 0x8000 + entries.derivative * 2 + entries.operation}};
    results.comments = {"Control mode"};
    for (size_t i = 0; i < kPidParameters; ++i)
    {
        const SPidParameterRow& parameter = kPid[i];
        const bool forced = automatic && parameter.gain;
        if (!forced && !entries.used[i])
            continue;
        const std::string text = forced ? parameter.initial : entries.texts[i];
        const int value = static_cast<int>(PidNumber(text, parameter.whole, parameter.decimals).value());
        results.data.push_back({9, n + parameter.offset, 0, 0, value});
        results.comments.emplace_back(parameter.name);
    }
    return results;
}

CPidTest::CPidTest()
{
    SetUpController(m_wizard);
    SFunWizardTest::SetLastWizard(m_wizard, 0, 355, 0);
    PexloDll_SetAppName(kTestAppName);
}

CPidTest::~CPidTest() { PexloDll_SetAppName(nullptr); }

void CPidTest::Confirm(const Scene& scene)
{
    const auto confirm = [&](CDialogRobot& dialog) {
        scene(dialog);
        if (dialog.IsOpen())
        {
            EXPECT_EQ(dialog.ClickAndAnswer(IDOK), CString()) << "OK was refused";
        }
    };
    EXPECT_EQ(Play([this] { return m_wizard.DoOpenPIDDlg(m_workArea, nullptr); }, {confirm}), IDOK);
}

void CPidTest::Leave(const Scene& scene)
{
    const auto leave = [&](CDialogRobot& dialog) {
        scene(dialog);
        if (dialog.IsOpen())
            dialog.Click(IDCANCEL);
    };
    EXPECT_EQ(Play([this] { return m_wizard.DoOpenPIDDlg(m_workArea, nullptr); }, {leave}), IDCANCEL);
}

SResults CPidTest::Confirmed(const SPidEntries& entries)
{
    Confirm([&](CDialogRobot& dialog) { FillIn(dialog, entries); });
    return ReadResults(m_wizard);
}

void FillIn(CDialogRobot& dialog, const SPidEntries& entries)
{
    dialog.Check(2061, entries.onlyDataTable);
    dialog.SelectText(2051, DeviceName(entries.device).c_str());
    dialog.Type(2052, entries.contact.c_str());
    dialog.Type(2801, entries.start.c_str());
    dialog.Select(2805, entries.autoTuning);
    dialog.Select(2803, entries.derivative);
    dialog.Select(2804, entries.operation);
    for (size_t i = 0; i < kPidParameters; ++i)
    {
        if (entries.autoTuning == 1 && kPid[i].gain)
            continue;
        dialog.Check(kPid[i].check, entries.used[i]);
        if (entries.used[i])
            dialog.Type(kPid[i].edit, entries.texts[i].c_str());
    }
    dialog.Check(3001, entries.comments);
}

void ExpectUsed(CDialogRobot& dialog, const SPidParameterRow& parameter, bool checked, bool changeable)
{
    EXPECT_EQ(dialog.Checked(parameter.check), checked) << parameter.name;
    EXPECT_EQ(dialog.Enabled(parameter.check), changeable) << parameter.name;
    EXPECT_EQ(dialog.Enabled(parameter.edit), checked && changeable) << parameter.name;
    EXPECT_EQ(ControlAfter(dialog, parameter.edit)->IsWindowEnabled() != FALSE, checked && changeable)
        << "range of " << parameter.name;
    EXPECT_EQ(TextAfter(dialog, parameter.edit), parameter.range);
    EXPECT_EQ(TextBefore(dialog, parameter.edit), parameter.name);
}
