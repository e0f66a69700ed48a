// What the dialog of E point control makes of its entries, worked out apart from the dialog: from the entries' texts
// and the wizard's settings alone, in arithmetic of its own.
#pragma once

#include "dialogs/posunit/EPointDlg.h"
#include "tests/support/Controller.h"
#include "tests/support/Results.h"

#include <array>
#include <string>

inline constexpr EEPointForm kForms[] = {kEPointForm, kPPointStartForm, kJogPositioningForm};

std::ostream& operator<<(std::ostream& out, EEPointForm form);

/// A list of the dialog, and the bit at which its field of the control code begins.
struct SEPointCombo
{
    UINT id;
    int shift;
    const char* label;
};

inline constexpr SEPointCombo kEPointCombos[] = {
    {3105, 0, "Position command"},
    {3106, 1, "Accel./decel."},
    {3107, 3, "Startup speed"},
    {3051, 4, "Home input valid logic"},
    {3052, 5, "Near home input valid logic"},
    {3054, 7, "Limit input valid logic"},
    {3061, 12, "\"S\" accel./decel."},
    {3065, 24, "Rotation direction"},
    {3066, 25, "Output mode"},
    {3071, 28, "Pulse output divided mode"},
};

/// What stands in the dialog. The defaults are accepted by all forms, whether a start output is wanted or not.
struct SEPointEntries
{
    int device = kR; // code of the contact's device
    std::string contact = "10A";
    std::string slot = "1";
    std::string axis = "2";
    std::string start = "100";
    std::array<int, std::size(kEPointCombos)> items = {}; // positions in the lists
    std::string startup = "500";
    std::string target = "20000";
    std::string time = "300";
    std::string position = "-100000";
    bool startOutput = false;
    bool same = false;
    int secondDevice = kY;
    std::string second = "1F";
    std::string word = "40";
};

/// The edits in the order of their checks, and the entry of each.
inline constexpr UINT kEPointEdits[] = {2052, 3104, 3103, 3101, 3108, 3109, 3110, 3111, 2057, 2059};
std::string& EntryOf(SEPointEntries& entries, UINT edit);

/// The edits that count: those of the start output only when it is wanted, and as far as its start type asks for them.
bool Counts(UINT edit, const SEPointEntries& entries, const CFunWizard& wizard);

/// The relay of the axis that a form starts.
int StartBit(EEPointForm form);

/// Either the message that OK shows and the edit that it points at, or the results.
struct SEPointOutcome
{
    unsigned message = 0; // 0: accepted
    unsigned edit = 0;
    SResults results;
};

SEPointOutcome EPointOutcome(EEPointForm form, const SEPointEntries& entries, const CFunWizard& wizard);
