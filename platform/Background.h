#pragma once

#include <functional>
#include <memory>
#include <stop_token>

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

    /// @return whether work is still under way
    bool isBusy() const;

private:
    struct State;

    void start(std::function<std::function<void()>(const std::stop_token &stop)> work);

    std::shared_ptr<State> m_state;
};

} // namespace tarvo
