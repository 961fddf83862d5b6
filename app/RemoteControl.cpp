#include "app/RemoteControl.h"

#include "app/MainController.h"
#include "status/StateReport.h"

#include <chrono>
#include <utility>

namespace tarvo {

using namespace Qt::StringLiterals;

RemoteControl::RemoteControl(MainController &controller, PublicInterface &others, Callbacks callbacks,
                             QVariantMap constant)
    : m_controller(controller)
    , m_others(others)
    , m_callbacks(std::move(callbacks))
    , m_constant(std::move(constant))
{
}

void RemoteControl::start()
{
    m_controller.setStateObserver([this] { publish(); });
    m_others.setHandlers(
        {.call = [this](const QString &method, const QVariantList &arguments) { return call(method, arguments); },
         .read = [this] { return lastAnswerReport(m_controller.device()); }});
}

void RemoteControl::publish()
{
    const Presentation &shown = m_controller.presentation();
    QVariantMap state = stateReport(shown.status(), m_controller.device(), shown.news(), shown.image());
    state.insert(m_constant);
    m_others.setProperties(state);
}

RemoteControl::Outcome RemoteControl::call(const QString &method, const QVariantList &arguments)
{
    if (method == u"OpenPage")
        return openPage(arguments);
    if (method == u"Setup")
        return openSetup();
    if (method == u"ShowStatus")
        m_controller.showStatus();
    else if (method == u"Quit")
        m_callbacks.quit();
    else
        return Outcome::NoSuchMethod;
    return Outcome::Done;
}

RemoteControl::Outcome RemoteControl::openPage(const QVariantList &arguments)
{
    const Page page = pageOfKind(arguments.value(0).toString());
    return mayOpen() && m_controller.openPage(page) ? Outcome::Done : Outcome::NotPossible;
}

RemoteControl::Outcome RemoteControl::openSetup()
{
    if (!m_callbacks.openSetup || !mayOpen())
        return Outcome::NotPossible;
    m_callbacks.openSetup();
    return Outcome::Done;
}

bool RemoteControl::mayOpen()
{
    constexpr std::chrono::seconds interval{2};
    if (m_sinceOpened.isValid() && !m_sinceOpened.hasExpired(std::chrono::milliseconds(interval).count()))
        return false;
    m_sinceOpened.start();
    return true;
}

} // namespace tarvo
