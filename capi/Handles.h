// The handles of the C interface: which are alive, whose they are, and what each stands for.
#pragma once

#include "afx/DesktopLock.h"
#include "core/FunWizard.h"
#include "core/Memory.h"
#include "core/pexlo.h"
#include "dialogs/unseen/FormDescriber.h"

#include <memory>

/// What a handle stands for.
struct SPexloObject
{
    std::unique_ptr<CFunWizard> wizard; ///< null when the handle was destroyed under an open dialog
    /// What Pexlo_DescribeFields has told last.
    std::string caption;
    std::vector<SFieldDescription> fields;
};

/// The use of a handle by one operation. While it lives the object is not freed: a handle that is destroyed from a
/// timer of an open dialog is dead at once, and what it stood for goes when its last operation ends.
class CHandleUse
{
public:
    explicit CHandleUse(PexloHandle handle);
    ~CHandleUse();

    CHandleUse(const CHandleUse&) = delete;
    CHandleUse& operator=(const CHandleUse&) = delete;

    /// 0, or the PEXLO_E_ with which the operation is to return.
    int Error() const { return m_error; }
    SPexloObject& Object() const { return *m_object; }
    CFunWizard& Wizard() const { return *m_object->wizard; }

    static PexloHandle Create();
    static int Destroy(PexloHandle handle);
    static int TakeOver(PexloHandle handle);

private:
    PexloHandle m_handle;
    SPexloObject* m_object = nullptr;
    int m_error = 0;
};

/// Runs an operation of the interface. Callers may not know what an exception is.
template <typename TOperation>
int RunGuarded(TOperation operation)
{
    try
    {
        return RunOperation(PEXLO_E_MEMORY, operation);
    }
    catch (...)
    {
        return PEXLO_E_MEMORY;
    }
}

/// Runs an operation on what a handle stands for: `operation` takes the object and returns the result.
template <typename TOperation>
int OnObject(PexloHandle handle, TOperation operation)
{
    const CDesktopLock desktop;
    const CHandleUse use(handle);
    if (use.Error() != 0)
        return use.Error();
    return RunGuarded([&]() -> int { return operation(use.Object()); });
}

/// The same on its wizard object alone.
template <typename TOperation>
int OnWizard(PexloHandle handle, TOperation operation)
{
    return OnObject(handle, [&](SPexloObject& object) -> int { return operation(*object.wizard); });
}

/// The same for an operation without a result.
template <typename TOperation>
int DoOnWizard(PexloHandle handle, TOperation operation)
{
    return OnWizard(handle, [&](CFunWizard& wizard) {
        operation(wizard);
        return 1;
    });
}

/// The window of a handle that a host passes, for the length of the operation; null when it is none.
inline CWnd* WindowOf(void* window)
{
    return ::IsWindow(static_cast<HWND>(window)) ? CWnd::FromHandle(static_cast<HWND>(window)) : nullptr;
}

/// Whether a number fits into the type in which the class takes it.
template <typename TNumber>
bool Fits(int number)
{
    return static_cast<int>(static_cast<TNumber>(number)) == number;
}
