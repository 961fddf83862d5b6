#pragma once

#include <QList>

namespace tarvo {

/// What each item of the news was when it was last evaluated, by display type (`DisplayType`).
struct PreviousNews {
    bool previousHaveUnReadSmsStatus_ = false;
    bool previousHaveNewSmsStatus_ = false;
    bool previousRoamOnStatus_ = false;
    bool previousHaveNewVersion_ = false;
    bool previousNetWorkStatus_ = false;
    bool previousHaveDateLimitReached_ = false;
    bool previousHaveDateLimitExceeded_ = false;
    bool previousHaveDateLimitExceededForThreedays_ = false;

    /// @return whether news of the display type @p type stood; false for a number that is none
    bool stood(int type) const;
    /// Keeps whether news of @p type stand; nothing for a number that is none.
    void setStood(int type, bool stands);

    /// @return the display types whose news stood
    QList<int> types() const;
    /// @return the state in which news of @p types stood, and no other
    static PreviousNews ofTypes(const QList<int> &types);
};

} // namespace tarvo
