#include "modemapi/Obstacle.h"

#include <QByteArrayView>

#include <algorithm>

namespace tarvo {

using namespace Qt::StringLiterals;

namespace {

bool asksForPassword(QByteArrayView page)
{
    constexpr qsizetype farEnough = 64 << 10;
    QByteArray text = page.first(std::min(page.size(), farEnough)).toByteArray().toLower();
    for (const char insignificant : {'"', '\'', ' '})
        text.replace(QByteArrayView(&insignificant, 1), QByteArrayView());
    return text.contains("type=password");
}

bool isLogIn(const HttpAnswer &answer)
{
    const bool isHtml = answer.contentType.contains("html") || answer.data.trimmed().startsWith('<');
    return answer.redirect.path().contains(u"login"_s, Qt::CaseInsensitive) || (isHtml && asksForPassword(answer.data));
}

} // namespace

Obstacle obstacleOf(const HttpAnswer &answer)
{
    constexpr int unauthorized = 401;
    constexpr int forbidden = 403;
    constexpr int unavailable = 503;
    if (answer.redirect.scheme() == u"https")
        return Obstacle::WantsHttps;
    if (answer.status == unauthorized || answer.status == forbidden || isLogIn(answer))
        return Obstacle::WantsPassword;
    if (answer.status == unavailable)
        return Obstacle::Busy;
    if (answer.status == 0)
        return answer.connected ? Obstacle::Silence : Obstacle::NoAnswer;
    const bool isEmpty = answer.status < 300 && answer.data.trimmed().isEmpty();
    return isEmpty ? Obstacle::NoAnswer : Obstacle::OtherPage;
}

} // namespace tarvo
