// What the tests of F174 share: a wizard for a controller that has it, the way into its dialog, and what a confirmed
// dialog has to store.
#pragma once

#include "tests/dialogs/grid/GridRobot.h"
#include "tests/support/Controller.h"
#include "tests/support/DesktopTest.h"
#include "tests/support/DialogChecks.h"
#include "tests/support/PrintTo.h"
#include "tests/support/Results.h"
#include "tests/support/Sampled.h"

#include <functional>
#include <string>
#include <vector>

struct SStepEntry
{
    std::string frequency;
    std::string target;
};

/// What stands in the dialog. The defaults are accepted.
// NOLINTNEXTLINE(clang-analyzer-optin.performance.Padding): in the order of the dialog
struct SSp0hEntries
{
    int device = kR; // code of the contact's device
    std::string contact = "10";
    int contactNumber = 16;
    std::string start = "100";
    int channel = 0; // positions in the lists
    int duty = 0;
    int frequency = 0;
    int mode = 0;
    int output = 0;
    std::vector<SStepEntry> steps = {{"500", "1000"}, {"9800", "-2000"}, {"1", "0"}};
    bool onlyDataTable = false; // the first channel is the only one then
};

/// The channels of the controller: their numbers are not their positions.
inline constexpr int kSp0hChannels[] = {1, 4, 6, 15};

/// So many steps, each one another.
std::vector<SStepEntry> Steps(int count);
/// As a spreadsheet puts them on the clipboard.
std::string AsText(const std::vector<SStepEntry>& steps);
/// The lists after the entries were confirmed, comments included.
SResults Sp0hResults(const SSp0hEntries& entries);

class CSp0hTest : public CDesktopTest
{
protected:
    using Scene = CDialogRobot::Scene;

    CSp0hTest();
    ~CSp0hTest() override;

    /// Opens the dialog, plays the scene and clicks OK, which must be accepted.
    void Confirm(const Scene& scene);
    /// Opens the dialog, plays the scene and leaves by Back.
    void Leave(const Scene& scene);
    int Open(std::vector<Scene> scenes);
    /// What the lists hold once the entries are confirmed.
    SResults Confirmed(const SSp0hEntries& entries);

    CFunWizard m_wizard;
    UINT m_templateId = 1019;
};

/// Fills the dialog in; the steps are pasted.
void FillIn(CDialogRobot& dialog, const SSp0hEntries& entries);
