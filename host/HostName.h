#pragma once

/// The program's name, which also captions the message boxes of the wizards.
constexpr const char* kHostName = "LadderHost";
