#include "afx/Collections.h"

IMPLEMENT_DYNAMIC(CStringArray, CObject)
IMPLEMENT_DYNAMIC(CDWordArray, CObject)
