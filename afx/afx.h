// The part of MFC that the library is written against; with PEXLO_WITH_MFC the real one takes its place.
#pragma once

#include "afx/Export.h"

#ifndef PEXLO_WITH_MFC
#include "afx/Collections.h"
#include "afx/Controls.h"
#include "afx/Dialog.h"
#include "afx/Gdi.h"
#include "afx/Menu.h"
#include "afx/Object.h"
#include "afx/Resources.h"
#include "afx/String.h"
#include "afx/Window.h"
#endif
