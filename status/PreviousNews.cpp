#include "status/PreviousNews.h"

#include "status/NewsEffect.h"

#include <algorithm>
#include <iterator>

namespace tarvo {

namespace {

bool PreviousNews::*fieldOf(int type)
{
    switch (type) {
    case DisplayType::NewVersion:
        return &PreviousNews::previousHaveNewVersion_;
    case DisplayType::ThreeDayLimitExceeded:
        return &PreviousNews::previousHaveDateLimitExceededForThreedays_;
    case DisplayType::MonthlyLimitExceeded:
        return &PreviousNews::previousHaveDateLimitExceeded_;
    case DisplayType::MonthlyLimitReached:
        return &PreviousNews::previousHaveDateLimitReached_;
    default:
        return nullptr;
    }
}

} // namespace

bool PreviousNews::stood(int type) const
{
    const auto field = fieldOf(type);
    return field && this->*field;
}

void PreviousNews::setStood(int type, bool stands)
{
    if (const auto field = fieldOf(type))
        this->*field = stands;
}

QList<int> PreviousNews::types() const
{
    QList<int> types;
    std::ranges::copy_if(displayTypes, std::back_inserter(types), [this](int type) { return stood(type); });
    return types;
}

PreviousNews PreviousNews::ofTypes(const QList<int> &types)
{
    PreviousNews previous;
    for (const int type : types)
        previous.setStood(type, true);
    return previous;
}

} // namespace tarvo
