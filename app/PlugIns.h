#pragma once

#include "apn/ApnProvisioner.h"
#include "platform/InterfaceFacts.h"

#include <QList>

namespace tarvo {

/// What has been done for a modem since it was plugged in, and is done once.
struct PlugInState {
    bool openedPages = false; ///< they have opened by themselves
    ApnProvisioner::Progress accessPoints{};
    bool hasNewVersion = false; ///< the modem offered new firmware
    QList<int> seenNews{}; ///< the kinds of news, `DisplayType`, that stood when they were evaluated last

    bool operator==(const PlugInState &) const = default;
};

/// A modem's interface, and what has been done for it.
struct PlugIn {
    InterfaceIdentity identity{};
    PlugInState state{};

    bool operator==(const PlugIn &) const = default;
};

/// Remembers what has been done for each modem that is plugged in. As no interface ever gets the index of another one, what
/// is remembered of one that has gone is never asked for. On the main thread.
class PlugIns {
public:
    static constexpr qsizetype longest = 16; ///< of several modems, those that were reported last are remembered

    /// @return the interface that work goes on for; index 0 for none
    const InterfaceIdentity &current() const { return m_current; }
    /// Work begins for @p interface. @return what has been done for it since it came
    PlugInState begin(const InterfaceIdentity &interface);
    /// Work ends for the interface that it went on for; @p state is what has been done. Nothing when there was none.
    void end(const PlugInState &state);

    const QList<PlugIn> &all() const { return m_plugIns; }
    /// Remembers @p plugIns and nothing else. Work goes on for none.
    void restore(const QList<PlugIn> &plugIns);

private:
    InterfaceIdentity m_current{};
    QList<PlugIn> m_plugIns; ///< the one that was reported last is the last
};

} // namespace tarvo
