#include "attachment/Attachment.h"

#include "attachment/ThreadGroup.h"
#include "platform/StepQueue.h"

#include <mutex>
#include <utility>

namespace tarvo {

struct Work::State {
    const ModemLocation modem;
    ThreadGroup &threads;
    std::mutex mutex; ///< held while something is done on behalf of the modem, and while the work ends
    std::stop_source stop{};
};

Work::Work(ModemLocation modem, ThreadGroup &threads)
    : m_state(new State{.modem = std::move(modem), .threads = threads, .mutex = {}})
{
}

const QString &Work::router() const
{
    return m_state->modem.router;
}

const std::optional<QString> &Work::interfaceName() const
{
    return m_state->modem.interfaceName;
}

const SocketBinder &Work::bindSocket() const
{
    return m_state->modem.bindSocket;
}

std::stop_token Work::stopToken() const
{
    return m_state->stop.get_token();
}

bool Work::whileAttached(const std::function<void()> &step) const
{
    const std::scoped_lock lock(m_state->mutex);
    if (isOver())
        return false;
    step();
    return true;
}

void Work::post(StepQueue &queue, std::function<void()> step) const
{
    queue.post([work = *this, step = std::move(step)] {
        if (!work.isOver())
            step();
    });
}

bool Work::start(std::function<void(const Work &work)> body) const
{
    bool started = false;
    whileAttached([&] { started = m_state->threads.start([work = *this, body = std::move(body)] { body(work); }); });
    return started;
}

void Work::end() const
{
    const std::scoped_lock lock(m_state->mutex);
    m_state->stop.request_stop();
}

Attachment::Attachment(ModemLocation modem, ThreadGroup &threads)
    : m_work(std::move(modem), threads)
{
}

Attachment::~Attachment()
{
    m_work.end();
}

} // namespace tarvo
