#include "afx/Object.h"

#include <cstdlib>

namespace
{
AFX_ALLOC_HOOK allocHook = nullptr;
LONG allocRequests = 0;

void* Reallocate(void* block, size_t size, BOOL isObject)
{
    if (allocHook && !allocHook(size, isObject, ++allocRequests))
        AfxThrowMemoryException();
    void* moved = std::realloc(block, size ? size : 1);
    if (!moved)
        AfxThrowMemoryException();
    return moved;
}
} // namespace

void* AfxAllocate(size_t size) { return Reallocate(nullptr, size, FALSE); }

void* AfxReallocate(void* block, size_t size) { return Reallocate(block, size, FALSE); }

void AfxFree(void* block) { std::free(block); }

AFX_ALLOC_HOOK AfxSetAllocHook(AFX_ALLOC_HOOK hook)
{
    const AFX_ALLOC_HOOK previous = allocHook;
    allocHook = hook;
    return previous;
}

BOOL CRuntimeClass::IsDerivedFrom(const CRuntimeClass* base) const
{
    for (const CRuntimeClass* one = this; one; one = one->m_pfnGetBaseClass ? one->m_pfnGetBaseClass() : nullptr)
    {
        if (one == base)
            return TRUE;
    }
    return FALSE;
}

const CRuntimeClass CObject::classCObject = {"CObject", sizeof(CObject), 0xFFFF, nullptr, nullptr, nullptr};

CRuntimeClass* CObject::GetRuntimeClass() const { return RUNTIME_CLASS(CObject); }

BOOL CObject::IsKindOf(const CRuntimeClass* runtimeClass) const
{
    return GetRuntimeClass()->IsDerivedFrom(runtimeClass);
}

void* CObject::operator new(size_t size) { return Reallocate(nullptr, size, TRUE); }

void CObject::operator delete(void* object) { AfxFree(object); }

IMPLEMENT_DYNAMIC(CException, CObject)
IMPLEMENT_DYNAMIC(CMemoryException, CException)
IMPLEMENT_DYNAMIC(CResourceException, CException)

void CException::Delete()
{
    if (m_bAutoDelete)
        delete this;
}

// Never freed, so that a failure can be reported whatever else is left.
void AfxThrowMemoryException()
{
    static CMemoryException exception(FALSE);
    throw &exception;
}

void AfxThrowResourceException()
{
    static CResourceException exception(FALSE);
    throw &exception;
}
