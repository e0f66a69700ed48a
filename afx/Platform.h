// The desktop that the MFC classes stand on, and the only place that asks which one it is: the real MFC when a build
// wants it, else the Windows API, else the same API over windows kept in memory.
#pragma once

#if defined(PEXLO_WITH_MFC)
#include <afxwin.h>

#include <afxtempl.h>
#elif defined(_WIN32)
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

#if defined(_WIN32)
#define AFX_EXPORT __declspec(dllexport)
#define AFX_IMPORT __declspec(dllimport)
#else
#define AFX_EXPORT
#define AFX_IMPORT
#endif
