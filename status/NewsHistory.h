#pragma once

#include "status/CompanionStatus.h"

#include <QDateTime>
#include <QList>

namespace tarvo {

/// A piece of news that the user was told.
struct ToldNews {
    QDateTime time;
    StandingNews news;

    bool operator==(const ToldNews &) const = default;
};

/// The news that were told last, the newest first; in memory only.
class NewsHistory {
public:
    static constexpr qsizetype longest = 10;

    void add(const StandingNews &news, const QDateTime &time);
    const QList<ToldNews> &news() const { return m_news; }

private:
    QList<ToldNews> m_news;
};

} // namespace tarvo
