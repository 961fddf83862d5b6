#include "tests/RouterObserver/ObserverFixture.h"

#include <QCoreApplication>

using namespace tarvo;

TEST_F(RouterObserverTest, SupportsEveryProductOfAListedVendorThatIsNotExcluded)
{
    const struct {
        QString name;
        int vendorID;
        int productID;
        bool supported;
    } cases[] = {
        {u"en1"_s, vendor, product, true},
        {u"en2"_s, vendor, excludedProduct, false},
        {u"en3"_s, vendor + 1, product, false},
        {u"integer in the list"_s, 0x4321, product, false},
        {QString(256, u'e'), vendor, product, false},
    };
    for (const auto &[name, vendorID, productID, supported] : cases) {
        registry_.addModem(name, vendorID, productID);
        EXPECT_EQ(observer_.isSupportedEnthernetBSDName(name), supported) << name.toStdString();
        network_.addInterface(name);
    }
    observer_.startWatchNetworkInterface(reports_);
    network_.addInterface(u"lo"_s);
    const auto excluded = u"en2: USB device 1234:5679 is left alone: its product 22137 is in eliminate_product_ids"_s;
    EXPECT_EQ(log_.count(excluded), 1);
    EXPECT_EQ(log_.count(u"en3: USB device 1235:5678 is left alone: its vendor 4661 is not in vendor_ids"_s), 1);
    EXPECT_TRUE(observer_.isSupportedVendorID(vendor + (1LL << 32))) << "the low 32 bits count";
    EXPECT_FALSE(observer_.isSupportedProductID(product)) << "no list";
    const auto bare = registry_.addDevice({.parent = 0, .className = {}, .properties = {{u"idVendor"_s, vendor}}});
    EXPECT_TRUE(observer_.isSupportedIOService(bare)) << "no product, so none that is excluded";
    for (const auto &info : {QVariant(), QVariant(QVariantMap()), QVariant(QVariantList{u"x"_s}), QVariant(u"x"_s)}) {
        settings_ = settingsWith(info);
        EXPECT_FALSE(observer_.isSupportedVendorID(vendor)) << info.typeName();
    }
}

TEST_F(RouterObserverTest, ReportsEachChangeOfTheModemAndForgetsTheTimeOnOthers)
{
    plugIn(u"en5"_s, std::nullopt);
    EXPECT_TRUE(observer_.startWatchNetworkInterface(reports_));
    const auto service = registry_.serviceMatchingBSDName(u"en5"_s);
    EXPECT_EQ(ready_, (QList<ReadyDictionary>{{std::nullopt, service, u"en5"_s}})) << "there at the start";
    network_.setIPv4(u"en5"_s, u"192.168.0.1"_s);
    EXPECT_EQ(ready_.value(1), (ReadyDictionary{u"192.168.0.1"_s, service, u"en5"_s}));
    EXPECT_TRUE(observer_.getModemPlugedInTime());
    network_.addInterface(u"eth0"_s);
    network_.setIPv4(u"eth0"_s, u"10.0.0.1"_s);
    EXPECT_FALSE(observer_.getModemPlugedInTime());
    network_.setIPv4(u"en5"_s, u"192.168.0.2"_s);
    EXPECT_TRUE(observer_.getModemPlugedInTime());
    network_.clearIPv4(u"en5"_s);
    EXPECT_FALSE(observer_.getModemPlugedInTime());
    EXPECT_EQ(ready_.size(), 3);
}

TEST_F(RouterObserverTest, LooksAtTheFirstChangedKeyOnly)
{
    plugIn(u"en5"_s, u"192.168.0.1"_s);
    plugIn(u"en6"_s, u"192.168.0.2"_s);
    observer_.startWatchNetworkInterface(reports_);
    ASSERT_EQ(ready_.size(), 1);
    EXPECT_EQ(ready_[0].kOmbraBSDName, u"en5"_s) << "the first in the store's order";
    const auto session = store_.createSession(u"test"_s, {});
    const QString second = store::serviceIPv4Key(SimulatedNetwork::serviceOf(u"en6"_s));
    observer_.updateSupportedInterfaceIPv4(*session, {u"State:/none"_s, second});
    EXPECT_EQ(ready_.size(), 1);
    EXPECT_FALSE(observer_.getModemPlugedInTime());
    observer_.updateSupportedInterfaceIPv4(*session, {second, u"State:/none"_s});
    EXPECT_EQ(ready_.last().kOmbraBSDName, u"en6"_s);
}

