// AFX_API marks what the library exports: the wizard, and of MFC what its header shares with the hosts. Everything else
// is the library's own. The library's objects define PEXLO_BUILD, whoever links the objects directly defines
// PEXLO_STATIC, hosts of the DLL define nothing.
#pragma once

#include "afx/Platform.h"

#if defined(PEXLO_BUILD)
#define AFX_API AFX_EXPORT
#elif defined(PEXLO_STATIC)
#define AFX_API
#else
#define AFX_API AFX_IMPORT
#endif
