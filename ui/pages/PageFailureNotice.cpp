#include "ui/pages/PageFailureNotice.h"

#include "platform/Notifications.h"

#include <QCoreApplication>

#include <chrono>
#include <utility>

namespace tarvo {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

const QString &kind()
{
    static const QString name = u"page failure"_s;
    return name;
}

/// @return what of @p page fits into a balloon, which has one line
QString shortened(const QString &page)
{
    constexpr qsizetype most = 60;
    return page.size() > most ? page.left(most - 1) + u'\u2026' : page;
}

} // namespace

PageFailureNotice::PageFailureNotice(Notifications *notifications, BalloonPresenter::Callbacks callbacks)
    : m_notifications(notifications)
    , m_balloon(nullptr, std::move(callbacks))
{
    m_closing.setSingleShot(true);
    m_closing.setInterval(10s);
    m_closing.callOnTimeout([this] { m_balloon.dismiss({}); });
}

PageFailureNotice::~PageFailureNotice()
{
    if (m_notifications)
        m_notifications->forgetAnswer(kind());
}

void PageFailureNotice::tell(const QString &page)
{
    if (!m_notifications || !m_notifications->available()) {
        showBalloon(page);
        return;
    }
    m_notifications->show({.kind = kind(),
                           .title = qtTrId("CannotOpenTitle"),
                           .text = qtTrId("CannotOpenText").arg(page),
                           .iconName = u"io.github.tarvo.Tarvo"_s},
                          [this, page](bool shown) {
                              if (!shown)
                                  showBalloon(page);
                          });
}

void PageFailureNotice::showBalloon(const QString &page)
{
    if (m_balloon.isShown())
        m_balloon.toggleAttachedWindowAtPoint({});
    m_balloon.toggleAttachedWindowAtPoint(qtTrId("CannotOpenText").arg(shortened(page)));
    m_closing.start();
}

} // namespace tarvo
