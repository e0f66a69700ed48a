// What command-line programs need of their console.
#pragma once

#include "afx/Export.h"

/// From now on standard output takes bytes as they are: "\n" stays one character on Windows too.
void AfxSetBinaryOutput();
