// What the tests of E point control share: the ways into its dialog, in each form.
#pragma once

#include "tests/dialogs/posunit/AxisWords.h"
#include "tests/dialogs/posunit/EPointModel.h"
#include "tests/dialogs/posunit/PosUnitTest.h"
#include "tests/resources/LanguageLibrary.h"
#include "tests/support/Sampled.h"

#include <span>

/// The module's template has no start output, that of the library has.
inline constexpr int kSources[] = {kModule, kEnglish};

// For sweeps: everything, or what has most of it where an opening takes long.
inline const std::span<const int> kSweptSources = std::span(kSources).last(IsThorough() ? std::size(kSources) : 1);
inline const std::span<const EEPointForm> kSweptForms = std::span(kForms).last(IsThorough() ? std::size(kForms) : 1);

class CEPointTest : public CPosUnitTest
{
protected:
    /// A unit of four axes.
    CEPointTest();

    /// The texts and templates of the module or of a language.
    void Use(int source);

    /// Opens a form, plays the scene and clicks OK, which must be accepted.
    void Confirm(EEPointForm form, const Scene& scene = {});
    /// Opens a form, plays the scene and leaves by Back.
    void Leave(EEPointForm form, const Scene& scene = {});

    /// The same by the way of a user, from the selection of the unit's operations.
    void ConfirmFromSelection(EEPointForm form, const Scene& scene, unsigned char axisFlag = 1);

    /// Fills the entries in and clicks OK, which must do what the model says it does. A refusal leaves the lists alone.
    void Check(CDialogRobot& dialog, EEPointForm form, const SEPointEntries& entries);
    /// Opens a form for it, and leaves it when the entries are refused.
    void Check(EEPointForm form, const SEPointEntries& entries);
};

/// The unit's operation that opens the form.
int VariantOf(EEPointForm form);

/// Fills the dialog in, typing what stands in its edits.
void FillIn(CDialogRobot& dialog, const SEPointEntries& entries);

/// Everything that stands in the dialog at once, as far as it has the controls.
struct SEPointShown
{
    const char* device = "X";
    const char* contact = "";
    const char* slot = "";
    const char* axis = "";
    const char* start = "";
    const char* startup = "";
    const char* target = "";
    const char* time = "";
    const char* position = "";
};
void ExpectShown(CDialogRobot& dialog, const SEPointShown& shown);
/// The selection of every list of the control code.
void ExpectCodeShown(CDialogRobot& dialog, DWORD word);
