/* Compiled and linked as Visual C++ would, without any run-time library: what is tested is Pexlo.lib. */
#include "core/pexlo.h"

__declspec(dllimport) __declspec(noreturn) void __stdcall ExitProcess(unsigned int code);

/* Ends with 0 when the calls reach the library and the stack is as it was, else with the step that failed. */
void start(void)
{
    PexloHandle wizard = Pexlo_Create();
    int low = 0;
    int high = 0;
    if (!wizard)
        ExitProcess(1);
    if (Pexlo_SetDevRange(wizard, -1, 9, 0, 32764) != 1)
        ExitProcess(2);
    if (Pexlo_GetDevRange(wizard, -1, 9, &low, &high) != 1 || low != 0 || high != 32764)
        ExitProcess(3);
    if (Pexlo_Destroy(wizard) != 1)
        ExitProcess(4);
    ExitProcess(0);
}
