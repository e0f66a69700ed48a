#pragma once

// The Win32 API: the system's own on Windows, the offscreen desktop's elsewhere. The only place that asks which.

#ifdef _WIN32
#ifndef STRICT
#define STRICT
#endif
#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>
#include <direct.h>
#else
#include "afx/offscreen/Win32.h"
#endif
