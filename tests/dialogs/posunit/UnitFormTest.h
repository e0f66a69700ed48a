// What the tests of all forms in UnitForms.h share: the ways into their dialogs.
#pragma once

#include "tests/dialogs/posunit/AxisWords.h"
#include "tests/dialogs/posunit/PosUnitTest.h"
#include "tests/dialogs/posunit/UnitForms.h"
#include "tests/resources/LanguageLibrary.h"
#include "tests/support/Sampled.h"

#include <span>

class CUnitFormTest : public CPosUnitTest
{
protected:
    using Texts = std::vector<CString>;

    /// A unit of four axes; the library's templates, which have the start output.
    CUnitFormTest();

    /// The texts and templates of the module or of a language.
    void Use(int source);

    int Open(const SUnitForm& form, std::vector<Scene> scenes);
    /// Opens a form, plays the scene and clicks OK, which must be accepted.
    void Confirm(const SUnitForm& form, const Scene& scene = {});
    /// Opens a form, plays the scene and leaves by Back.
    void Leave(const SUnitForm& form, const Scene& scene = {});
    /// Confirms by the way of a user, from the selection of the unit's operations.
    void ConfirmFromSelection(const SUnitForm& form, const Scene& scene, unsigned char axisFlag = 1);
    /// What the lists hold once the entries are confirmed.
    SResults Confirmed(const SUnitForm& form, const SUnitEntries& entries);

    /// Fills the entries in and clicks OK, which must do what the model says it does. A refusal leaves the lists alone.
    void Check(CDialogRobot& dialog, const SUnitForm& form, const SUnitEntries& entries);
    /// Opens a form for it, and leaves it when the entries are refused.
    void Check(const SUnitForm& form, const SUnitEntries& entries);
};

class CUnitFormsTest : public CUnitFormTest, public testing::WithParamInterface<SUnitForm>
{
};

/// Those that have a start output.
std::vector<SUnitForm> StartedForms();
std::string UnitFormName(const testing::TestParamInfo<SUnitForm>& info);

/// The module's template has no start output, that of the library has.
inline constexpr int kUnitSources[] = {kModule, kEnglish};
// For sweeps: both, or what has most of it where an opening takes long.
inline const std::span<const int> kSweptUnitSources =
    std::span(kUnitSources).last(IsThorough() ? std::size(kUnitSources) : 1);

/// Results that no confirmed dialog leaves.
SResults EarlierUnitResults();

/// Both states of the check box "same condition", or as a sample one of them where it does not matter.
std::vector<bool> SameOrNot(bool wanted);

/// The positions in the list of directions; or as a sample the last one.
std::vector<int> SweptDirections(const SUnitForm& form);

/// Entries with a start output.
SUnitEntries Started(const SUnitForm& form);

/// Fills the dialog in, typing what stands in its edits.
void FillIn(CDialogRobot& dialog, const SUnitForm& form, const SUnitEntries& entries);
/// Everything that stands in the dialog, as far as it has the controls.
void ExpectShown(CDialogRobot& dialog, const SUnitForm& form, const SUnitEntries& shown);
/// "(low - high)".
CString UnitRangeText(long long low, long long high);
