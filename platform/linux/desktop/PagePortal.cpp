#include "platform/linux/desktop/PagePortal.h"

#include "platform/linux/bus/BusConnection.h"

#include <QDBusObjectPath>
#include <QUrl>
#include <QVariantMap>

namespace tarvo {

using namespace Qt::StringLiterals;

namespace {

constexpr int answerTimeout = 15'000; // milliseconds; the bus may have to start the service
const QString serviceName = u"org.freedesktop.portal.Desktop"_s;
constexpr uint notOpened = 2; // 0 is for opened, and 1 for a user who does not want that

} // namespace

PagePortal::PagePortal(BusConnection &bus)
    : m_bus(bus)
    , m_service(bus, serviceName, [this](const QString &owner) { ownerChanged(owner); })
{
    m_bus.subscribe({}, u"org.freedesktop.portal.Request"_s, u"Response"_s, this, SLOT(responded(QDBusMessage)));
}

void PagePortal::ownerChanged(const QString &owner)
{
    m_owner = owner;
    m_requests.clear();
    m_early.clear();
}

void PagePortal::open(const QUrl &url, const Handler &failed)
{
    auto message = QDBusMessage::createMethodCall(serviceName, u"/org/freedesktop/portal/desktop"_s,
                                                  u"org.freedesktop.portal.OpenURI"_s, u"OpenURI"_s);
    message << QString() << QString::fromLatin1(url.toEncoded()) << QVariantMap();
    m_bus.call(
        message, this, [this, failed](const QDBusMessage &answer) { answered(answer, failed); }, answerTimeout);
}

void PagePortal::answered(const QDBusMessage &answer, const Handler &failed)
{
    if (answer.type() != QDBusMessage::ReplyMessage)
        return failed();
    const QString request = answer.arguments().value(0).value<QDBusObjectPath>().path();
    m_requests.insert(request, failed);
    if (m_early.contains(request))
        conclude(request, m_early.take(request));
}

void PagePortal::responded(const QDBusMessage &signal)
{
    constexpr int mostEarly = 16;
    if (signal.service() != m_owner) // everybody on the bus may send such signals
        return;
    const uint response = signal.arguments().value(0).toUInt();
    if (m_requests.contains(signal.path()))
        conclude(signal.path(), response);
    else if (m_early.size() < mostEarly)
        m_early.insert(signal.path(), response);
}

void PagePortal::conclude(const QString &request, uint response)
{
    const Handler failed = m_requests.take(request);
    if (response == notOpened)
        failed();
}

} // namespace tarvo
