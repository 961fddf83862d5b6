#include "simulator/modem/ModemListener.h"

#include "simulator/modem/SimulatedModem.h"

#include <QTcpSocket>
#include <QTimer>

#include <sys/socket.h>

#include <chrono>

namespace tarvo {

namespace {

const QByteArray notUtf8 = "{\"ppp_status\":\"\xff\xfe\xc3\x28\"}";
constexpr qint64 endlessChunk = 64 << 10;
constexpr qsizetype endlessLine = 1000;
constexpr std::chrono::milliseconds betweenDrops{200};

QByteArray headOf(const ModemReply &reply, const QByteArray &furtherLines)
{
    return "HTTP/1.1 " + QByteArray::number(reply.status) + (reply.status < 300 ? " OK" : " Other")
        + "\r\nContent-Type: " + reply.contentType + "\r\n" + furtherLines + "\r\n";
}

QByteArray wholeAnswer(const ModemReply &reply, const QByteArray &furtherLines = {})
{
    return headOf(reply, furtherLines + "Content-Length: " + QByteArray::number(reply.body.size()) + "\r\n")
        + reply.body;
}

} // namespace

/// One client's connection; it goes when the client does.
class ModemListener::Connection final : public QObject {
public:
    Connection(ModemListener &owner, QTcpSocket *socket, quint64 number)
        : QObject(&owner)
        , m_owner(owner)
        , m_socket(socket)
        , m_number(number)
    {
        socket->setParent(this);
        connect(socket, &QTcpSocket::readyRead, this, &Connection::read);
        connect(socket, &QTcpSocket::bytesWritten, this, &Connection::writeOn);
        connect(socket, &QTcpSocket::disconnected, this, [this] { m_owner.forget(this); });
    }

    void read()
    {
        m_buffer += m_socket->readAll();
        if (m_owner.m_fault.kind == FaultKind::OneConnection && m_owner.m_connections.first() != this)
            return;
        ReceivedRequest request;
        TakeResult result;
        while ((result = takeRequest(m_buffer, request)) == TakeResult::Taken) {
            request.connection = m_number;
            ++m_requests;
            serve(request);
        }
        if (result == TakeResult::Malformed)
            m_socket->abort();
    }

private:
    void serve(const ReceivedRequest &request)
    {
        const ModemFault fault = m_owner.m_fault;
        const ModemReply reply = m_owner.m_modem.answer(request);
        if (request.holds(fault.part))
            sendWith(fault, reply);
        else
            m_socket->write(wholeAnswer(reply));
    }

    void sendWith(const ModemFault &fault, ModemReply reply)
    {
        switch (fault.kind) {
        case FaultKind::None:
        case FaultKind::OneConnection:
        case FaultKind::Refuse:
            m_socket->write(wholeAnswer(reply));
            return;
        case FaultKind::NoAnswer:
            return;
        case FaultKind::SlowAnswer:
            QTimer::singleShot(fault.delay, this, [this, reply] { m_socket->write(wholeAnswer(reply)); });
            return;
        case FaultKind::HalfAnswer:
            sendHalf(wholeAnswer(reply), reply.body.size());
            return;
        case FaultKind::EndlessAnswer:
            sendEndlessly(headOf(reply, "Connection: close\r\n"), QByteArray(endlessChunk, 'x'));
            return;
        case FaultKind::EndlessHead:
            sendEndlessly("HTTP/1.1 200 OK\r\n", "X: " + QByteArray(endlessLine, 'x') + "\r\n");
            return;
        case FaultKind::DrippingAnswer:
            drip(headOf(reply, "Connection: close\r\n"));
            return;
        case FaultKind::WrongBytes:
            reply.body = notUtf8;
            m_socket->write(wholeAnswer(reply));
            return;
        case FaultKind::CloseAtOnce:
            m_socket->disconnectFromHost();
            return;
        case FaultKind::ResetAtOnce:
            reset();
            return;
        case FaultKind::CloseKeptAlive:
            m_requests > 1 ? m_socket->disconnectFromHost() : void(m_socket->write(wholeAnswer(reply)));
            return;
        case FaultKind::Redirect:
            reply = {.status = 307, .body = {}};
            m_socket->write(wholeAnswer(reply, "Location: " + fault.text + "\r\n"));
            return;
        case FaultKind::Verbatim:
            m_socket->write(fault.text);
            return;
        }
    }

    void sendHalf(const QByteArray &answer, qsizetype bodySize)
    {
        m_socket->write(answer.left(answer.size() - (bodySize + 1) / 2));
        m_socket->disconnectFromHost();
    }

    void sendEndlessly(const QByteArray &start, const QByteArray &piece)
    {
        m_endless = piece;
        m_socket->write(start);
    }

    void drip(const QByteArray &start)
    {
        m_socket->write(start);
        auto *const drops = new QTimer(this);
        connect(drops, &QTimer::timeout, this, [this] { m_socket->write("x"); });
        drops->start(betweenDrops);
    }

    void reset()
    {
        const linger atOnce{.l_onoff = 1, .l_linger = 0};
        setsockopt(static_cast<int>(m_socket->socketDescriptor()), SOL_SOCKET, SO_LINGER, &atOnce, sizeof atOnce);
        m_socket->abort();
    }

    void writeOn()
    {
        while (!m_endless.isEmpty() && m_socket->isOpen() && m_socket->bytesToWrite() < endlessChunk)
            m_socket->write(m_endless);
    }

    ModemListener &m_owner;
    QTcpSocket *m_socket;
    quint64 m_number;
    int m_requests = 0;
    QByteArray m_endless; ///< sent again and again; empty for nothing
    QByteArray m_buffer;
};

ModemListener::ModemListener(SimulatedModem &modem, const QHostAddress &address, quint16 port)
    : m_modem(modem)
    , m_address(address)
    , m_port(port)
{
    connect(&m_server, &QTcpServer::newConnection, this, &ModemListener::accept);
}

std::optional<QString> ModemListener::listen()
{
    if (!m_server.listen(m_address, m_port))
        return m_server.errorString();
    m_port = m_server.serverPort();
    return std::nullopt;
}

void ModemListener::setFault(const ModemFault &fault)
{
    m_fault = fault;
    if (fault.kind == FaultKind::Refuse)
        close();
    else if (!m_server.isListening())
        listen();
}

void ModemListener::close()
{
    m_server.close();
    const auto sockets = findChildren<QTcpSocket *>();
    for (QTcpSocket *socket : sockets)
        socket->abort();
}

void ModemListener::accept()
{
    while (QTcpSocket *socket = m_server.nextPendingConnection())
        m_connections.append(new Connection(*this, socket, ++m_accepted));
}

void ModemListener::forget(Connection *connection)
{
    m_connections.removeOne(connection);
    connection->deleteLater();
    if (!m_connections.isEmpty())
        m_connections.first()->read(); // it may have waited for that
}

} // namespace tarvo
