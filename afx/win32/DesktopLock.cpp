#include "afx/DesktopLock.h"

CDesktopLock::CDesktopLock() = default;
CDesktopLock::~CDesktopLock() = default;

bool AfxHasScreen() { return true; }
