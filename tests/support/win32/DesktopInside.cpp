#include "tests/support/DesktopInside.h"

// The system allocates by itself.
bool IsInsideDesktop() { return false; }
