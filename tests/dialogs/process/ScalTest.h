// What the tests of F282, F283 and F354 share: the three as a table, a model of their entries, and the way into their
// dialog.
#pragma once

#include "tests/dialogs/grid/GridRobot.h"
#include "tests/support/Controller.h"
#include "tests/support/DesktopTest.h"
#include "tests/support/DialogChecks.h"
#include "tests/support/PrintTo.h"
#include "tests/support/Results.h"
#include "tests/support/Sampled.h"

#include <string>
#include <vector>

constexpr int kIndex = 15;
constexpr int kFL = 10;
constexpr int kLD = 8;
constexpr int kSpecialWR = 20065;

/// A constant that the input can be.
struct SScalConstant
{
    const char* name;
    const char* range; // as it is shown
    std::vector<std::string> inside;
    std::vector<std::string> outside;
    std::vector<std::string> unreadable;
};

struct SScalKind
{
    int argument; // of DoOpenSCALDlg
    int instruction;
    const char* caption;
    const char* heading;
    int width; // registers of a value
    int type;  // of its data records
    int format;
    int limit;         // characters of a cell
    const char* range; // of the cells, as it is shown
    // Texts of cells, those inside in ascending order.
    std::vector<std::string> inside;
    std::vector<std::string> outside;
    std::vector<std::string> unreadable;
    std::vector<SScalConstant> constants;

    bool IsReal() const { return format == 2; }
};

extern const std::vector<SScalKind> kScalKinds;
void PrintTo(const SScalKind& kind, std::ostream* out);

/// A device that the lists of operands offer.
struct SWordDevice
{
    static constexpr unsigned kNever = 0;
    static constexpr unsigned kAlways = ~0u;

    const char* name;
    int code;
    unsigned bit; // that permits it
};

// clang-format off
inline constexpr SWordDevice kWordDevices[] = {
    {"WX", kWX, SWordDevice::kNever}, {"WY", kWY, 0x20000}, {"WR", kWR, 0x40000},
    {"Sp.WR", kSpecialWR, SWordDevice::kAlways}, {"WL", kWL, 0x80000}, {"DT", kDT, 0x800000},
    {"Sp.DT", kSpecialDT, SWordDevice::kNever}, {"SV", kSV, 0x200000}, {"EV", kEV, 0x400000}, {"FL", kFL, 0x2000000},
    {"LD", kLD, 0x1000000}, {"INDEX", kIndex, 0x10000000}};
/// The lowest number of a device of AddAllWords.
int LowestOf(const SWordDevice& device);
inline constexpr SWordDevice kInputConstants[] = {{"K", kK, 1}, {"H", kH, 2}, {"f", kF, 4}};
// clang-format on

struct SPointEntry
{
    std::string x;
    std::string y;
};

/// What stands in the dialog. The defaults are accepted by all three.
// NOLINTNEXTLINE(clang-analyzer-optin.performance.Padding): in the order of the dialog
struct SScalEntries
{
    bool onlyDataTable = false;
    int device = kR; // code of the contact's device
    std::string contact = "10";
    int contactNumber = 16; // what the text says
    bool differential = false;
    std::string inputDevice = "DT";
    std::string input = "10";
    std::string outputDevice = "DT";
    std::string output = "20";
    std::string startDevice = "DT";
    std::string start = "100";
    std::string count = {}; // empty: as many as there are points
    std::vector<SPointEntry> points = {{"-100", "5"}, {"0", "-7"}, {"250", "32767"}};

    int Count() const { return count.empty() ? static_cast<int>(points.size()) : std::stoi(count); }
};

/// So many points, ascending.
std::vector<SPointEntry> Points(int count);
/// As a spreadsheet puts them on the clipboard.
std::string AsText(const std::vector<SPointEntry>& points);
/// The value that is stored for the text of a cell.
int ScalValue(const SScalKind& kind, const std::string& text);
/// The lists after the entries were confirmed, comments included.
SResults ScalResults(const SScalKind& kind, const SScalEntries& entries);

class CScalTest : public CDesktopTest, public testing::WithParamInterface<SScalKind>
{
protected:
    using Scene = CDialogRobot::Scene;

    /// The wizard last used was this one: its lists are restored.
    CScalTest();
    ~CScalTest() override;

    int Open(std::vector<Scene> scenes);
    /// Opens the dialog, plays the scene and clicks OK, which must be accepted.
    void Confirm(const Scene& scene);
    /// Opens the dialog, plays the scene and cancels.
    void Leave(const Scene& scene);
    /// What the lists hold once the entries are confirmed.
    SResults Confirmed(const SScalEntries& entries);

    /// Gives the controller all devices that hold a value, up to 30000, each from another number on.
    void AddAllWords();

    CFunWizard m_wizard;
    ULONGLONG* m_permitted = nullptr;
};

/// The name of a kind in the names of tests.
std::string ScalKindName(const testing::TestParamInfo<SScalKind>& info);

/// Fills the dialog in; the points are pasted. What is disabled is left alone.
void FillIn(CDialogRobot& dialog, const SScalEntries& entries);
