#pragma once

#include "platform/Clock.h"

#include <QList>
#include <QString>

#include <chrono>
#include <mutex>

namespace tarvo {

/// Sees to it that the companion does nothing of its own accord twice within ten minutes for the same device, however often
/// that goes and comes back. For every thread.
class RecentDeeds {
public:
    static constexpr std::chrono::minutes pause{10};
    static constexpr qsizetype longest = 256; ///< older ones are forgotten before their time
    /// The deed of opening the modem's pages; the others are the kinds of news, `DisplayType`.
    static constexpr int openedPages = 0;

    /// What was done, for which device, and when.
    struct Deed {
        QString device;
        int kind = openedPages;
        Clock::TimePoint time; ///< by the clock that goes on in sleep

        bool operator==(const Deed &) const = default;
    };

    /// @param clock  outlives this object
    explicit RecentDeeds(const Clock &clock);

    /// From now on claims are for the device @p address. An empty one cannot be told from others: it may do everything.
    void setDevice(const QString &address);
    /// @return whether the deed may be done for the device; it counts as done from now on then
    bool claim(int kind);

    /// @return the deeds that still count, the oldest first
    QList<Deed> deeds() const;
    /// Has @p deeds count, those of the last ten minutes.
    void restore(const QList<Deed> &deeds);

private:
    void forgetOld(); ///< with the mutex held

    const Clock &m_clock;
    mutable std::mutex m_mutex; ///< guards the rest
    QString m_device;
    QList<Deed> m_deeds;
};

} // namespace tarvo
