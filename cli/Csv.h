// Comma-separated values as RFC 4180 describes them.
#pragma once

#include <string>
#include <vector>

struct SCsvRecord
{
    int line = 0; ///< of the file, the first one that it stands in
    std::vector<std::string> cells;
    std::string problem; ///< why it could not be read; empty when it could
};

/// Lines may end with or without a carriage return; a byte order mark and empty lines are passed over. A record that is
/// wrong does not hide the others.
std::vector<SCsvRecord> ReadCsv(const std::string& text);

/// One record with its line break, cells quoted where they must be.
std::string CsvLine(const std::vector<std::string>& cells);
