// What is to be filled in: one instruction with the entries of its fields, from the command line or from a file of
// many.
#pragma once

#include "core/pexlo.hpp"

#include <optional>
#include <string>
#include <vector>

struct SJob
{
    int line = 0; ///< of the file; 0 when it came with the command line
    std::string instruction;
    std::vector<pexlo::Entry> entries;
    std::string problem; ///< why it could not be read; empty when it could
};

/// A field by its name or, when it is a number, by the id of its control.
pexlo::Entry MakeEntry(const std::string& field, const std::string& text);
/// "name=value"; none without a name or "=".
std::optional<pexlo::Entry> ParseEntry(const std::string& text);

// Files: README.md describes both forms. A job that cannot be read is one with a problem; a file that is neither throws
// CFileError. Jobs that name no instruction are for `instruction`, which may be empty.

/// A header with the names of the fields, and a job in each line; empty cells are not entered.
std::vector<SJob> ReadCsvJobs(const std::string& text, const std::string& instruction);
/// A list of {"instruction": "F168", "set": {"maximum-speed": 9500}}.
std::vector<SJob> ReadJsonJobs(const std::string& text, const std::string& instruction);
/// The one or the other, as the file begins.
std::vector<SJob> ReadJobs(const std::string& text, const std::string& instruction);

/// Makes the same entries in every job, but for the fields that it enters itself.
void EnterEverywhere(std::vector<SJob>& jobs, const std::vector<pexlo::Entry>& entries);
