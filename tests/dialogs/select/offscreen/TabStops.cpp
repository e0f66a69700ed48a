#include "tests/dialogs/select/TabStops.h"

#include "afx/offscreen/Desktop.h"

CTabStopWatch::CTabStopWatch() = default;
CTabStopWatch::~CTabStopWatch() = default;

std::vector<int> CTabStopWatch::Of(HWND list) const { return offscreen::TabStops(list); }
