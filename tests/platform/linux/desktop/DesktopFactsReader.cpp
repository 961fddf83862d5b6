#include "platform/linux/desktop/DesktopFactsReader.h"

#include "platform/Background.h"
#include "simulator/surroundings/SimulatedNotificationService.h"
#include "tests/platform/Panels.h"
#include "tests/support/VirtualDesktop.h"

#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QWindow>

#include <gtest/gtest.h>

#include <optional>

using namespace tarvo;
using namespace Qt::StringLiterals;

namespace {

const QString name = u"org.example.Some-App"_s;

/// An application on the session bus that notes what it is asked to do.
class Application final : public QDBusVirtualObject {
public:
    Application() { m_bus.registerVirtualObject(u"/org/example/Some_App"_s, this); }
    ~Application() override { QDBusConnection::disconnectFromBus(u"application"_s); }

    void start() { m_bus.registerService(name); }

    QString introspect(const QString &) const override { return {}; }
    bool handleMessage(const QDBusMessage &message, const QDBusConnection &connection) override
    {
        asked = message.interface() + u'.' + message.member() + u' ' + message.signature() + u' '
            + message.arguments().value(0).toString();
        return connection.send(refuses ? message.createErrorReply(u"a.b"_s, u"no"_s) : message.createReply());
    }

    QString asked;
    bool refuses = false;

private:
    QDBusConnection m_bus = QDBusConnection::connectToBus(QDBusConnection::SessionBus, u"application"_s);
};

/// @return what @p read gave on another thread
template <typename Result>
Result elsewhere(std::function<Result(std::stop_token)> read)
{
    Background background;
    std::optional<Result> result;
    background.run<Result>(std::move(read), [&](const Result &arrived) { result = arrived; });
    EXPECT_TRUE(waitFor([&] { return result.has_value(); }));
    return result.value_or(Result{});
}

ActionResult activate()
{
    return elsewhere<ActionResult>([](const std::stop_token &) { return activateAction(name, u"again"_s); });
}

} // namespace

TEST(DesktopFactsReader, TellsWhatTheDesktopOffers)
{
    qputenv("BROWSER", "none:sh %s");
    const auto read = [](const std::stop_token &) { return readDesktopFacts(name); };
    EXPECT_EQ(elsewhere<DesktopFacts>(read), (DesktopFacts{false, false, true, false}));
    Application application;
    application.start();
    SimulatedNotificationService notifications;
    notifications.start();
    EXPECT_EQ(elsewhere<DesktopFacts>(read), (DesktopFacts{false, true, true, true}));
    QWindow tray;
    takeTraySelection(tray);
    EXPECT_EQ(elsewhere<DesktopFacts>(read), (DesktopFacts{true, true, true, true}));
}

TEST(DesktopFactsReader, ActivatesAnActionOfARunningApplication)
{
    Application application;
    EXPECT_EQ(activate(), ActionResult::NotRunning);
    application.start();
    EXPECT_EQ(activate(), ActionResult::Done);
    EXPECT_EQ(application.asked, u"org.freedesktop.Application.ActivateAction sava{sv} again"_s);
    application.refuses = true;
    EXPECT_EQ(activate(), ActionResult::Failed);
}
