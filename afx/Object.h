// The root of the class tree: run-time class information, exceptions, and the memory they all come from.
#pragma once

#include "afx/Export.h"

#include <cassert>
#include <cstddef>

#define afx_msg // marks message handlers

#define ASSERT(condition) assert(condition)

class CObject;

/// What is known about a class at run time. One constant record per class, made by DECLARE_DYNAMIC.
struct AFX_API CRuntimeClass
{
    LPCSTR m_lpszClassName;
    int m_nObjectSize; ///< in bytes
    UINT m_wSchema;    ///< 0xFFFF: not serializable
    CObject*(PASCAL* m_pfnCreateObject)();
    CRuntimeClass*(PASCAL* m_pfnGetBaseClass)(); ///< null for CObject
    CRuntimeClass* m_pNextClass;

    /// Whether the class is `base` or derived from it.
    BOOL IsDerivedFrom(const CRuntimeClass* base) const;
};

#define RUNTIME_CLASS(class_name) (const_cast<CRuntimeClass*>(&class_name::class##class_name))

/// Inside a class derived from CObject: declares its class record and makes IsKindOf know it.
#define DECLARE_DYNAMIC(class_name)                                                                                    \
public:                                                                                                                \
    static const CRuntimeClass class##class_name;                                                                      \
    static CRuntimeClass* PASCAL GetBaseRuntimeClass();                                                                \
    CRuntimeClass* GetRuntimeClass() const override;

/// In the source file of that class.
#define IMPLEMENT_DYNAMIC(class_name, base_class_name)                                                                 \
    CRuntimeClass* PASCAL class_name::GetBaseRuntimeClass() { return RUNTIME_CLASS(base_class_name); }                 \
    const CRuntimeClass class_name::class##class_name = {                                                              \
        #class_name, sizeof(class_name), 0xFFFF, nullptr, &class_name::GetBaseRuntimeClass, nullptr};                  \
    CRuntimeClass* class_name::GetRuntimeClass() const { return RUNTIME_CLASS(class_name); }

class AFX_API CObject
{
public:
    static const CRuntimeClass classCObject;
    virtual CRuntimeClass* GetRuntimeClass() const;
    BOOL IsKindOf(const CRuntimeClass* runtimeClass) const;

    virtual ~CObject() = default;

    /// Throws a CMemoryException when there is no memory.
    static void* operator new(size_t size);
    static void* operator new(size_t, void* place) { return place; }
    static void operator delete(void* object);
    static void operator delete(void*, void*) {}

    CObject(const CObject&) = delete;
    CObject& operator=(const CObject&) = delete;

protected:
    CObject() = default;
};

/// Exceptions are thrown by pointer. Who catches one and does not throw it again calls Delete.
class AFX_API CException : public CObject
{
    DECLARE_DYNAMIC(CException)

    /// `autoDelete`: the exception was made with new and belongs to the one who catches it.
    explicit CException(BOOL autoDelete = TRUE) : m_bAutoDelete(autoDelete) {}
    void Delete();

private:
    BOOL m_bAutoDelete;
};

/// There is no memory. The one object of it exists from the start.
class AFX_API CMemoryException : public CException
{
    DECLARE_DYNAMIC(CMemoryException)

    explicit CMemoryException(BOOL autoDelete = TRUE) : CException(autoDelete) {}
};

/// A system resource, such as a device context, was refused.
class AFX_API CResourceException : public CException
{
    DECLARE_DYNAMIC(CResourceException)

    explicit CResourceException(BOOL autoDelete = TRUE) : CException(autoDelete) {}
};

[[noreturn]] AFX_API void AfxThrowMemoryException();
[[noreturn]] void AfxThrowResourceException();

// All memory of objects, strings and containers passes through these. Without memory they throw a CMemoryException and
// change nothing.
AFX_API void* AfxAllocate(size_t size);
/// Resizes a block, moving its bytes when it must; a null block is allocated.
AFX_API void* AfxReallocate(void* block, size_t size);
/// Null is permitted.
AFX_API void AfxFree(void* block);

/// Asked before each allocation with its size in bytes, whether it is a CObject, and its running number. FALSE makes
/// the allocation fail.
typedef BOOL(PASCAL* AFX_ALLOC_HOOK)(size_t size, BOOL isObject, LONG requestNumber);

/// Installs a hook and returns the one before; null for none. For tests of what happens without memory.
AFX_ALLOC_HOOK AfxSetAllocHook(AFX_ALLOC_HOOK hook);
