#include "cli/Progress.h"

#include <utility>

namespace
{
constexpr int kWidth = 40;
constexpr auto kInterval = std::chrono::milliseconds(100);
} // namespace

CProgress::CProgress(int total, std::function<void(const std::string&)> write)
    : m_total(total), m_write(std::move(write)), m_next(CClock::now() + kInterval)
{
}

CProgress::~CProgress() { Hide(); }

void CProgress::Advance(CClock::time_point now)
{
    ++m_done;
    if (!m_write || now < m_next)
        return;
    m_next = now + kInterval;
    m_isShown = true;
    m_write("\r" + Bar());
}

void CProgress::Hide()
{
    if (!m_isShown)
        return;
    m_isShown = false;
    m_write("\r" + std::string(Bar().size(), ' ') + "\r");
}

std::string CProgress::Bar() const
{
    const auto filled = static_cast<size_t>(static_cast<long long>(kWidth) * m_done / m_total);
    return "[" + std::string(filled, '#') + std::string(kWidth - filled, ' ') + "] " + std::to_string(m_done) + " of " +
           std::to_string(m_total);
}
