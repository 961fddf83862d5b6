#include "platform/Background.h"

#include "platform/StepQueue.h"

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <thread>
#include <utility>

namespace tarvo {

namespace {

constexpr std::chrono::milliseconds endTimeout{500};

} // namespace

/// Outlives the object for as long as a thread runs.
struct Background::State {
    std::stop_source stop;
    std::mutex mutex;
    std::condition_variable ended;
    std::unique_ptr<StepQueue> results = std::make_unique<StepQueue>(); ///< null when nobody waits any more
    int running = 0;
};

Background::Background()
    : m_state(std::make_shared<State>())
{
}

Background::~Background()
{
    m_state->stop.request_stop();
    std::unique_lock lock(m_state->mutex);
    m_state->ended.wait_for(lock, endTimeout, [this] { return m_state->running == 0; });
    m_state->results.reset();
}

bool Background::isBusy() const
{
    const std::scoped_lock lock(m_state->mutex);
    return m_state->running > 0;
}

void Background::start(std::function<std::function<void()>(const std::stop_token &stop)> work)
{
    {
        const std::scoped_lock lock(m_state->mutex);
        ++m_state->running;
    }
    // A detached thread: some of what is waited for cannot be told to end.
    std::thread([state = m_state, task = std::move(work)] {
        auto deliver = task(state->stop.get_token());
        const std::scoped_lock lock(state->mutex);
        if (state->results)
            state->results->post(std::move(deliver));
        --state->running;
        state->ended.notify_all();
    }).detach();
}

} // namespace tarvo
