#include "platform/linux/NetworkModel.h"

#include "tests/support/PrintQt.h"

#include <gtest/gtest.h>

namespace tarvo {

using namespace Qt::StringLiterals;

namespace {

constexpr quint32 mainTable = 254;
constexpr InterfaceAddress address{0xc0a80864, 0xc0a80864, 24};

constexpr quint32 gateway(quint8 last)
{
    return 0xc0a80800 | last;
}

/// Link 5 is en5, link 6 is en6; both are up and have an address.
NetworkModel twoServices()
{
    NetworkModel model;
    for (const int index : {6, 5}) {
        model.setLink(index, u"en%1"_s.arg(index), true);
        model.addAddress(index, address);
    }
    model.setRoutesCertain();
    return model;
}

QString routerOf(const NetworkModel &model, const QString &name)
{
    const auto entries = model.entries();
    if (!entries.contains(store::serviceIPv4Key(name)))
        return u"no service"_s;
    return entries[store::serviceIPv4Key(name)].value(store::kSCPropNetIPv4Router, u"no router"_s).toString();
}

TEST(NetworkModel, ListsLinksAndServicesInIndexOrder)
{
    NetworkModel model = twoServices();
    model.setLink(4, u"virtual"_s, true);
    model.setLink(7, u"down"_s, false);
    model.addAddress(7, address);
    const auto entries = model.entries();
    EXPECT_EQ(entries[store::interfaceListKey][store::kSCDynamicStorePropNetInterfaces].toStringList(),
              (QStringList{u"virtual"_s, u"en5"_s, u"en6"_s, u"down"_s}));
    EXPECT_EQ(entries[store::globalIPv4SetupKey][store::kSCPropNetServiceOrder].toStringList(),
              (QStringList{u"en5"_s, u"en6"_s}));
    EXPECT_EQ(entries[store::serviceInterfaceSetupKey(u"en5"_s)][store::kSCPropNetInterfaceDeviceName], u"en5"_s);
    EXPECT_EQ(entries.size(), 6);
}

TEST(NetworkModel, TheBestDefaultRouteOfTheInterfaceGivesTheRouter)
{
    struct Case {
        const char *name;
        std::vector<DefaultRoute> routes;
        QString router;
    };
    const Case cases[]{
        {"none", {}, u"no router"_s},
        {"without gateway", {{mainTable, 0, 0, {{5, 0}}}}, u"no router"_s},
        {"lowest metric",
         {{mainTable, 600, 0, {{5, gateway(2)}}}, {mainTable, 100, 0, {{5, gateway(1)}}}},
         u"192.168.8.1"_s},
        {"another's is lower",
         {{mainTable, 50, 0, {{6, gateway(9)}}}, {mainTable, 100, 0, {{5, gateway(1)}}}},
         u"192.168.8.1"_s},
        {"multipath", {{mainTable, 0, 0, {{6, gateway(9)}, {5, gateway(1)}}}}, u"192.168.8.1"_s},
        {"other table only", {{100, 0, 0, {{5, gateway(3)}}}}, u"192.168.8.3"_s},
        {"main table at equal metric",
         {{7, 0, 0, {{5, gateway(3)}}}, {mainTable, 0, 0, {{5, gateway(1)}}}},
         u"192.168.8.1"_s},
    };
    for (const Case &test : cases) {
        NetworkModel model = twoServices();
        for (const DefaultRoute &route : test.routes)
            model.addRoute(route);
        EXPECT_EQ(routerOf(model, u"en5"_s), test.router) << test.name;
    }
}

TEST(NetworkModel, RoutesLeaveWithTheirLink)
{
    NetworkModel model = twoServices();
    model.addRoute({mainTable, 0, 0, {{5, gateway(1)}, {6, gateway(2)}}});
    model.setLink(5, u"en5"_s, false);
    EXPECT_EQ(routerOf(model, u"en5"_s), u"no service"_s);
    EXPECT_EQ(routerOf(model, u"en6"_s), u"192.168.8.2"_s);
    EXPECT_FALSE(model.areRoutesUncertain());
    model.setLink(5, u"en5"_s, true);
    EXPECT_EQ(routerOf(model, u"en5"_s), u"no router"_s);
    EXPECT_TRUE(model.areRoutesUncertain());

    model.removeLink(6);
    model.setLink(6, u"en6"_s, true);
    EXPECT_EQ(routerOf(model, u"en6"_s), u"no service"_s) << "the addresses left as well";
    EXPECT_EQ(model.takeRemovedLinks(), QSet<int>{6});
}

TEST(NetworkModel, RoutesAreReplacedAndRemovedLikeTheKernelDoes)
{
    NetworkModel model = twoServices();
    model.addRoute({mainTable, 100, 0, {{5, gateway(1)}}});
    model.replaceRoute({mainTable, 100, 0, {{5, gateway(2)}}});
    EXPECT_EQ(routerOf(model, u"en5"_s), u"192.168.8.2"_s);

    model.addRoute({mainTable, 100, 0, {{5, gateway(3)}}});
    model.removeRoute({mainTable, 100, 0, {{5, gateway(2)}}});
    EXPECT_EQ(routerOf(model, u"en5"_s), u"192.168.8.3"_s);
    EXPECT_FALSE(model.areRoutesUncertain());

    model.addRoute({mainTable, 100, 0, {{5, gateway(4)}}});
    model.replaceRoute({mainTable, 100, 0, {{5, gateway(5)}}});
    EXPECT_TRUE(model.areRoutesUncertain()) << "either of the two may have been replaced";

    model.setRoutesCertain();
    model.removeAddress(5, address);
    EXPECT_TRUE(model.areRoutesUncertain()) << "the kernel tells of no route that leaves with an address";
}

} // namespace

} // namespace tarvo
