// Filling in one job after the other.
#pragma once

#include "cli/InstructionNames.h"
#include "cli/Jobs.h"
#include "cli/Settings.h"
#include "core/pexlo.hpp"
#include "host/ResultLists.h"

#include <map>
#include <optional>
#include <string>
#include <vector>

/// Why a job was not filled in.
struct SComplaint
{
    std::string message; ///< as the user of the dialog would have seen it, or what is wrong with the job
    int messageId = 0;   ///< of the dialog's message; 0 when it was another reason
    int control = 0;     ///< 0 when no field is to blame
    std::string field;   ///< its name
    int row = 0;         ///< of a table, from 1; 0 when it is none
    int column = 0;

    /// In one line, with the field: "maximum-speed: ...".
    std::string Text() const;
};

struct SFilled
{
    int line = 0;            ///< of the job
    std::string instruction; ///< the name of the dialog
    std::optional<SComplaint> complaint;
    SResultLists lists;                  ///< when there is no complaint
    bool complete = false;               ///< whether the instruction sequence could be generated
    std::optional<unsigned> controlCode; ///< of the dialog that has this result and no lists
};

class CFiller
{
public:
    /// Of a wizard that was configured with these settings; both must stay.
    CFiller(pexlo::Wizard& wizard, const SSettings& settings);

    /// Nothing is carried over from the job before: fields that are not entered hold what a new dialog shows.
    SFilled Fill(const SJob& job);

    /// A refusal of these entries, with what would have been accepted in place of a name that does not exist.
    SComplaint Explain(const pexlo::Form& form, const std::vector<pexlo::Entry>& entries,
                       const pexlo::Refusal& refusal);

private:
    void Forget();
    std::string MissingItem(const pexlo::Form& form, const std::vector<pexlo::Entry>& entries,
                            const pexlo::Refusal& refusal);
    const std::vector<std::string>& FieldNames(const pexlo::Form& form);
    SResultLists ReadLists() const;

    pexlo::Wizard& m_wizard;
    const SSettings& m_settings;
    std::map<std::pair<int, int>, std::vector<std::string>> m_fieldNames; // by instruction and variant
};

/// The dialog of that name. Throws CFileError, which says what may have been meant.
SFormName NamedForm(const std::string& name);
