#pragma once

#include "RouterObserver/ConfigManager.h"
#include "setup/checks/ModemFacts.h"

#include <QString>

#include <functional>
#include <stop_token>

namespace tarvo {

/// A gateway to ask, and how.
struct ModemQuestion {
    QString gateway;
    /// Called with each new socket before it is connected: ties it to the interface that the gateway is behind.
    std::function<bool(int socket)> prepareSocket;
    ConfigManager settings; ///< say which page, and how it is asked for
};

// Only what a browser might ask as well is asked: pages and get commands, never a set command. Each request takes five
// seconds at most. Any thread but the main one.

/// Asks as little as tells a modem from another gateway.
ModemFacts askWhetherModem(const ModemQuestion &question, const std::stop_token &stop);
/// Asks for a session as well, as it is needed for access points. A session that another program has at the modem ends.
ModemFacts askModem(const ModemQuestion &question, const std::stop_token &stop);

} // namespace tarvo
