#include "tests/dialogs/process/ScrDispTest.h"

#include "tests/core/FunWizardTest.h"
#include "tests/dialogs/process/ScreenSpots.h"

#include <algorithm>

// ---- The model ------------------------------------------------------------------------------------------------------

int FirstWordOf(const SScrDispEntries& entries)
{
    int word = 0;
    for (int mark = 0; mark < kMarks; ++mark)
        word |= (entries.marks >> mark & 1) != 0 ? kMarkBits[mark] : 0;
    return word | (entries.lines[kUpside].hidden ? 0x100 : 0) | (entries.lines[kDownside].hidden ? 0x200 : 0);
}

int ControlWordOf(const SLineEntries& line)
{
    return static_cast<int>(line.points | static_cast<unsigned>(line.mode) << 5 | line.hiddenDigits << 8 |
                            static_cast<unsigned>(line.color + 1) << 13 | static_cast<unsigned>(line.allDigits) << 15);
}

std::vector<int> TextWordsOf(const std::string& text)
{
    std::vector<int> words;
    for (size_t i = 0; i < text.size(); i += 2)
        words.push_back(static_cast<BYTE>(text[i]) | (i + 1 < text.size() ? static_cast<BYTE>(text[i + 1]) << 8 : 0));
    return words;
}

CScreenBlock BlockOf(const SScrDispEntries& entries)
{
    CScreenBlock block = {FirstWordOf(entries), ControlWordOf(entries.lines[kUpside]),
                          ControlWordOf(entries.lines[kDownside])};
    for (const SLineEntries& line : entries.lines)
    {
        std::vector<int> words = TextWordsOf(line.text);
        words.resize(3);
        block.insert(block.end(), words.begin(), words.end());
    }
    block.push_back(0);
    return block;
}

SResults ScrDispResults(const SScrDispEntries& entries)
{
    SResults results;
    results.contacts = {{2, 20001, 14419}};
    results.operands = {{11, entries.screen}};
    for (const SDeviceEntry& device : entries.devices)
        results.operands.push_back({device.code, device.number});

    const SDeviceEntry& control = entries.devices[0];
    results.data = {{control.code, control.number, 0, 1, FirstWordOf(entries)}};
    for (int line = kUpside; line <= kDownside; ++line)
        if (const SLineEntries& shown = entries.lines[static_cast<size_t>(line)]; !shown.hidden)
            results.data.push_back({control.code, control.number + 1 + line, 0, 1, ControlWordOf(shown)});
    for (size_t line = 0; line < 2; ++line)
    {
        const SLineEntries& shown = entries.lines[line];
        if (shown.hidden || shown.mode != 3)
            continue;
        const SDeviceEntry& display = entries.devices[1 + line];
        int number = display.number;
        for (const int word : TextWordsOf(shown.text))
            results.data.push_back({display.code, number++, 0, 1, word});
    }
    results.comments = {"Control data", "Upside display data", "Downside display data"};
    return results;
}

// ---- The dialog -----------------------------------------------------------------------------------------------------

CScrDispTest::CScrDispTest()
{
    SetUpController(m_wizard);
    SFunWizardTest::SetLastWizard(m_wizard, 0, 180, 0);
    PexloDll_SetAppName(kTestAppName);
}

CScrDispTest::~CScrDispTest() { PexloDll_SetAppName(nullptr); }

int CScrDispTest::Open(const std::vector<Scene>& scenes)
{
    return Play([this] { return m_wizard.DoOpenSCRDlg(m_permitted, nullptr); }, scenes);
}

void CScrDispTest::Confirm(const Scene& scene)
{
    const auto confirm = [&](CDialogRobot& dialog) {
        scene(dialog);
        if (dialog.IsOpen())
        {
            EXPECT_EQ(dialog.ClickAndAnswer(IDOK), CString()) << "OK was refused";
        }
    };
    EXPECT_EQ(Open({confirm}), IDOK);
}

void CScrDispTest::Leave(const Scene& scene)
{
    const auto leave = [&](CDialogRobot& dialog) {
        scene(dialog);
        if (dialog.IsOpen())
            dialog.Click(IDCANCEL);
    };
    EXPECT_EQ(Open({leave}), IDCANCEL);
}

void CScrDispTest::Forget()
{
    WriteResults(m_wizard, {});
    m_wizard.RemoveDlgData();
}

SResults CScrDispTest::Confirmed(const SScrDispEntries& entries)
{
    Forget();
    Confirm([&](CDialogRobot& dialog) { FillIn(dialog, entries); });
    return ReadResults(m_wizard);
}

std::optional<CScreenBlock> CScrDispTest::Block() const
{
    const auto* words = static_cast<const WORD*>(const_cast<CFunWizard&>(m_wizard).GetDlgDataPtr());
    if (words == nullptr)
        return std::nullopt;
    return CScreenBlock(words, words + 10);
}

void CScrDispTest::SetBlock(const CScreenBlock& words)
{
    auto* block = static_cast<WORD*>(::operator new(10 * sizeof(WORD)));
    std::transform(words.begin(), words.end(), block, [](int word) { return static_cast<WORD>(word); });
    m_wizard.RemoveDlgData();
    m_wizard.SetDlgDataPtr(block);
}

namespace
{

/// The names of devices, bit devices and words.
std::string NameOf(int code)
{
    switch (code)
    {
    case kDT:
        return "DT";
    case kWR:
        return "WR";
    case kWY:
        return "WY";
    case kWL:
        return "WL";
    case kWX:
        return "WX";
    case kSV:
        return "SV";
    case kEV:
        return "EV";
    case kSpecialDT:
        return "Sp.DT";
    default:
        return DeviceName(code);
    }
}

} // namespace

