// What the tests of the screen display instruction share: what stands in its dialog, what becomes of it, and the way
// in.
#pragma once

#include "tests/support/Controller.h"
#include "tests/support/DesktopTest.h"
#include "tests/support/DialogChecks.h"
#include "tests/support/PrintTo.h"
#include "tests/support/Results.h"

#include "resources/resource.h"

#include <array>
#include <optional>
#include <string>
#include <vector>

/// The settings of a line; lists by position.
struct SLineEntries
{
    bool hidden = false;
    int mode = 0;
    int allDigits = 0;
    int color = 0;
    unsigned hiddenDigits = 0; // bit 0: the 1st
    unsigned points = 0;       // bits 0 to 3: the 2nd to the 5th, bit 4: the upper one of the 3rd
    std::string text = {};     // typed in mode 3
};

struct SDeviceEntry
{
    int code = kDT;
    int number = 0; // what the text says
    std::string text = {};
};

constexpr size_t kScreenOperands = 3; // control data, upside, downside display data
constexpr UINT kDeviceCombos[kScreenOperands] = {2851, 2854, 2857};
constexpr UINT kDeviceEdits[kScreenOperands] = {2852, 2855, 2858};
constexpr UINT kDeviceRanges[kScreenOperands] = {2853, 2856, 2859};
constexpr UINT kDeviceMessages[kScreenOperands] = {20037, 20038, 20039};

enum ELine
{
    kUpside,
    kDownside
};

/// What stands in the dialog. The defaults are accepted.
struct SScrDispEntries
{
    int screen = 0;
    std::array<SDeviceEntry, kScreenOperands> devices = {SDeviceEntry{kDT, 100, "100"}, SDeviceEntry{kDT, 200, "200"},
                                                         SDeviceEntry{kDT, 300, "300"}};
    unsigned marks = 0; // bit 0: the first one, 2860
    std::array<SLineEntries, 2> lines;
    bool comments = true;
};

constexpr UINT kFirstMark = 2860;
constexpr int kMarks = 8;
/// The bits of the marks 2860 to 2867 in the first word.
constexpr int kMarkBits[kMarks] = {0x80, 0x40, 0x20, 0x10, 0x08, 0x04, 0x02, 0x01};

constexpr UINT kHideDigit[] = {2878, 2879, 2880, 2881, 2882};
constexpr UINT kPointBoxes[] = {2873, 2874, 2875, 2876, 2877};

using CScreenBlock = std::vector<int>;

int FirstWordOf(const SScrDispEntries& entries);
int ControlWordOf(const SLineEntries& line);
/// The words of a text, without those behind its end.
std::vector<int> TextWordsOf(const std::string& text);
/// The ten words that the wizard keeps.
CScreenBlock BlockOf(const SScrDispEntries& entries);
/// The lists after the entries were confirmed for the first time.
SResults ScrDispResults(const SScrDispEntries& entries);

class CScrDispTest : public CDesktopTest
{
protected:
    using Scene = CDialogRobot::Scene;
    using Texts = std::vector<CString>;

    /// The wizard last used was this one: its lists and block are restored.
    CScrDispTest();
    ~CScrDispTest() override;

    int Open(const std::vector<Scene>& scenes);
    /// Opens the dialog, plays the scene and clicks OK, which must be accepted.
    void Confirm(const Scene& scene);
    /// Opens the dialog, plays the scene and cancels.
    void Leave(const Scene& scene);
    /// What the lists hold once the entries are confirmed in a dialog without an earlier run.
    SResults Confirmed(const SScrDispEntries& entries);
    /// As if nothing had been confirmed before.
    void Forget();

    /// What the wizard keeps; nothing when it keeps nothing.
    std::optional<CScreenBlock> Block() const;
    void SetBlock(const CScreenBlock& words);

    CFunWizard m_wizard;
    ULONGLONG* m_permitted = nullptr;
};

void SelectDevice(CDialogRobot& dialog, size_t operand, int code);
void EditLine(CDialogRobot& dialog, ELine line);
/// Fills in the line that is edited.
void FillInLine(CDialogRobot& dialog, const SLineEntries& line);
/// Fills in a dialog in which `shownMarks` are shown; the upside line is edited at the end.
void FillIn(CDialogRobot& dialog, const SScrDispEntries& entries, unsigned shownMarks = 0);
/// The controls of a line, what they show and which of them can be used.
void ExpectLine(CDialogRobot& dialog, const SLineEntries& line);
void ExpectDevices(CDialogRobot& dialog, const std::array<SDeviceEntry, kScreenOperands>& devices);
/// Everything, both lines.
void ExpectEntries(CDialogRobot& dialog, const SScrDispEntries& entries);
/// The picture, as the dialog draws it, shows the marks and the lines.
void ExpectPreview(CDialogRobot& dialog, const SScrDispEntries& entries);
