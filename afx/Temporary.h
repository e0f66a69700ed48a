// Temporary objects for handles that no object of ours stands for, such as the controls of a dialog. They live until
// the message handler returns in which they were asked for, so that handlers can use them freely and nothing piles up.
// Within one handler a handle has one temporary object. The objects are used again and again: asking costs no memory.
// They never own what they stand for: what is left at the end of the program or library is let go, not destroyed.
#pragma once

#include "afx/afx.h"

#ifdef PEXLO_WITH_MFC

/// MFC releases its temporary objects itself, when the thread is idle.
class CTemporaryScope
{
public:
    CTemporaryScope() {}
};

#else

#include "afx/Gdi.h"
#include "afx/Window.h"

#include <deque>
#include <utility>

/// The temporary objects of one kind, as a stack. `Handle` is the member that holds the handle.
template <class T, auto Handle>
class CTemporaryObjects
{
public:
    CTemporaryObjects() : m_objects(64) {}
    /// Those that were asked for outside of all scopes are still there. Their handles are somebody else's.
    ~CTemporaryObjects()
    {
        m_base = 0;
        ReleaseAll();
    }
    CTemporaryObjects(const CTemporaryObjects&) = delete;
    CTemporaryObjects& operator=(const CTemporaryObjects&) = delete;

    template <class HANDLE_TYPE>
    T* FromHandle(HANDLE_TYPE handle)
    {
        if (!handle)
            return nullptr;
        for (size_t i = m_used; i-- > 0;)
        {
            if (m_objects[i].*Handle == handle)
                return &m_objects[i];
        }
        T& object = Next();
        object.*Handle = handle;
        return &object;
    }

    /// Releases, at its end, the objects that were asked for during its life.
    class CScope
    {
    public:
        explicit CScope(CTemporaryObjects& objects)
            : m_objects(objects), m_outerBase(std::exchange(objects.m_base, objects.m_used))
        {
        }
        ~CScope()
        {
            m_objects.ReleaseAll();
            m_objects.m_base = m_outerBase;
        }
        CScope(const CScope&) = delete;
        CScope& operator=(const CScope&) = delete;

    private:
        CTemporaryObjects& m_objects;
        size_t m_outerBase;
    };

    /// Releases those of the current scope.
    void ReleaseAll()
    {
        while (m_used > m_base)
            Release();
    }

private:
    static bool IsAlive(HWND window) { return ::IsWindow(window); }
    static bool IsAlive(HGDIOBJ object) { return ::GetObjectType(object) != 0; }

    void Release() { m_objects[--m_used].*Handle = nullptr; }

    // Outside of all scopes nothing is released in time: before more objects are made, those of dead handles are
    // dropped.
    T& Next()
    {
        if (m_used == m_objects.size())
        {
            while (m_used > m_base && !IsAlive(m_objects[m_used - 1].*Handle))
                Release();
        }
        if (m_used == m_objects.size())
            m_objects.emplace_back();
        return m_objects[m_used++];
    }

    std::deque<T> m_objects; // never moves its elements
    size_t m_used = 0;
    size_t m_base = 0; // what is used below this number belongs to outer scopes
};

struct STemporaries
{
    CTemporaryObjects<CWnd, &CWnd::m_hWnd> windows;
    CTemporaryObjects<CDC, &CDC::m_hDC> contexts;
    CTemporaryObjects<CGdiObject, &CGdiObject::m_hObject> gdiObjects;
};

/// Those of the calling thread.
STemporaries& AfxTemporaries();

/// Surrounds each message handler, each operation of the library, and whatever else may ask for temporary objects.
class CTemporaryScope
{
    decltype(STemporaries::windows)::CScope m_windows{AfxTemporaries().windows};
    decltype(STemporaries::contexts)::CScope m_contexts{AfxTemporaries().contexts};
    decltype(STemporaries::gdiObjects)::CScope m_gdiObjects{AfxTemporaries().gdiObjects};
};

#endif
