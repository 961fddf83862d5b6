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

/// @return the ends to read and to write. They are never closed: a handler on another thread may be about to write, which
/// would end the process by SIGPIPE when nobody could read that
std::array<int, 2> openPipe()
{
    std::array<int, 2> ends{};
    return pipe2(ends.data(), O_NONBLOCK | O_CLOEXEC) == 0 ? ends : std::array{-1, -1};
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
    static const std::array<int, 2> ends = openPipe();
    if (ends[0] < 0)
        return; // the signals then end the process at once, as they do by default
    drain(ends[0]);
    signalSink = ends[1];
    m_notifier.emplace(ends[0], QSocketNotifier::Read);
    QObject::connect(&*m_notifier, &QSocketNotifier::activated, &*m_notifier, [call = std::move(handler)] {
        drain(ends[0]);
        call();
    });
    for (const int signal : {SIGTERM, SIGINT, SIGHUP})
        handle(signal);
}

TerminationSignals::~TerminationSignals()
{
    signalSink = -1;
    m_notifier.reset();
}

} // namespace tarvo
