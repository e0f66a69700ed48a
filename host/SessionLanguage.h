// Playing a session in another language than it was recorded in.
#pragma once

#include "host/Session.h"

/// The same session for the dialogs of another language: its items are selected by their places, and its pictures have
/// the names that they have in its own language. Plays it to find both. Throws CSessionError when it fails.
SSession InLanguage(const SSession& session, int language);
