// How the command line calls the dialogs: F168, F168:home, unit:jog, pid, screen, control-code.
#pragma once

#include <optional>
#include <string>
#include <vector>

struct SFormName
{
    const char* name;
    int instruction; ///< as PexloForm has it
    int variant;
};

/// Of all dialogs, whether a PLC has them or not.
const std::vector<SFormName>& FormNames();

/// By a name, in letters of either case, or by numbers: "168", "168:1", "151:10040". None when there is no such dialog.
std::optional<SFormName> FindForm(const std::string& text);

/// The name of a dialog, or its numbers when it has none.
std::string FormName(int instruction, int variant);
