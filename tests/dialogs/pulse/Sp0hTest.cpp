#include "tests/dialogs/pulse/Sp0hTest.h"

#include "dialogs/pulse/Sp0hDlg.h"

std::vector<SStepEntry> Steps(int count)
{
    std::vector<SStepEntry> steps;
    for (int i = 0; i < count; ++i)
        steps.push_back({std::to_string(1 + i % 9800), std::to_string(i % 2 == 0 ? i * 1000 : -i)});
    return steps;
}

std::string AsText(const std::vector<SStepEntry>& steps)
{
    std::string text;
    for (const SStepEntry& step : steps)
        text += step.frequency + "\t" + step.target + "\r\n";
    return text;
}

SResults Sp0hResults(const SSp0hEntries& entries)
{
    constexpr int kOutputs[] = {0, 2, 3};
    const int n = std::stoi(entries.start);
    const int code = entries.duty * 0x1000 + entries.frequency * 0x100 + entries.mode * 0x10 + kOutputs[entries.output];
    SResults results;
    results.contacts = {{2, entries.device, entries.contactNumber}};
    results.operands = {{9, n}, {11, kSp0hChannels[entries.channel]}};
    results.data = {{9, n, 1, 1, code}};
    results.comments = {"Control code"};
    int i = 0;
    for (const SStepEntry& step : entries.steps)
    {
        results.data.push_back({9, n + 2 + 4 * i, 1, 0, std::stoi(step.frequency)});
        results.data.push_back({9, n + 4 + 4 * i, 1, 0, std::stoi(step.target)});
        ++i;
        results.comments.push_back("Frequency " + std::to_string(i));
        results.comments.push_back("Target value " + std::to_string(i));
    }
    results.data.push_back({9, n + 2 + 4 * i, 1, 0, 0});
    return results;
}

CSp0hTest::CSp0hTest()
{
    SetUpController(m_wizard);
    m_wizard.ResetChannelNo();
    for (const int channel : kSp0hChannels)
        m_wizard.SetChannelNo(channel, 174);
    PexloDll_SetAppName(kTestAppName);
}

CSp0hTest::~CSp0hTest() { PexloDll_SetAppName(nullptr); }

int CSp0hTest::Open(std::vector<Scene> scenes)
{
    return Play([&] { return static_cast<int>(CSp0hDlg(&m_wizard, m_templateId, nullptr).DoModal()); },
                std::move(scenes));
}

void CSp0hTest::Confirm(const Scene& scene)
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

void CSp0hTest::Leave(const Scene& scene)
{
    EXPECT_EQ(Open({[&](CDialogRobot& dialog) {
                  scene(dialog);
                  if (dialog.IsOpen())
                      dialog.Click(IDCANCEL);
              }}),
              IDCANCEL);
}

SResults CSp0hTest::Confirmed(const SSp0hEntries& entries)
{
    Confirm([&](CDialogRobot& dialog) { FillIn(dialog, entries); });
    return ReadResults(m_wizard);
}

void FillIn(CDialogRobot& dialog, const SSp0hEntries& entries)
{
    dialog.SelectText(2051, DeviceName(entries.device).c_str());
    dialog.Type(2052, entries.contact.c_str());
    dialog.Check(2061, entries.onlyDataTable);
    if (!entries.onlyDataTable)
        dialog.Select(2403, entries.channel);
    dialog.Select(2405, entries.duty);
    dialog.Select(2406, entries.frequency);
    dialog.Select(2407, entries.mode);
    dialog.Select(2404, entries.output);
    PasteCells(dialog, AsText(entries.steps));
    dialog.Type(2401, entries.start.c_str());
}
