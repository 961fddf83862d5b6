#include "platform/linux/process/TerminationSignals.h"

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <utility>

namespace tarvo {

namespace {

constexpr unsigned secondsToEnd = 3;

std::atomic<int> signalSink{-1};
static_assert(std::atomic<int>::is_always_lock_free, "a signal handler reads it");
std::atomic_flag ending;

void writeToSink(int)
{
    const int savedError = errno;
    if (!ending.test_and_set())
        alarm(secondsToEnd);
    // A full pipe will wake the reader as it is.
    [[maybe_unused]] const ssize_t written = ::write(signalSink, "", 1);
    errno = savedError;
}

void drain(int descriptor)
{
    std::array<char, 64> bytes;
    while (::read(descriptor, bytes.data(), bytes.size()) > 0) { }
}

void handle(int signal)
{
    struct sigaction before { };
    sigaction(signal, nullptr, &before);
    if (before.sa_handler == SIG_IGN)
        return;
    struct sigaction action { };
    action.sa_handler = writeToSink;
    action.sa_flags = SA_RESTART;
    sigaction(signal, &action, nullptr);
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
        handle(signal);
}

TerminationSignals::~TerminationSignals()
{
    signalSink = -1;
    m_notifier.reset();
    for (const int end : {m_readEnd, m_writeEnd}) {
        if (end >= 0)
            close(end);
    }
}

} // namespace tarvo
