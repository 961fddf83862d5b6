#pragma once

#include <QByteArray>

namespace tarvo {

/// The socket on which syslog takes lines. Used under a lock.
///
/// It speaks the form that syslog(3) writes, but never waits: syslog(3) does when nobody takes the lines.
class SyslogSocket {
public:
    /// @param path  of the datagram socket
    explicit SyslogSocket(QByteArray path);
    ~SyslogSocket();
    SyslogSocket(const SyslogSocket &) = delete;
    SyslogSocket &operator=(const SyslogSocket &) = delete;

    /// @return false when nobody takes the line at present
    bool write(const QByteArray &line);

private:
    bool isConnected();
    void disconnect();

    const QByteArray m_path;
    int m_socket = -1;
};

} // namespace tarvo
