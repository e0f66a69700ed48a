#include "afx/Console.h"

#include <cstdio>
#include <fcntl.h>
#include <io.h>

void AfxSetBinaryOutput()
{
    std::fflush(stdout);
    _setmode(_fileno(stdout), _O_BINARY);
}
