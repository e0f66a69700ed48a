// The module-wide application name that PexloDll_SetAppName stores.
#pragma once

#include "afx/afx.h"

/// The caption of the library's message boxes; empty until the host sets it.
LPCSTR GetAppName();
