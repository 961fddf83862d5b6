#pragma once

#include <QObject>

#include <deque>
#include <functional>
#include <mutex>

namespace tarvo {

/// Carries steps to the thread that it lives on, whose event loop runs them one by one in the order of their coming.
///
/// Steps that have not run when the queue is destroyed never run.
class StepQueue final : public QObject {
    Q_OBJECT

public:
    /// Any thread.
    void post(std::function<void()> step);

private:
    Q_INVOKABLE void runNext();

    std::mutex m_mutex;
    std::deque<std::function<void()>> m_steps;
};

} // namespace tarvo
