#pragma once

#include "afx/offscreen/Desktop.h"

// The ANSI code page of the system, as long as the object lives.
class CUseCodePage
{
public:
    explicit CUseCodePage(UINT codePage) { offscreen::SetCodePage(codePage); }
    ~CUseCodePage() { offscreen::SetCodePage(1252); }
    CUseCodePage(const CUseCodePage&) = delete;
    CUseCodePage& operator=(const CUseCodePage&) = delete;
};
