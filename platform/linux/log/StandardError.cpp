#include "platform/linux/log/StandardError.h"

#include <QList>

#include <fcntl.h>
#include <poll.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <ctime>

namespace tarvo {

namespace {

/// Keeps the signal of a pipe that nobody reads from the process, without changing what started programs inherit.
class PipeSignalHeld {
public:
    PipeSignalHeld()
    {
        sigset_t pending;
        sigpending(&pending);
        m_wasPending = sigismember(&pending, SIGPIPE) == 1;
        sigemptyset(&m_signal);
        sigaddset(&m_signal, SIGPIPE);
        pthread_sigmask(SIG_BLOCK, &m_signal, &m_before);
    }

    ~PipeSignalHeld()
    {
        const timespec atOnce{};
        while (!m_wasPending && sigtimedwait(&m_signal, nullptr, &atOnce) < 0 && errno == EINTR) { }
        pthread_sigmask(SIG_SETMASK, &m_before, nullptr);
    }

    PipeSignalHeld(const PipeSignalHeld &) = delete;
    PipeSignalHeld &operator=(const PipeSignalHeld &) = delete;

private:
    sigset_t m_signal{};
    sigset_t m_before{};
    bool m_wasPending = false;
};

bool isJournal(const struct stat &status)
{
    const QList<QByteArray> journal = qgetenv("JOURNAL_STREAM").split(':');
    return journal.size() == 2 && journal[0].toULongLong() == status.st_dev
        && journal[1].toULongLong() == status.st_ino;
}

bool takesBytes(int descriptor)
{
    pollfd state{.fd = descriptor, .events = POLLOUT, .revents = 0};
    return poll(&state, 1, 0) == 1 && state.revents == POLLOUT;
}

} // namespace

StandardError::StandardError()
{
    struct stat status { };
    if (fstat(STDERR_FILENO, &status) != 0)
        return;
    m_wanted = !isJournal(status);
    m_isSocket = S_ISSOCK(status.st_mode);
    if (S_ISFIFO(status.st_mode) || S_ISCHR(status.st_mode))
        m_own = open("/proc/self/fd/2", O_WRONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
}

StandardError::~StandardError()
{
    if (m_own >= 0)
        close(m_own);
}

bool StandardError::write(const QByteArray &bytes) const
{
    const auto size = static_cast<size_t>(bytes.size());
    if (m_isSocket)
        return send(STDERR_FILENO, bytes.constData(), size, MSG_DONTWAIT | MSG_NOSIGNAL) == bytes.size();
    const int descriptor = m_own >= 0 ? m_own : STDERR_FILENO;
    if (!takesBytes(descriptor))
        return false;
    const PipeSignalHeld held;
    return ::write(descriptor, bytes.constData(), size) == bytes.size();
}

} // namespace tarvo
