#pragma once

#include <QObject>
#include <QTimer>

#include <chrono>
#include <functional>
#include <memory>
#include <stop_token>
#include <utility>

namespace tarvo {

/// Runs work that may have to wait on threads of its own, and brings what comes of it to the thread that this object
/// lives on, which has an event loop.
class Background {
public:
    Background();
    /// Ends the work that can be ended, and gives the rest a moment. What it finds is not delivered any more.
    ~Background();
    Background(const Background &) = delete;
    Background &operator=(const Background &) = delete;

    /// Runs @p work on a new thread, then @p deliver with its result on this object's thread. Neither may hold on to
    /// anything that does not outlive the other thread.
    template <typename Result>
    void run(std::function<Result(std::stop_token stop)> work, std::function<void(const Result &result)> deliver)
    {
        start([work = std::move(work), deliver = std::move(deliver)](const std::stop_token &stop) {
            return [result = work(stop), deliver] { deliver(result); };
        });
    }

    /// The same, but delivers @p otherwise when there is no result after @p timeout. Work that cannot be ended goes on.
    template <typename Result>
    void runFor(std::chrono::milliseconds timeout, Result otherwise, std::function<Result(std::stop_token stop)> work,
                std::function<void(const Result &result)> deliver)
    {
        const std::function<void(const Result &)> deliverOnce = [delivered = std::make_shared<bool>(false),
                                                                 deliver = std::move(deliver)](const Result &result) {
            if (!std::exchange(*delivered, true))
                deliver(result);
        };
        run<Result>(std::move(work), deliverOnce);
        QTimer::singleShot(timeout, &m_timers,
                           [deliverOnce, otherwise = std::move(otherwise)] { deliverOnce(otherwise); });
    }

    /// @return whether work is still under way
    bool isBusy() const;

private:
    struct State;

    void start(std::function<std::function<void()>(const std::stop_token &stop)> work);

    std::shared_ptr<State> m_state;
    QObject m_timers; ///< what waits for it ends with it
};

} // namespace tarvo
