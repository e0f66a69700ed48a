// What is to be seen while a session is played, but for its texts: it must be the same in every language.
#pragma once

#include "host/SessionPlayer.h"

#include <string>
#include <vector>

struct SSeenMessage
{
    std::string text; ///< as UTF-8
    std::string where;
};

struct SSeenSession
{
    bool success = false;
    std::string report; ///< of the player, in the words of the language
    /// After every step the focus, the selection, and the state of each control; after every run the lists.
    std::string log;
    std::vector<SSeenMessage> messages;
    std::vector<std::string> comments; ///< as UTF-8
};

/// Plays a session and looks on. Natively at every control of every dialog after every step; elsewhere, where that
/// takes as long as the session itself, after the steps that a message has answered.
SSeenSession SeeSession(const SSession& session);
