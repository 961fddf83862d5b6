#include "platform/linux/desktop/DesktopFactsReader.h"

#include "platform/Background.h"
#include "platform/linux/desktop/WebBrowsers.h"
#include "simulator/surroundings/SimulatedNotificationService.h"
#include "tests/platform/Panels.h"
#include "tests/support/VirtualDesktop.h"

#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
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

TEST(DesktopFactsReader, KnowsABrowserFromWhatWouldOnlyLookForOne)
{
    const QByteArray browser = qgetenv("BROWSER");
    const QByteArray folders = qgetenv("XDG_DATA_DIRS");
    QTemporaryDir folder;
    qunsetenv("BROWSER");
    qputenv("XDG_DATA_DIRS", folder.path().toUtf8());
    QDir(folder.path()).mkpath(u"applications/vendor"_s);
    const std::pair<QByteArray, bool> cases[] = {
        {"", false},
        {"Exec=sh %u\nMimeType=text/html;x-scheme-handler/http;\n[Desktop Action a]\nExec=none\n", true},
        {"Exec=\"/bin/sh\" -c %u\nMimeType=x-scheme-handler/http\n", true},
        {"Exec=sh %u\nMimeType=x-scheme-handler/https-only;text/html;\n", false},
        {"Exec=gone %u\nMimeType=x-scheme-handler/http;\n", false},
        {"Exec=exo-open --launch WebBrowser %u\nMimeType=x-scheme-handler/http;\n", false},
    };
    for (const QString &program : {u"sh"_s, u"exo-open"_s})
        QFile::link(u"/bin/sh"_s, folder.filePath(program));
    const QByteArray path = qgetenv("PATH");
    qputenv("PATH", folder.path().toUtf8());
    for (const auto &[entry, expected] : cases) {
        QFile file(folder.filePath(u"applications/vendor/a.desktop"_s));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write("[Desktop Entry]\n" + entry) > 0);
        file.close();
        EXPECT_EQ(isWebBrowserInstalled(), expected) << entry.toStdString();
    }
    qputenv("BROWSER", browser);
    qputenv("XDG_DATA_DIRS", folders);
    qputenv("PATH", path);
}
