// What the tests of F355 share: its parameters as a table, a model of its entries, and the way into its dialog.
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

struct SPidParameterRow
{
    const char* name; // of the check box
    UINT check;
    UINT edit;
    const char* range; // as it is shown
    int offset;        // of the register from the table's start
    int whole;         // digits
    int decimals;
    int limit; // characters
    int low;   // in units of the last decimal
    int high;
    UINT message;
    const char* initial; // shown when nothing is stored
    bool used;           // when nothing is stored at all
    bool gain;           // left to auto-tuning
};

constexpr size_t kPidParameters = 7;
enum EPidParameter
{
    kSp,
    kLower,
    kUpper,
    kKp,
    kTi,
    kTd,
    kTs
};

// clang-format off
inline constexpr SPidParameterRow kPid[kPidParameters] = {
    {"Set value (SP)",           2816, 2806, "(0 - 10000)",            1, 5, 0, 5, 0, 10000, 20028, "",    true,  false},
    {"Output lower limit value", 2819, 2809, "(0 - 99.99) %",          4, 2, 2, 5, 0, 9999,  20031, "0",   true,  false},
    {"Output upper limit value", 2820, 2810, "(0.01 - 100) %",         5, 3, 2, 6, 1, 10000, 20032, "100", true,  false},
    {"Proportional gain (Kp)",   2821, 2811, "(0.1 - 999.9)",          6, 3, 1, 5, 1, 9999,  20033, "0.1", false, true},
    {"Integral time (Ti)",       2822, 2812, "(0.0 - 3000.0) seconds", 7, 4, 1, 6, 0, 30000, 20034, "0.1", false, true},
    {"Derivative time (Td)",     2823, 2813, "(0.0 - 1000.0) seconds", 8, 4, 1, 6, 0, 10000, 20035, "0",   false, true},
    {"Control cycle (Ts)",       2824, 2814, "(0.01 - 60.0) seconds",  9, 2, 2, 4, 1, 6000,  20036, "",    true,  false},
};
// clang-format on

/// What stands in the dialog. The defaults are accepted.
struct SPidEntries
{
    int device = kR;
    std::string contact = "10A";
    int contactNumber = 170; // what the text says
    std::string start = "100";
    int autoTuning = 0; // positions in the lists
    int derivative = 0;
    int operation = 0;
    std::array<std::string, kPidParameters> texts = {"500", "0", "100", "1.5", "2.5", "3.5", "1.25"};
    std::array<bool, kPidParameters> used = {true, true, true, true, true, true, true};
    bool comments = true;
    bool onlyDataTable = false;
};

/// The entries with the parameters of a set, one bit each.
SPidEntries PidWith(unsigned used);

/// The number that an entry says in units of its last decimal; none when it is no number.
std::optional<long long> PidNumber(const std::string& text, int whole, int decimals);
/// The message that OK shows for the entry of a parameter; 0 when it is accepted.
UINT PidMessage(const SPidParameterRow& parameter, const std::string& text);
/// The lists after the entries were confirmed.
SResults PidResults(const SPidEntries& entries);

class CPidTest : public CDesktopTest
{
protected:
    using Scene = CDialogRobot::Scene;
    using Texts = std::vector<CString>;

    /// The wizard last used was this one: its lists are restored.
    CPidTest();
    ~CPidTest() override;

    /// Opens the dialog, plays the scene and clicks OK, which must be accepted.
    void Confirm(const Scene& scene);
    /// Opens the dialog, plays the scene and cancels.
    void Leave(const Scene& scene);
    /// What the lists hold once the entries are confirmed.
    SResults Confirmed(const SPidEntries& entries);

    CFunWizard m_wizard;
    int m_workArea = 19; // how far it reaches
};

/// Fills the dialog in, typing what stands in its edits; of unused parameters and of those that auto-tuning finds the
/// edits keep their texts.
void FillIn(CDialogRobot& dialog, const SPidEntries& entries);
/// A parameter's check box, and whether box, edit and range can be used.
void ExpectUsed(CDialogRobot& dialog, const SPidParameterRow& parameter, bool checked, bool changeable = true);
