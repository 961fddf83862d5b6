#include "platform/linux/network/LinkEntries.h"
#include "tests/support/PrintQt.h"

#include <QList>

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <random>

using namespace tarvo;
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

void update(LinkEntries &entries, NetworkModel &model, StateStore &store)
{
    const QSet<int> removed = model.takeRemovedLinks();
    const QSet<int> changed = model.takeChangedLinks();
    for (const auto &changes : entries.update(model, changed, removed, [&](int index) { return model.gateway(index); }))
        store.applyChanges(changes);
}

StateStore::Entries entriesOf(const NetworkModel &model)
{
    LinkEntries entries;
    NetworkModel copy;
    StateStore store;
    copy.takeAll(model);
    update(entries, copy, store);
    return store.entries();
}

bool isTaken(const NetworkModel &model, const QString &name)
{
    return std::ranges::any_of(QList{1, 2, 3, 4, 5, 6},
                               [&](int index) { return model.link(index) && model.link(index)->name == name; });
}

QString routerOf(const NetworkModel &model, const QString &name)
{
    return entriesOf(model)[store::serviceIPv4Key(name)].value(store::kSCPropNetIPv4Router, u"no router"_s).toString();
}

} // namespace

TEST(NetworkModel, ListsLinksAndServicesInIndexOrder)
{
    NetworkModel model = twoServices();
    model.setLink(4, u"virtual"_s, true);
    model.setLink(7, u"down"_s, false);
    model.addAddress(7, address);
    const auto entries = entriesOf(model);
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
    model.removeLink(6);
    model.setLink(6, u"en6"_s, true);
    model.addAddress(6, address);
    EXPECT_EQ(routerOf(model, u"en6"_s), u"no router"_s) << "another link of the same index";
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
    model.setRoutesCertain();
    model.addRoute({mainTable, 50, 0, {{5, gateway(6)}}});
    model.removeRoute({mainTable, 50, 0, {{5, gateway(7)}}});
    EXPECT_TRUE(model.areRoutesUncertain()) << "either a next hop had gone, or this is older than what was read";
}

TEST(NetworkModel, ADisturbedReadingTakesAwayOnlyWhatIsGone)
{
    NetworkModel read;
    read.setLink(5, u"en5"_s, true);
    NetworkModel before = twoServices();
    before.setLink(7, u"gone"_s, true);
    read.keepLinks(before, [](int index) { return index == 7 ? QString() : u"en%1"_s.arg(index); });
    EXPECT_EQ(entriesOf(read), entriesOf(twoServices()));
}

TEST(NetworkModel, EntriesThatAreKeptAreThoseThatWouldBeMadeAnew)
{
    std::minstd_rand random(1);
    const auto upTo = [&](int most) { return int(random() % unsigned(most)) + 1; };
    NetworkModel model;
    LinkEntries entries;
    StateStore store;
    for (int i = 0; i < 20000; ++i) {
        const int index = upTo(4);
        const QString name = u"en%1"_s.arg(upTo(6));
        const InterfaceAddress some{quint32(upTo(2)), 1, 24};
        const DefaultRoute route{mainTable, 0, 0, {{upTo(4), quint32(upTo(3))}}};
        const std::function<void()> steps[]{
            [&] {
                if (!isTaken(model, name))
                    model.setLink(index, name, upTo(3) > 1);
            },
            [&] { model.removeLink(index); },
            [&] { model.addAddress(index, some); },
            [&] { model.removeAddress(index, some); },
            [&] { model.addRoute(route); },
            [&] { model.removeRoute(route); },
            [&] { model.takeAll(twoServices()); },
            [&] { update(entries, model, store); },
        };
        steps[upTo(8) - 1]();
        if (upTo(10) == 1) {
            update(entries, model, store);
            ASSERT_EQ(store.entries(), entriesOf(model)) << i;
        }
    }
}
