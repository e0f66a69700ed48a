#include "afx/Console.h"

void AfxSetBinaryOutput() {} // it always does