TEST_F(RouterObserverTest, ReportsRemovalOnceAndAReplugByTheSameWatch)
{
    RouterObserver deaf(store_, registry_, log_, settings_);
    EXPECT_TRUE(deaf.startWatchNetworkInterface(std::make_shared<RouterReports>()));
    observer_.startWatchNetworkInterface(reports_);
    plugIn(u"en5"_s, u"192.168.0.1"_s);
    network_.addInterface(u"eth0"_s);
    network_.removeInterface(u"en5"_s);
    network_.removeInterface(u"eth0"_s);
    store_.replaceEntries({});
    EXPECT_EQ(removed_, QStringList{u"en5"_s});
    network_.addInterface(u"en5"_s);
    EXPECT_EQ(ready_.size(), 1);
    network_.setIPv4(u"en5"_s, u"192.168.0.1"_s);
    EXPECT_EQ(ready_.size(), 2);
    network_.removeInterface(u"en5"_s);
    EXPECT_EQ(removed_.size(), 2);
}

TEST_F(RouterObserverTest, LogsOnceThatAModemStaysWithoutGateway)
{
    plugIn(u"en5"_s, std::nullopt);
    network_.addInterface(u"bridge"_s);
    network_.setIPv4(u"bridge"_s, std::nullopt);
    observer_.startWatchNetworkInterface(reports_);
    while (log_.lines().isEmpty())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    plugIn(u"en6"_s, std::nullopt);
    while (log_.lines().size() == 1)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    EXPECT_EQ(log_.lines(), (QStringList{u"en5: an address but no gateway"_s, u"en6: an address but no gateway"_s}));
}

TEST_F(RouterObserverTest, AfterARemovalAndWhenToldAfreshTheFirstModemIsReady)
{
    observer_.startWatchNetworkInterface(reports_);
    for (const QString &name : {u"en5"_s, u"en6"_s, u"veth"_s})
        name == u"veth"_s ? network_.addInterface(name) : plugIn(name, u"192.168.0.1"_s);
    store_.announce(store::anyServiceIPv4Pattern);
    EXPECT_EQ(ready_.last().kOmbraBSDName, u"en5"_s);
    network_.removeInterface(u"en5"_s);
    EXPECT_EQ(ready_.last().kOmbraBSDName, u"en6"_s);
    network_.removeInterface(u"veth"_s);
    EXPECT_EQ(ready_.size(), 4);
}

TEST_F(RouterObserverTest, ProbesForAnEthernetInterfaceWithARouter)
{
    const auto probe = [this] {
        log_.clear();
        return observer_.isInterfaceRouterReady("IOUSBHostInterface");
    };
    plugIn(u"wwan0"_s, u"192.168.0.1"_s);
    plugIn(u"en5"_s, std::nullopt);
    EXPECT_FALSE(probe());
    const auto found = u"bsd name has ethernet interface"_s;
    EXPECT_EQ(log_.lines(), (QStringList{found, u"no ethernet router is found"_s}));
    network_.setIPv4(u"en5"_s, u"192.168.0.1"_s);
    EXPECT_TRUE(probe());
    EXPECT_EQ(log_.lines(), (QStringList{found, u"ethernet router is ready"_s}));
    registry_.setReadable(false);
    EXPECT_FALSE(probe());
    EXPECT_TRUE(log_.lines().isEmpty());
}

TEST_F(RouterObserverTest, NeedsAnInterfaceName)
{
    EXPECT_DEATH(observer_.isSupportedEnthernetBSDName(std::nullopt),
                 "\\(bsdNameRef != NULL\\).*-\\[RouterObserver isSupportedEnthernetBSDName:\\].*"
                 "RouterObserver/RouterObserver.*144");
}
