// The texts of a table, to compare.
#pragma once

#include "dialogs/grid/GridModel.h"

#include <string>
#include <vector>

using GridTexts = std::vector<std::vector<std::string>>;

inline GridTexts TextsOf(const CGridModel& grid)
{
    GridTexts texts;
    for (int row = 0; row < grid.UsedRows(); ++row)
    {
        texts.emplace_back();
        for (int column = 0; column < grid.Columns(); ++column)
            texts.back().push_back(grid.Text({row, column}));
    }
    return texts;
}

/// A text that tells where it belongs: "3b".
inline std::string CellName(int row, int column) { return std::to_string(row) + static_cast<char>('a' + column); }
