#include "tests/support/DesktopInside.h"

#include "afx/offscreen/Desktop.h"

bool IsInsideDesktop() { return offscreen::IsInside(); }
