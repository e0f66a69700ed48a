#include "tests/robust/CodePage.h"

// The system's is given by the environment that the process starts in.
void UseCodePage(unsigned) {}
