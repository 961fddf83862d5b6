#pragma once

#include "platform/PublicInterface.h"

#include <QElapsedTimer>
#include <QString>
#include <QVariantList>
#include <QVariantMap>

#include <functional>

namespace tarvo {

class MainController;

/// What other programs read of the companion and ask of it: the interface io.github.tarvo.Tarvo1, which tarvo-dbus(7)
/// explains. On the main thread.
class RemoteControl {
public:
    struct Callbacks {
        std::function<void()> openSetup; ///< empty when there is no program for it
        std::function<void()> quit;
    };

    /// @param constant  properties that never change, by name
    RemoteControl(MainController &controller, PublicInterface &others, Callbacks callbacks, QVariantMap constant);

    /// Publishes how things stand, from now on.
    void start();

private:
    using Outcome = PublicInterface::Outcome;

    void publish();
    Outcome call(const QString &method, const QVariantList &arguments);
    Outcome openPage(const QVariantList &arguments);
    Outcome openSetup();
    /// @return whether something may be opened: nobody is to fill the screen with windows
    bool mayOpen();

    MainController &m_controller;
    PublicInterface &m_others;
    const Callbacks m_callbacks;
    const QVariantMap m_constant;
    QElapsedTimer m_sinceOpened;
};

} // namespace tarvo
