#include "status/NewsHistory.h"

namespace tarvo {

void NewsHistory::add(const StandingNews &news, const QDateTime &time)
{
    m_news.prepend({time, news});
    m_news.resize(qMin(m_news.size(), longest));
}

} // namespace tarvo
