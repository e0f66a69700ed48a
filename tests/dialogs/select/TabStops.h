// The tab stops that list boxes are given.
#pragma once

#include "afx/afx.h"

#include <vector>

/// Knows the tab stops of the list boxes that are given some while it lives. Objects do not nest.
class CTabStopWatch
{
public:
    CTabStopWatch();
    ~CTabStopWatch();
    CTabStopWatch(const CTabStopWatch&) = delete;
    CTabStopWatch& operator=(const CTabStopWatch&) = delete;

    /// In dialog units; none when the list was given none.
    std::vector<int> Of(HWND list) const;
};
