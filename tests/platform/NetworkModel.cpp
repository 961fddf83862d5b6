#include "platform/linux/NetworkModel.h"

#include "tests/support/PrintQt.h"

#include <QList>

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
    return model.entries()[store::serviceIPv4Key(name)].value(store::kSCPropNetIPv4Router, u"no router"_s).toString();
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
    const DefaultRoute first{mainTable, 100, 0, {{5, gateway(1)}}};
    const std::pair<std::vector<DefaultRoute>, QString> cases[]{
        {{}, u"no router"_s},
        {{{mainTable, 0, 0, {{5, 0}}}}, u"no router"_s},
        {{{mainTable, 600, 0, {{5, gateway(2)}}}, first}, u"192.168.8.1"_s},
        {{{mainTable, 50, 0, {{6, gateway(2)}}}, first}, u"192.168.8.1"_s},
        {{{mainTable, 50, 0, {{6, gateway(2)}, {5, gateway(3)}}}, first}, u"192.168.8.3"_s},
        {{{7, 50, 0, {{5, gateway(4)}}}, first}, u"192.168.8.4"_s},
        {{{7, 100, 0, {{5, gateway(4)}}}, first}, u"192.168.8.1"_s},
    };
    for (const auto &[routes, router] : cases) {
        NetworkModel model = twoServices();
        for (const DefaultRoute &route : routes)
            model.addRoute(route);
        EXPECT_EQ(routerOf(model, u"en5"_s), router);
    }
}

TEST(NetworkModel, TellsWhatHidesTheGatewayOfALink)
{
    NetworkModel model = twoServices();
    const QStringList addresses{u"192.168.8.100"_s};
    model.addRoute({mainTable, 100, 0, {{6, gateway(2)}}});
    EXPECT_EQ(model.interfaceState(5), (InterfaceState{true, addresses, {}, {}}));
    model.addRoute({mainTable, 0, 0, {{6, gateway(2)}}});
    EXPECT_EQ(model.interfaceState(5), (InterfaceState{true, addresses, {}, u"en6"_s}));
    EXPECT_EQ(model.interfaceState(6), (InterfaceState{true, addresses, u"192.168.8.2"_s, {}}));
    EXPECT_EQ(model.interfaceState(9), InterfaceState());
}

TEST(NetworkModel, RoutesLeaveWithTheirLink)
{
    NetworkModel model = twoServices();
    model.addRoute({mainTable, 0, 0, {{5, gateway(1)}, {6, gateway(2)}}});
    model.setLink(5, u"en5"_s, false);
    EXPECT_EQ(routerOf(model, u"en6"_s), u"192.168.8.2"_s);
    EXPECT_FALSE(model.areRoutesUncertain());
    model.setLink(5, u"en5"_s, true);
    EXPECT_EQ(routerOf(model, u"en5"_s), u"no router"_s);
    EXPECT_TRUE(model.areRoutesUncertain());
}

TEST(NetworkModel, RoutesAreReadAgainWhereTheKernelLeavesThemOpen)
{
    NetworkModel model = twoServices();
    for (const quint8 last : QList<quint8>{1, 2})
        model.addRoute({mainTable, 100, 0, {{5, gateway(last)}}});
    model.removeRoute({mainTable, 100, 0, {{5, gateway(1)}}});
    model.addRoute({mainTable, 100, 0, {{5, gateway(3)}}});
    EXPECT_EQ(routerOf(model, u"en5"_s), u"192.168.8.2"_s);
    EXPECT_FALSE(model.areRoutesUncertain());
    model.replaceRoute({mainTable, 100, 0, {{5, gateway(4)}}});
    EXPECT_TRUE(model.areRoutesUncertain()) << "either of the two may have been replaced";
}

} // namespace

} // namespace tarvo
