#include "platform/linux/desktop/PagePortal.h"

#include "tests/platform/linux/desktop/LogindWorkspaceTest.h"

#include <QDBusConnection>
#include <QDBusError>
#include <QDBusObjectPath>
#include <QDBusVirtualObject>

using namespace tarvo;
using PagePortalTest = LogindWorkspaceTest;

namespace {

/// A portal that opens nothing, on a connection of its own.
class Portal final : public QDBusVirtualObject {
public:
    explicit Portal(const QString &busAddress)
        : bus_(QDBusConnection::connectToBus(busAddress, u"portal"_s))
    {
        bus_.registerVirtualObject(u"/org/freedesktop/portal/desktop"_s, this);
        bus_.registerService(u"org.freedesktop.portal.Desktop"_s);
    }
    ~Portal() override { QDBusConnection::disconnectFromBus(u"portal"_s); }
    QString introspect(const QString &) const override { return {}; }
    bool handleMessage(const QDBusMessage &question, const QDBusConnection &) override
    {
        pages << question.arguments().value(1).toString();
        if (refuses)
            return bus_.send(question.createErrorReply(QDBusError::Failed, {}));
        const auto reply = question.createReply(QVariant::fromValue(QDBusObjectPath(u"/request"_s)));
        if (!isEarly)
            bus_.send(reply);
        responseTo = QDBusMessage::createTargetedSignal(question.service(), u"/request"_s,
                                                        u"org.freedesktop.portal.Request"_s, u"Response"_s);
        return (response < 0 || respond(response)) && (!isEarly || bus_.send(reply));
    }
    bool respond(int with)
    {
        QDBusMessage signal = responseTo;
        return bus_.send(signal << uint(with) << QVariantMap());
    }

    QStringList pages;
    QDBusMessage responseTo;
    bool refuses = false;
    int response = -1; ///< to every request; negative for none
    bool isEarly = false; ///< the response overtakes the answer to the call

private:
    QDBusConnection bus_;
};

} // namespace

TEST_F(PagePortalTest, AsksThePortalWhereThereIsNoOpener)
{
    startBus();
    Portal portal(address_);
    LogindWorkspace workspace(systemBus_, sessionBus_, log_);
    bool found = false;
    sessionBus_.follow(
        &portal, [&] { found = true; }, [] {});
    ASSERT_TRUE(waitFor([&] { return found; }));
    qputenv("PATH", folder_.path().toUtf8());
    int failures = 0;
    const auto open = [&] {
        const auto before = portal.pages.size();
        workspace.openURL(QUrl(u"http://192.168.0.1/?a=%20"_s), [&] { ++failures; });
        EXPECT_TRUE(waitFor([&] { return portal.pages.size() > before; }));
    };
    open();
    EXPECT_EQ(portal.pages, QStringList(u"http://192.168.0.1/?a=%20"_s));
    SimulatedLogind stranger(address_, false);
    QDBusMessage forged = portal.responseTo;
    stranger.tell(forged << 2U << QVariantMap());
    for (const int response : {0, 1, 2}) { // opened, not wanted, not opened
        EXPECT_EQ(failures, 0) << response;
        portal.response = response;
        open();
    }
    EXPECT_TRUE(waitFor([&] { return failures == 1; }));
    portal.isEarly = true;
    open();
    EXPECT_TRUE(waitFor([&] { return failures == 2; }));
    portal.refuses = true;
    open();
    EXPECT_TRUE(waitFor([&] { return failures == 3; }));
}
