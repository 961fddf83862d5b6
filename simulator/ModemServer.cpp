#include "simulator/ModemServer.h"

#include "simulator/ModemListener.h"

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
        {u"bytes"_s, FaultKind::WrongBytes},
        {u"close"_s, FaultKind::CloseAtOnce},
        {u"close-kept"_s, FaultKind::CloseKeptAlive},
        {u"redirect"_s, FaultKind::Redirect},
        {u"refuse"_s, FaultKind::Refuse},
    };
    const auto kind = kinds.constFind(name);
    return kind == kinds.cend() ? std::nullopt : std::optional(*kind);
}

ModemServer::ModemServer(SimulatedModem &modem, const QHostAddress &address, quint16 port)
    : m_address(address)
    , m_listener(new ModemListener(modem, address, port))
{
    m_thread.setObjectName(u"modem"_s);
    m_listener->moveToThread(&m_thread);
    QObject::connect(&m_thread, &QThread::finished, m_listener, &QObject::deleteLater);
    m_thread.start();
    QMetaObject::invokeMethod(
        m_listener, [this] { m_error = m_listener->listen(); }, Qt::BlockingQueuedConnection);
    m_port = m_listener->port();
}

ModemServer::~ModemServer()
{
    m_thread.quit();
    m_thread.wait();
}

QString ModemServer::authority() const
{
    return u"%1:%2"_s.arg(m_address.toString()).arg(m_port);
}

void ModemServer::setFault(const ModemFault &fault)
{
    QMetaObject::invokeMethod(
        m_listener, [&] { m_listener->setFault(fault); }, Qt::BlockingQueuedConnection);
}

} // namespace tarvo
