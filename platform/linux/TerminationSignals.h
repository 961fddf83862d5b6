#pragma once

#include <QSocketNotifier>

#include <csignal>
#include <functional>
#include <optional>
#include <vector>

namespace tarvo {

/// Turns SIGTERM, SIGINT and SIGHUP into a call on the thread that made the object, from its event loop.
///
/// A signal that was ignored stays ignored, as under nohup(1). At most one object at a time; when it goes, the signals
/// do again what they did before.
class TerminationSignals {
public:
    explicit TerminationSignals(std::function<void()> handler);
    ~TerminationSignals();
    TerminationSignals(const TerminationSignals &) = delete;
    TerminationSignals &operator=(const TerminationSignals &) = delete;

private:
    struct Replaced {
        int signal;
        struct sigaction action;
    };

    void handleSignal(int signal);

    int m_readEnd = -1;
    int m_writeEnd = -1;
    std::vector<Replaced> m_replaced;
    std::optional<QSocketNotifier> m_notifier;
};

} // namespace tarvo
