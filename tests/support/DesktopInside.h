#pragma once

/// True while the desktop's own code runs, where it is part of the test program.
bool IsInsideDesktop();
