#include "core/FunWizard.h"

#include <cstdio>

int main()
{
    CFunWizard wizard;
    const bool found = wizard.SetLanguageInfo(1) != nullptr;
    std::printf("Japanese %s, code page %u\n", found ? "found" : "missing", wizard.GetTextCodePage());
    return 0;
}
