#include "platform/linux/process/Restart.h"

#include "platform/linux/process/InheritedDescriptors.h"

#include <QCoreApplication>

#include <sys/prctl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>

namespace tarvo {

namespace {

using namespace std::chrono_literals;
using std::chrono::milliseconds;
using std::chrono::steady_clock;

constexpr milliseconds pauseBetween = 10s;
constexpr const char *variable = "TARVO_RESTARTED"; // when that was last done, as `now` tells it

/// @return the time on a clock that goes on while another program is executed
milliseconds now()
{
    return std::chrono::duration_cast<milliseconds>(steady_clock::now().time_since_epoch());
}

} // namespace

Restart::Restart()
    : m_last(std::min(milliseconds(qgetenv(variable).toLongLong()), now()))
{
    if (qEnvironmentVariableIsSet(variable))
        prctl(PR_SET_NAME, program_invocation_short_name); // it is "exe" at first
    qunsetenv(variable);
    m_timer.setSingleShot(true);
    QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [] { QCoreApplication::exit(exitStatus); });
}

void Restart::request()
{
    endIn(std::max(m_last + pauseBetween - now(), 0ms));
}

void Restart::requestLater()
{
    endIn(pauseBetween);
}

void Restart::endIn(milliseconds pause)
{
    if (!m_timer.isActive() || m_timer.remainingTimeAsDuration() > pause)
        m_timer.start(pause);
}

void Restart::execute(char **argv)
{
    qputenv(variable, QByteArray::number(qint64(now().count())));
    closeDescriptorsOnExec();
    execv("/proc/self/exe", argv);
}

} // namespace tarvo