void SelectDevice(CDialogRobot& dialog, size_t operand, int code)
{
    dialog.SelectText(kDeviceCombos[operand], NameOf(code).c_str());
}

void EditLine(CDialogRobot& dialog, ELine line) { dialog.Click(line == kUpside ? 2886 : 2887); }

void FillInLine(CDialogRobot& dialog, const SLineEntries& line)
{
    dialog.Check(2870, false);
    if (!line.text.empty() || line.mode == 3)
    {
        dialog.Select(2869, 3);
        dialog.Type(2872, line.text.c_str());
    }
    dialog.Select(2869, line.mode);
    dialog.Select(2884, line.allDigits);
    dialog.Select(2883, line.color);
    for (size_t digit = 0; digit < 5; ++digit)
    {
        dialog.Check(kHideDigit[digit], (line.hiddenDigits >> digit & 1) != 0);
        dialog.Check(kPointBoxes[digit], (line.points >> digit & 1) != 0);
    }
    dialog.Check(2870, line.hidden);
}

void FillIn(CDialogRobot& dialog, const SScrDispEntries& entries, unsigned shownMarks)
{
    dialog.Select(2850, entries.screen);
    for (size_t i = 0; i < kScreenOperands; ++i)
    {
        SelectDevice(dialog, i, entries.devices[i].code);
        dialog.Type(kDeviceEdits[i], entries.devices[i].text.c_str());
    }
    for (int mark = 0; mark < kMarks; ++mark)
        if (((entries.marks ^ shownMarks) >> mark & 1) != 0)
            dialog.Click(kFirstMark + static_cast<UINT>(mark));
    for (const ELine line : {kDownside, kUpside})
    {
        EditLine(dialog, line);
        FillInLine(dialog, entries.lines[line]);
    }
    dialog.Check(3001, entries.comments);
}

void ExpectLine(CDialogRobot& dialog, const SLineEntries& line)
{
    EXPECT_EQ(dialog.Checked(2870), line.hidden);
    EXPECT_EQ(dialog.Selection(2869), line.mode);
    EXPECT_EQ(dialog.Text(2872), CString(line.text.c_str()));
    EXPECT_EQ(dialog.Selection(2884), line.allDigits);
    EXPECT_EQ(dialog.Selection(2883), line.color);
    for (size_t digit = 0; digit < 5; ++digit)
    {
        EXPECT_EQ(dialog.Checked(kHideDigit[digit]), (line.hiddenDigits >> digit & 1) != 0) << "digit " << digit;
        EXPECT_EQ(dialog.Checked(kPointBoxes[digit]), (line.points >> digit & 1) != 0) << "point " << digit;
        EXPECT_EQ(dialog.Enabled(kHideDigit[digit]), !line.hidden);
        EXPECT_EQ(dialog.Enabled(kPointBoxes[digit]), !line.hidden);
    }
    for (const UINT id : {2869, 2884, 2883})
        EXPECT_EQ(dialog.Enabled(id), !line.hidden) << "list " << id;
    for (const UINT id : {2871, 2872})
        EXPECT_EQ(dialog.Enabled(id), !line.hidden && line.mode == 3) << "text " << id;
    EXPECT_TRUE(dialog.Enabled(2870));
    EXPECT_TRUE(dialog.Enabled(3001));
}

void ExpectDevices(CDialogRobot& dialog, const std::array<SDeviceEntry, kScreenOperands>& devices)
{
    for (size_t i = 0; i < kScreenOperands; ++i)
    {
        EXPECT_EQ(dialog.Text(kDeviceCombos[i]), CString(NameOf(devices[i].code).c_str()));
        EXPECT_EQ(dialog.Text(kDeviceEdits[i]), CString(devices[i].text.c_str()));
    }
}

void ExpectEntries(CDialogRobot& dialog, const SScrDispEntries& entries)
{
    EXPECT_EQ(dialog.Selection(2850), entries.screen);
    ExpectDevices(dialog, entries.devices);
    EXPECT_EQ(dialog.Checked(3001), entries.comments);
    for (const ELine line : {kUpside, kDownside, kUpside})
    {
        EditLine(dialog, line);
        EXPECT_EQ(dialog.Checked(2886), line == kUpside);
        EXPECT_EQ(dialog.Checked(2887), line == kDownside);
        ExpectLine(dialog, entries.lines[line]);
        ExpectPreview(dialog, entries);
    }
}

void ExpectPreview(CDialogRobot& dialog, const SScrDispEntries& entries)
{
    SScreenSettings settings;
    settings.marks = static_cast<BYTE>(FirstWordOf(entries));
    for (size_t line = 0; line < 2; ++line)
    {
        settings.lines[line].hidden = entries.lines[line].hidden;
        settings.lines[line].control = static_cast<WORD>(ControlWordOf(entries.lines[line]));
        settings.lines[line].text = entries.lines[line].text.c_str();
    }
    constexpr int kWidth = 320, kHeight = 140;
    CCanvas canvas(kWidth, kHeight);
    DRAWITEMSTRUCT item = {};
    item.CtlType = ODT_STATIC;
    item.CtlID = 2888;
    item.hDC = canvas.DC();
    item.rcItem = {0, 0, kWidth, kHeight};
    dialog.Dialog()->SendMessage(WM_DRAWITEM, 2888, reinterpret_cast<LPARAM>(&item));
    ExpectScreen(canvas, item.rcItem, settings);
}
