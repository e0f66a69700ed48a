// What the command line asks for.
#pragma once

#include "cli/Format.h"
#include "cli/Settings.h"

#include <optional>
#include <string>
#include <vector>

enum class ECommand
{
    List,
    Describe,
    Fill
};

struct SOptions
{
    ECommand command = ECommand::List;
    SSettings settings;
    EFormat format = EFormat::Text;
    std::string language; ///< its name
    std::string instruction;
    std::vector<pexlo::Entry> entries;
    std::string input; ///< a file, "-" for standard input, or empty
    bool records = false;
};

/// Says why the program ends without doing anything.
struct SUsage
{
    int exitCode;
    std::string text;
};

/// Either what to do, or what to say instead. Throws CFileError for what is named and does not exist.
std::optional<SUsage> ParseOptions(const std::vector<std::string>& arguments, SOptions& options);
