#pragma once

namespace tarvo {

struct CompanionStatus;

/// In which of all situations the companion is. Whatever is shown or told follows from it, and from the details that go
/// with it in the status.
enum class Situation {
    NoSettings, ///< no modem can be found: the settings have a problem
    NoModem,
    NotSetUp, ///< a device is there, which the settings do not name
    WaitingForAddress,
    NoGateway,
    Asleep, ///< a modem is there, and left alone: nothing of it can be told
    Found, ///< no answer so far
    NotAnswering, ///< the obstacle says why
    Answering, ///< and does not tell of a connection
    SimNeedsUser, ///< the state of the SIM card says what
    Connecting,
    NotConnected,
    Connected,
};

/// @return the situation that @p status makes
Situation situationOf(const CompanionStatus &status);

/// @return whether a modem is asked for its state
bool isPolled(Situation situation);
/// @return whether the modem gives its state
bool answers(Situation situation);
/// @return whether a modem can be there only after the user has changed the settings
bool wantsSetup(Situation situation);

} // namespace tarvo
