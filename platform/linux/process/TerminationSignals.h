#pragma once

#include <QSocketNotifier>

#include <functional>
#include <optional>

namespace tarvo {

/// Turns SIGTERM, SIGINT and SIGHUP into a call on the thread that made the object, from its event loop.
///
/// A signal that was ignored stays ignored, as under nohup(1). At most one object at a time. When it goes, the signals do
/// nothing: a process that is about to end is not to be ended in between. Should it not come to its end after a signal, as
/// when a library waits for something, it is ended by SIGALRM a few seconds later.
class TerminationSignals {
public:
    explicit TerminationSignals(std::function<void()> handler);
    ~TerminationSignals();
    TerminationSignals(const TerminationSignals &) = delete;
    TerminationSignals &operator=(const TerminationSignals &) = delete;

private:
    std::optional<QSocketNotifier> m_notifier;
};

} // namespace tarvo
