// What the recorded sessions come to when the same is entered without windows.
#pragma once

#include "host/SessionPlayer.h"
#include "tests/capi/Capi.h"

#include <map>
#include <optional>

/// What a user had entered when he pressed OK, and what he was told.
struct SPressedOk
{
    CTextEntries entries;
    std::string message;     ///< empty when it was accepted
    unsigned control = 0;    ///< that has the focus after a message, when it is a field
    int row = 0, column = 0; ///< of the current cell of the table, from 1, when that is refused
};

/// One opening of a wizard, as it went.
struct SSeenRun
{
    int result = 0;
    SResults results;
    int instruction = 0;
    int variant = 0;
    int axisFlag = 0;
    int commentsOn = 0;
    int onlyDataTable = 0;
    unsigned controlCode = 0;
    std::vector<SPressedOk> presses;
};

/// Plays a session and takes down the openings. Throws std::runtime_error when it does not play as recorded.
std::vector<SSeenRun> SeeRuns(const SSession& session);

/// The form of a run, as a host that does not see the dialog passes it.
PexloForm FormOf(const SRun& run, const SSeenRun& seen);
