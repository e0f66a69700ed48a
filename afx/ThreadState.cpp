#include "afx/ThreadState.h"

namespace
{

SThreadState firstThreads;

void NTAPI Release(void* state)
{
    if (state != &firstThreads)
        delete static_cast<SThreadState*>(state);
}

const CThreadPointer<SThreadState> states(Release);

// Static objects of other files may have asked before: then the state that was made for them is the thread's.
[[maybe_unused]] const bool isFirstSet = states.Get() == nullptr && states.Exchange(&firstThreads) == nullptr;

} // namespace

SThreadState& AfxThreadState()
{
    if (SThreadState* const state = states.Get())
        return *state;
    auto* const state = new SThreadState;
    states.Exchange(state);
    return *state;
}
