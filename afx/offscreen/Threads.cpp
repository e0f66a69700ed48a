// Storage of each thread: the system's own.

#include "afx/offscreen/Win32.h"

#include <pthread.h>

static_assert(sizeof(pthread_key_t) == sizeof(DWORD));

DWORD FlsAlloc(PFLS_CALLBACK_FUNCTION callback)
{
    pthread_key_t key = 0;
    return pthread_key_create(&key, callback) == 0 ? key : FLS_OUT_OF_INDEXES;
}

// On Windows the callback gets what other threads have stored, too; here these hand it over when they end.
BOOL FlsFree(DWORD slot) { return pthread_key_delete(slot) == 0; }

void* FlsGetValue(DWORD slot) { return pthread_getspecific(slot); }

BOOL FlsSetValue(DWORD slot, void* data) { return pthread_setspecific(slot, data) == 0; }
