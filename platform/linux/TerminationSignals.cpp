#include "platform/linux/TerminationSignals.h"

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <atomic>
#include <cerrno>
#include <utility>

namespace tarvo {

namespace {

std::atomic<int> signalSink{-1};
static_assert(std::atomic<int>::is_always_lock_free, "a signal handler reads it");

void writeToSink(int)
{
    const int savedError = errno;
    // A full pipe will wake the reader as it is.
    [[maybe_unused]] const ssize_t written = ::write(signalSink, "", 1);
    errno = savedError;
}

void drain(int descriptor)
{
    std::array<char, 64> bytes;
    while (::read(descriptor, bytes.data(), bytes.size()) > 0) { }
}

} // namespace

TerminationSignals::TerminationSignals(std::function<void()> handler)
{
    std::array<int, 2> ends{};
    if (pipe2(ends.data(), O_NONBLOCK | O_CLOEXEC) != 0)
        return; // the signals then end the process at once, as they do by default
    m_readEnd = ends[0];
    m_writeEnd = ends[1];
    signalSink = m_writeEnd;
    m_notifier.emplace(m_readEnd, QSocketNotifier::Read);
    QObject::connect(&*m_notifier, &QSocketNotifier::activated, &*m_notifier,
                     [descriptor = m_readEnd, call = std::move(handler)] {
                         drain(descriptor);
                         call();
                     });
    for (const int signal : {SIGTERM, SIGINT, SIGHUP})
        handleSignal(signal);
}

TerminationSignals::~TerminationSignals()
{
    for (const Replaced &replaced : m_replaced)
        sigaction(replaced.signal, &replaced.action, nullptr);
    signalSink = -1;
    m_notifier.reset();
    for (const int end : {m_readEnd, m_writeEnd}) {
        if (end >= 0)
            close(end);
    }
}

void TerminationSignals::handleSignal(int signal)
{
    struct sigaction before { };
    sigaction(signal, nullptr, &before);
    if (before.sa_handler == SIG_IGN)
        return;
    struct sigaction action { };
    action.sa_handler = writeToSink;
    action.sa_flags = SA_RESTART;
    sigaction(signal, &action, nullptr);
    m_replaced.push_back({signal, before});
}

} // namespace tarvo
