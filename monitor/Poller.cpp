#include "monitor/Poller.h"

#include "modemapi/ModemClient.h"
#include "modemapi/StatusFields.h"
#include "monitor/RepeatingTimer.h"
#include "platform/SystemLog.h"

#include <QTimer>

#include <chrono>
#include <exception>
#include <utility>

namespace tarvo {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

Poller::Poller(const ConfigManager &settings, Clock &clock, SystemLog &systemLog, Steps steps)
    : m_settings(settings)
    , m_clock(clock)
    , m_systemLog(systemLog)
    , m_steps(std::move(steps))
{
}

Poller::~Poller() = default;

void Poller::start(const Work &work)
{
    const bool started = work.start([this](const Work &own) { newUpdateStatus(own); });
    if (!started && !work.isOver())
        QTimer::singleShot(1s, &m_context, [this, work] { start(work); });
}

void Poller::stop()
{
    modemStatusTimer_.reset();
    ifOpenUrlWhileDevicePlugIn_ = false;
}

void Poller::newUpdateStatus(const Work &work)
{
    m_systemLog.write(u"start newUpdateStatus"_s);
    const auto timer = timerFor(work);
    std::unique_ptr<ModemClient> client;
    while (timer && timer->waitForFire(work.stopToken()))
        timerHandler(timer, client, work);
}

/// @return the timer, made when there was none; null when the work is over
std::shared_ptr<RepeatingTimer> Poller::timerFor(const Work &work)
{
    std::shared_ptr<RepeatingTimer> timer;
    work.whileAttached([&] {
        if (!modemStatusTimer_) {
            ifOpenUrlWhileDevicePlugIn_ = true;
            modemStatusTimer_ = std::make_shared<RepeatingTimer>(m_clock, 1000ms);
        }
        timer = modemStatusTimer_;
    });
    return timer;
}

void Poller::timerHandler(const std::shared_ptr<RepeatingTimer> &timer, std::unique_ptr<ModemClient> &client,
                          const Work &work)
{
    bool ours = false;
    work.whileAttached([&] { ours = timer == modemStatusTimer_; });
    if (!ours || work.router().isEmpty())
        return;
    try {
        if (!client)
            client = std::make_unique<ModemClient>(work, m_settings, m_systemLog);
        updateModemStatus(*client);
    } catch (const std::exception &error) { // out of memory, say: the next pass may have more luck
        m_systemLog.write(u"a pass failed: "_s + QString::fromLocal8Bit(error.what()));
    }
}

void Poller::updateModemStatus(ModemClient &client)
{
    const std::optional<QString> page = client.statusPage();
    if (client.work().isOver())
        return;
    const bool isAnswered = page && isStatusPage(*page, m_settings);
    m_steps.answered(client.work(), isAnswered ? std::nullopt : std::optional(client.obstacle()));
    if (page)
        m_steps.pass(client, *page);
}

} // namespace tarvo
