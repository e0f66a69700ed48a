#include "tests/robust/Holdings.h"

#include "afx/offscreen/Desktop.h"

#include <malloc.h>

#if defined(__SANITIZE_ADDRESS__)
extern "C" size_t __sanitizer_get_current_allocated_bytes(); // the compiler brings no header for it
#endif

Holdings CurrentHoldings()
{
    const offscreen::Counts live = offscreen::Live();
    return {{"windows", live.windows},   {"fonts", live.fonts},         {"brushes", live.brushes},
            {"pens", live.pens},         {"device contexts", live.dcs}, {"menus", live.menus},
            {"libraries", live.modules}, {"timers", live.timers},       {"globals", live.globals},
            {"registry keys", live.keys}};
}

size_t AllocatedBytes()
{
#if defined(__SANITIZE_ADDRESS__)
    return __sanitizer_get_current_allocated_bytes();
#else
    return mallinfo2().uordblks;
#endif
}
