#include "tests/dialogs/pulse/SpdhTest.h"

#include "dialogs/pulse/SpdhDlg.h"

namespace
{

bool CountsInDecimal(int device) { return device == kT || device == kC; }

int ContactNumber(const SSpdhEntries& entries)
{
    if (CountsInDecimal(entries.device))
        return std::stoi(entries.contact);
    const size_t word = entries.contact.size() - 1;
    return (word == 0 ? 0 : std::stoi(entries.contact.substr(0, word))) * 16 +
           std::stoi(entries.contact.substr(word), nullptr, 16);
}

} // namespace

std::ostream& operator<<(std::ostream& out, ESpdhVariant variant)
{
    return out << (variant == kSpdhTrapezoidal ? "trapezoidal" : "home return");
}

std::string SpdhVariantName(const testing::TestParamInfo<ESpdhVariant>& info)
{
    return info.param == kSpdhTrapezoidal ? "Trapezoidal" : "Home";
}

const std::vector<int>& SpdhModes(ESpdhVariant variant)
{
    static const std::vector<int> trapezoidal = {0x00, 0x02, 0x03, 0x10, 0x12, 0x13};
    static const std::vector<int> homeReturn = {0x20, 0x21, 0x22, 0x23, 0x24, 0x25, 0x26, 0x27,
                                                0x30, 0x31, 0x32, 0x33, 0x34, 0x35, 0x36, 0x37};
    return variant == kSpdhTrapezoidal ? trapezoidal : homeReturn;
}

UINT SpdhLastEdit(ESpdhVariant variant) { return variant == kSpdhTrapezoidal ? 2260 : 2265; }

SResults SpdhResults(ESpdhVariant variant, const SSpdhEntries& entries)
{
    const bool trapezoidal = variant == kSpdhTrapezoidal;
    const int n = std::stoi(entries.start);
    const int code = entries.steps * 0x10000 + entries.duty * 0x1000 + entries.frequency * 0x100 +
                     SpdhModes(variant).at(static_cast<size_t>(entries.mode));
    SResults results;
    results.contacts = {{2, entries.device, ContactNumber(entries)}};
    results.operands = {{9, n}, {11, kSpdhChannels[entries.channel]}};
    results.data = {{9, n, 1, 1, code},
                    {9, n + 2, 1, 0, std::stoi(entries.initial)},
                    {9, n + 4, 1, 0, std::stoi(entries.maximum)},
                    {9, n + 6, 1, 0, std::stoi(entries.time)},
                    {9, n + 8, 1, 0, std::stoi(trapezoidal ? entries.target : entries.clear)}};
    if (trapezoidal)
        results.data.push_back({9, n + 10, 1, 0, 0});
    results.comments = {"Control code", "Initial speed", "Maximum speed", "Acceleration/deceleration time",
                        trapezoidal ? "Target value" : "Deviation counter clear signal"};
    return results;
}

CSpdhTest::CSpdhTest()
{
    SetUpController(m_wizard);
    SetChannels(std::vector<int>(std::begin(kSpdhChannels), std::end(kSpdhChannels)));
    PexloDll_SetAppName(kTestAppName);
}

CSpdhTest::~CSpdhTest() { PexloDll_SetAppName(nullptr); }

void CSpdhTest::SetChannels(const std::vector<int>& channels)
{
    m_wizard.ResetChannelNo();
    for (int channel : channels)
        m_wizard.SetChannelNo(channel, 171);
}

int CSpdhTest::Open(ESpdhVariant variant, std::vector<Scene> scenes)
{
    return Play([&] { return static_cast<int>(CSpdhDlg(&m_wizard, variant == kSpdhHome, nullptr).DoModal()); },
                std::move(scenes));
}

void CSpdhTest::Confirm(ESpdhVariant variant, const Scene& scene)
{
    EXPECT_EQ(Open(variant, {[&](CDialogRobot& dialog) {
                       scene(dialog);
                       if (dialog.IsOpen())
                       {
                           EXPECT_EQ(dialog.ClickAndAnswer(IDOK), CString()) << "OK was refused";
                       }
                   }}),
              IDOK);
}

void CSpdhTest::Leave(ESpdhVariant variant, const Scene& scene)
{
    EXPECT_EQ(Open(variant, {[&](CDialogRobot& dialog) {
                       scene(dialog);
                       if (dialog.IsOpen())
                           dialog.Click(IDCANCEL);
                   }}),
              IDCANCEL);
}

SResults CSpdhTest::Confirmed(ESpdhVariant variant, const SSpdhEntries& entries)
{
    Confirm(variant, [&](CDialogRobot& dialog) { FillIn(dialog, entries); });
    return ReadResults(m_wizard);
}

void FillIn(CDialogRobot& dialog, const SSpdhEntries& entries)
{
    dialog.SelectText(2051, DeviceName(entries.device).c_str());
    dialog.Type(2052, entries.contact.c_str());
    dialog.Type(2251, entries.start.c_str());
    dialog.Check(2061, entries.onlyDataTable);
    if (!entries.onlyDataTable)
        dialog.Select(2253, entries.channel);
    dialog.Select(2254, entries.steps);
    dialog.Select(2255, entries.duty);
    dialog.Select(2256, entries.frequency);
    dialog.Select(2257, entries.mode);
    dialog.Type(2261, entries.initial.c_str());
    dialog.Type(2262, entries.maximum.c_str());
    dialog.Type(2259, entries.time.c_str());
    if (dialog.Exists(2260))
        dialog.Type(2260, entries.target.c_str());
    if (dialog.Exists(2265))
        dialog.Type(2265, entries.clear.c_str());
}
