#pragma once

#include <QByteArray>
#include <QString>

namespace tarvo {

/// Finds out whether a message bus answers at all, by greeting it over a connection of its own.
///
/// D-Bus libraries wait without end for a bus that listens and never answers. Nothing here waits.
class BusProbe {
public:
    enum class State {
        Absent, ///< nothing listens there, or it hung up
        Mute, ///< it has not answered yet
        Answered,
    };

    /// Greets the bus.
    /// @param address  D-Bus specification, "Server Addresses"; only Unix sockets are looked at
    explicit BusProbe(const QString &address);
    ~BusProbe();
    BusProbe(const BusProbe &) = delete;
    BusProbe &operator=(const BusProbe &) = delete;

    /// Takes in what the bus has said meanwhile.
    State update();

    /// @return readable when the state may have changed; -1 when that cannot happen any more. A bus that is mute by then
    ///         takes no more connections for now.
    int descriptor() const { return m_socket; }

private:
    bool connectTo(const QByteArray &name);
    void greet();
    void hangUp(State state);

    int m_socket = -1;
    State m_state = State::Absent;
    QByteArray m_answer;
};

} // namespace tarvo
