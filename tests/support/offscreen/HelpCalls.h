// The help control of the tests: it records what it is asked to show.
#pragma once

#include "afx/afx.h"

#include <string>
#include <vector>

struct SHelpCall
{
    HWND owner;
    std::string path;
    UINT command;
    DWORD_PTR topic;
};

/// What has been asked for since a test emptied the list.
std::vector<SHelpCall>& HelpCalls();
