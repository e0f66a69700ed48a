// The reference points of scaling: a table of two columns, X and Y.
#pragma once

#include "dialogs/grid/GridField.h"

/// How the values of the points are stored.
struct SPointValues
{
    EDataType type;
    EConstantFormat format;
    double (*number)(LONGLONG value); ///< what a value counts as: X has to ascend
};

/// Where the number of points is entered, and what it is now.
struct SPointCount
{
    UINT edit;
    int points; ///< 0: no number that can be used
    int most;   ///< for which there are registers
};

/// All X and then all Y, from the register behind the number of points on. The number follows the table when rows are
/// added to it or deleted from it. Declared last.
void WDX_Points(CWzdExchange* wx, CGridDlg& dialog, const SPointValues& values, const SPointCount& count,
                CGridColumns columns);
