#include "app/PlugInWork.h"

namespace tarvo {

void PlugInWork::finish()
{
    end();
    m_threads.reset();
}

std::optional<QString> PlugInWork::router() const
{
    const QString router = m_attachment ? m_attachment->work().router() : QString();
    return router.isEmpty() ? std::nullopt : std::optional(router);
}

} // namespace tarvo
