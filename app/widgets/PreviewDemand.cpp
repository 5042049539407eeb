#include "PreviewDemand.h"

PreviewDemand& PreviewDemand::instance()
{
    static PreviewDemand demand;
    return demand;
}

void PreviewDemand::setShown(const QObject* preview, bool shown)
{
    const bool before = !m_shown.isEmpty();
    if (shown)
        m_shown.insert(preview);
    else
        m_shown.remove(preview);
    const bool now = !m_shown.isEmpty();
    m_wanted.store(now, std::memory_order_relaxed);
    if (now && !before)
        emit wanted();
}
