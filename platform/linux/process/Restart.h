#pragma once

#include <QTimer>

#include <chrono>

namespace tarvo {

/// Lets the program execute itself anew, at most once in ten seconds, whoever asks for it however often.
class Restart {
public:
    /// What the event loop returns when the program shall execute itself anew.
    static constexpr int exitStatus = 75;

    Restart();

    /// Ends the event loop of the application: at once, or when the last restart is ten seconds ago.
    void request();

    /// The same, but never before ten seconds from now: for what may go on failing, and would keep the program busy.
    void requestLater();

    /// Executes the program that runs, even when another one is installed by now. Returns only when that is not possible.
    static void execute(char **argv);

private:
    void endIn(std::chrono::milliseconds pause);

    const std::chrono::milliseconds m_last; ///< when it was last done, on the steady clock
    QTimer m_timer;
};

} // namespace tarvo
