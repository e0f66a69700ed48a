// What the tests of F171 share: a wizard for a controller that has it, the way into its dialog, and what a confirmed
// dialog has to store.
#pragma once

#include "tests/support/Controller.h"
#include "tests/support/DesktopTest.h"
#include "tests/support/DialogChecks.h"
#include "tests/support/PrintTo.h"
#include "tests/support/Results.h"

#include "resources/resource.h"

#include <functional>
#include <string>
#include <vector>

enum ESpdhVariant
{
    kSpdhTrapezoidal,
    kSpdhHome
};

inline constexpr ESpdhVariant kSpdhVariants[] = {kSpdhTrapezoidal, kSpdhHome};

std::ostream& operator<<(std::ostream& out, ESpdhVariant variant);
std::string SpdhVariantName(const testing::TestParamInfo<ESpdhVariant>& info);

/// What stands in the dialog. The defaults are accepted by both variants.
struct SSpdhEntries
{
    int device = kR; // code of the contact's device
    std::string contact = "10A";
    std::string start = "100";
    int channel = 0; // positions in the lists
    int steps = 0;
    int duty = 0;
    int frequency = 0;
    int mode = 0;
    std::string initial = "500";
    std::string maximum = "5000";
    std::string time = "300";
    std::string target = "100000"; // trapezoidal control
    std::string clear = "50";      // home position return
    bool onlyDataTable = false;    // the first channel is the only one then
};

/// The channels of the controller: their numbers are not their positions.
inline constexpr int kSpdhChannels[] = {1, 4, 6, 15};

/// The codes of the operation modes by position.
const std::vector<int>& SpdhModes(ESpdhVariant variant);
/// The edit after the acceleration time.
UINT SpdhLastEdit(ESpdhVariant variant);
/// The lists after the entries were confirmed, comments included.
SResults SpdhResults(ESpdhVariant variant, const SSpdhEntries& entries);

class CSpdhTest : public CDesktopTest
{
protected:
    using Scene = CDialogRobot::Scene;
    using Texts = std::vector<CString>;

    CSpdhTest();
    ~CSpdhTest() override;

    /// Opens the dialog, plays the scene and clicks OK, which must be accepted.
    void Confirm(ESpdhVariant variant, const Scene& scene);
    /// Opens the dialog, plays the scene and leaves by Back.
    void Leave(ESpdhVariant variant, const Scene& scene);
    int Open(ESpdhVariant variant, std::vector<Scene> scenes);
    /// What the lists hold once the entries are confirmed.
    SResults Confirmed(ESpdhVariant variant, const SSpdhEntries& entries);

    void SetChannels(const std::vector<int>& channels);

    CFunWizard m_wizard;
};

/// Fills the dialog in, typing what stands in its edits.
void FillIn(CDialogRobot& dialog, const SSpdhEntries& entries);
