#pragma once

#include <QByteArray>

#include <optional>

namespace tarvo {

/// Keeps Qt from a session bus that listens and does not answer.
///
/// Qt asks for that bus on the main thread, for accessibility, themes and tray icons, and waits for its greeting without
/// end. It asks once in a process. So this object is made before the QApplication, and ends once there is one: meanwhile a
/// mute bus is taken out of the environment. Programs that are started later get the environment as it was.
class SessionBusForQt {
public:
    /// Waits for the bus, for a second at most.
    SessionBusForQt();
    /// Makes Qt ask.
    ~SessionBusForQt();
    SessionBusForQt(const SessionBusForQt &) = delete;
    SessionBusForQt &operator=(const SessionBusForQt &) = delete;

private:
    const std::optional<QByteArray> m_address; ///< as the environment has it; nil when it has none
};

} // namespace tarvo
