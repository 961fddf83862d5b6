#include "simulator/modem/ModemServer.h"

#include "platform/StepQueue.h"
#include "simulator/modem/ModemListener.h"

#include <QEventLoop>
#include <QMap>

namespace tarvo {

using namespace Qt::StringLiterals;

std::optional<FaultKind> faultKind(const QString &name)
{
    static const QMap<QString, FaultKind> kinds{
        {u"none"_s, FaultKind::None},
        {u"silent"_s, FaultKind::NoAnswer},
        {u"slow"_s, FaultKind::SlowAnswer},
        {u"half"_s, FaultKind::HalfAnswer},
        {u"endless"_s, FaultKind::EndlessAnswer},
        {u"endless-head"_s, FaultKind::EndlessHead},
        {u"drip"_s, FaultKind::DrippingAnswer},
        {u"bytes"_s, FaultKind::WrongBytes},
        {u"close"_s, FaultKind::CloseAtOnce},
        {u"reset"_s, FaultKind::ResetAtOnce},
        {u"close-kept"_s, FaultKind::CloseKeptAlive},
        {u"one"_s, FaultKind::OneConnection},
        {u"redirect"_s, FaultKind::Redirect},
        {u"refuse"_s, FaultKind::Refuse},
    };
    const auto kind = kinds.constFind(name);
    return kind == kinds.cend() ? std::nullopt : std::optional(*kind);
}

ModemServer::ModemServer(SimulatedModem &modem, const QHostAddress &address, quint16 port)
    : m_address(address)
{
    std::promise<void> started;
    m_thread = std::thread([&, port] { serve(modem, port, started); });
    started.get_future().wait();
}

ModemServer::~ModemServer()
{
    m_steps->post([this] { m_loop->quit(); });
    m_thread.join();
}

void ModemServer::serve(SimulatedModem &modem, quint16 port, std::promise<void> &started)
{
    ModemListener listener(modem, m_address, port);
    StepQueue steps;
    QEventLoop loop;
    m_listener = &listener;
    m_steps = &steps;
    m_loop = &loop;
    m_error = listener.listen();
    m_port = listener.port();
    started.set_value();
    loop.exec();
}

void ModemServer::onThread(const std::function<void()> &step)
{
    std::promise<void> done;
    m_steps->post([&] {
        step();
        done.set_value();
    });
    done.get_future().wait();
}

QString ModemServer::authority() const
{
    return u"%1:%2"_s.arg(m_address.toString()).arg(m_port);
}

void ModemServer::setFault(const ModemFault &fault)
{
    onThread([&] { m_listener->setFault(fault); });
}

} // namespace tarvo
