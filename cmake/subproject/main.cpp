#include "core/FunWizard.h"

int main()
{
    CFunWizard wizard;
    wizard.SetPlcType(1);
    return wizard.GetDataInfoCount();
}
