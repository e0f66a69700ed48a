#include "tests/robust/CodePage.h"

#include "afx/offscreen/Desktop.h"

void UseCodePage(unsigned codePage) { offscreen::SetCodePage(codePage); }
