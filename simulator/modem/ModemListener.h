#pragma once

#include "simulator/modem/ModemServer.h"

#include <QHostAddress>
#include <QList>
#include <QObject>
#include <QTcpServer>

namespace tarvo {

struct ModemReply;
struct ReceivedRequest;
class SimulatedModem;

/// The half of the modem's server that lives on its thread.
class ModemListener final : public QObject {
public:
    /// Listens to nothing yet.
    /// @param modem  outlives this object
    /// @param port   0 takes any free port
    ModemListener(SimulatedModem &modem, const QHostAddress &address, quint16 port);

    /// @return why listening failed; nil when it did not
    std::optional<QString> listen();
    /// @return the port that is listened to
    quint16 port() const { return m_port; }
    /// From now on requests meet @p fault.
    void setFault(const ModemFault &fault);
    /// Closes everything.
    void close();

private:
    class Connection;

    void accept();
    void forget(Connection *connection);

    SimulatedModem &m_modem;
    const QHostAddress m_address;
    quint16 m_port;
    QTcpServer m_server{this};
    ModemFault m_fault;
    quint64 m_accepted = 0;
    QList<Connection *> m_connections; ///< that are open, the oldest first
};

} // namespace tarvo
