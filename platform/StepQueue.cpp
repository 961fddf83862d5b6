#include "platform/StepQueue.h"

#include <QMetaObject>

#include <utility>

namespace tarvo {

void StepQueue::post(std::function<void()> step)
{
    {
        const std::scoped_lock lock(m_mutex);
        m_steps.push_back(std::move(step));
    }
    // By name: the step itself travels under the lock, where a race detector can follow it.
    QMetaObject::invokeMethod(this, "runNext", Qt::QueuedConnection);
}

void StepQueue::runNext()
{
    std::function<void()> step;
    {
        const std::scoped_lock lock(m_mutex);
        step = std::move(m_steps.front());
        m_steps.pop_front();
    }
    step();
}

} // namespace tarvo
