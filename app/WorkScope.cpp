#include "app/WorkScope.h"

#include <utility>

namespace tarvo {

namespace {
thread_local std::stop_token currentToken;
}

WorkScope::WorkScope(std::stop_token stop)
    : m_outer(std::exchange(currentToken, std::move(stop)))
{
}

WorkScope::~WorkScope()
{
    currentToken = std::move(m_outer);
}

std::stop_token WorkScope::current()
{
    return currentToken;
}

} // namespace tarvo
