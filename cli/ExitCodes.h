// What the program says to scripts.
#pragma once

constexpr int kAllFilled = 0;   ///< everything was done
constexpr int kSomeRefused = 1; ///< some entries were refused; the rest was done
constexpr int kWrongUsage = 2; ///< the command line or a file was wrong: nothing was done; or no results can be written
