#include "core/pexlo.h"

#include <stdio.h>

int main(void)
{
    const int version = Pexlo_GetVersion();
    PexloHandle wizard = Pexlo_Create();
    const int found = Pexlo_SetLanguageInfo(wizard, 1);
    printf("Version %d.%d.%d\n", version >> 16, version >> 8 & 0xff, version & 0xff);
    printf("Japanese %s, code page %d\n", found == 1 ? "found" : "missing", Pexlo_GetTextCodePage(wizard));
    return Pexlo_Destroy(wizard) == 1 ? 0 : 1;
}
