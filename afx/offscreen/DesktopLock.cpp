#include "afx/DesktopLock.h"

#include <mutex>

namespace
{

std::recursive_mutex guard;

} // namespace

CDesktopLock::CDesktopLock() { guard.lock(); }
CDesktopLock::~CDesktopLock() { guard.unlock(); }

bool AfxHasScreen() { return false; }
