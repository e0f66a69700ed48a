// How far a long work has come, in one line of a terminal.
#pragma once

#include <chrono>
#include <functional>
#include <string>

class CProgress
{
public:
    using CClock = std::chrono::steady_clock;

    /// Draws with `write`; without one, where nobody looks on, nothing at all.
    CProgress(int total, std::function<void(const std::string&)> write);
    ~CProgress();
    CProgress(const CProgress&) = delete;
    CProgress& operator=(const CProgress&) = delete;

    /// Some more is done. Draws a few times a second.
    void Advance(CClock::time_point now = CClock::now());
    /// Gives the line free for a message; the bar comes back below it.
    void Hide();

private:
    std::string Bar() const;

    int m_total;
    int m_done = 0;
    std::function<void(const std::string&)> m_write;
    bool m_isShown = false;
    CClock::time_point m_next;
};
