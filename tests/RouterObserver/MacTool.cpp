#include "RouterObserver/MacTool.h"

#include "platform/StateStore.h"
#include "tests/support/PrintQt.h"

#include <gtest/gtest.h>

using namespace tarvo;
using namespace Qt::StringLiterals;

TEST(MacTool, FindsServicesInTheirOrderAndTheirRouters)
{
    const auto onInterface = [](const QString &name) {
        return QVariantMap{{store::kSCPropNetInterfaceDeviceName, name}};
    };
    StateStore store;
    NetworkPreferences preferences{store};
    EXPECT_EQ(MacTool_GetServiceIDByBSDName(preferences, u"en5"_s), std::nullopt) << "no service order";
    store.replaceEntries({
        {store::globalIPv4SetupKey, {{store::kSCPropNetServiceOrder, QStringList{u"b"_s, u"gone"_s, u"a"_s}}}},
        {store::serviceInterfaceSetupKey(u"a"_s), onInterface(u"en5"_s)},
        {store::serviceInterfaceSetupKey(u"b"_s), onInterface(u"en5"_s)},
        {store::serviceInterfaceSetupKey(u"unordered"_s), onInterface(u"en6"_s)},
        {store::serviceIPv4Key(u"a"_s), {{store::kSCPropNetIPv4Router, u"192.168.0.1"_s}}},
        {store::serviceIPv4Key(u"b"_s), {{store::kSCPropInterfaceName, u"en5"_s}}},
    });
    EXPECT_EQ(MacTool_GetServiceIDByBSDName(preferences, u"en5"_s), u"b"_s);
    EXPECT_EQ(MacTool_GetServiceIDByBSDName(preferences, u"en6"_s), std::nullopt);
    EXPECT_EQ(MacTool_GetNetWorkBSDNameOfService(preferences, u"a"_s, u"Setup:"_s), u"en5"_s);
    EXPECT_EQ(MacTool_GetNetWorkBSDNameOfService({store}, u"a"_s, u"Setup:"_s), std::nullopt) << "not open yet";
    EXPECT_EQ(MacTool_GetIPV4Router(store, u"a"_s), u"192.168.0.1"_s);
    EXPECT_EQ(MacTool_GetIPV4Router(store, u"b"_s), std::nullopt);
}
