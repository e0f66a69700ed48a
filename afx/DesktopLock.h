// The desktop is one for all threads. That of the system looks after itself; the one in memory serves one thread at a
// time.
#pragma once

/// Held by every operation of the interface that any thread may call. Locks of one thread nest.
class CDesktopLock
{
public:
    CDesktopLock();
    ~CDesktopLock();

    CDesktopLock(const CDesktopLock&) = delete;
    CDesktopLock& operator=(const CDesktopLock&) = delete;
};

/// Whether dialogs can be shown to a user.
bool AfxHasScreen();
