#include "RouterObserver/RouterObserver.h"

#include "RouterObserver/ConfigManager.h"
#include "platform/StateStore.h"
#include "simulator/RecordingLog.h"
#include "simulator/SimulatedDeviceRegistry.h"
#include "simulator/SimulatedNetwork.h"
#include "tests/support/PrintQt.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QVariantList>

#include <gtest/gtest.h>

using namespace tarvo;
using namespace Qt::StringLiterals;

namespace {

constexpr int vendor = 0x1234;
constexpr int product = 0x5678;
constexpr int excludedProduct = 0x5679;

/// Gives the process settings of its own, before the first look at them.
QVariantMap &settings()
{
    static QVariantMap *const dictionary = [] {
        const QTemporaryDir home;
        QDir(home.path()).mkpath(u"tarvo"_s);
        QFile file(home.filePath(u"tarvo/Config.plist"_s));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("<?xml version=\"1.0\"?><plist version=\"1.0\"><dict/></plist>");
        file.close();
        qputenv("XDG_CONFIG_HOME", home.path().toLocal8Bit());
        return ConfigManager::sharedConfigManager().getConfiguration();
    }();
    return *dictionary;
}

class RouterObserverTest : public testing::Test {
protected:
    RouterObserverTest()
    {
        settings() = {{u"device_info"_s,
                       QVariantMap{{u"vendor_ids"_s, QVariantList{u"4660"_s, qlonglong(0x4321)}},
                                   {u"product_ids"_s, QVariantList{}},
                                   {u"eliminate_product_ids"_s, QVariantList{QString::number(excludedProduct)}}}}};
    }

    std::shared_ptr<RouterReports> reports()
    {
        auto made = std::make_shared<RouterReports>();
        made->procECMReady = [this](const ReadyDictionary &ready) { ready_.append(ready); };
        made->procInterfaceRemoved = [this](const QString &bsdName) { removed_.append(bsdName); };
        return made;
    }

    void plugIn(const QString &bsdName)
    {
        network_.addInterface(bsdName), registry_.addModem(bsdName, vendor, product);
    }

    StateStore store_;
    SimulatedNetwork network_{store_};
    SimulatedDeviceRegistry registry_;
    RecordingLog log_;
    RouterObserver observer_{store_, registry_, log_};
    QList<ReadyDictionary> ready_;
    QStringList removed_;
};

} // namespace

TEST_F(RouterObserverTest, SupportsEveryProductOfAListedVendorThatIsNotExcluded)
{
    const auto supported = [this](int vendorID, int productID) {
        const auto name = u"en%1"_s.arg(productID);
        const auto device = registry_.addModem(name, vendorID, productID);
        const bool answer = observer_.isSupportedEnthernetBSDName(name);
        registry_.removeDevice(device);
        return answer;
    };
    EXPECT_TRUE(supported(vendor, product)) << "identifiers are found above the interface's own device";
    EXPECT_FALSE(supported(vendor, excludedProduct));
    EXPECT_FALSE(supported(vendor + 1, product));
    EXPECT_FALSE(supported(0x4321, product)) << "the list holds the number, not the text";
    EXPECT_FALSE(observer_.isSupportedProductID(product));
    EXPECT_TRUE(observer_.isSupportedVendorID(vendor + (1LL << 32))) << "the low 32 bits count";
    EXPECT_FALSE(observer_.isSupportedEnthernetBSDName(u"lo"_s));
    EXPECT_EQ(observer_.getIOServiceOfBSDName(u"lo"_s), 0U);

    const auto longName = QString(256, u'e');
    registry_.addModem(longName, vendor, product);
    EXPECT_EQ(observer_.getIOServiceOfBSDName(longName), 0U);
    const auto bare = registry_.addDevice({.parent = 0, .className = {}, .properties = {{u"idVendor"_s, vendor}}});
    EXPECT_TRUE(observer_.isSupportedIOService(bare)) << "no product, so none that is excluded";
    EXPECT_FALSE(observer_.isSupportedIOService(0));
}

TEST_F(RouterObserverTest, SupportsNothingWithoutAVendorList)
{
    for (const QVariant &info :
         {QVariant(), QVariant(QVariantMap()), QVariant(QVariantList{u"x"_s}), QVariant(u"x"_s)}) {
        settings()[u"device_info"_s] = info;
        EXPECT_FALSE(observer_.isSupportedVendorID(vendor)) << info.typeName();
        EXPECT_FALSE(observer_.isExcludedProductID(excludedProduct));
    }
}

TEST_F(RouterObserverTest, ReportsAModemThatIsThereAtTheStart)
{
    plugIn(u"en5"_s);
    network_.setIPv4(u"en5"_s, u"192.168.0.1"_s);
    EXPECT_TRUE(observer_.startWatchNetworkInterface(reports()));
    const ReadyDictionary expected{u"192.168.0.1"_s, registry_.serviceMatchingBSDName(u"en5"_s), u"en5"_s};
    EXPECT_EQ(ready_, QList{expected});
    EXPECT_TRUE(observer_.getModemPlugedInTime());
}

TEST_F(RouterObserverTest, ReportsEachChangeOfTheModemAndForgetsTheTimeOnOthers)
{
    observer_.startWatchNetworkInterface(reports());
    registry_.addModem(u"en5"_s, vendor, product);
    network_.addInterface(u"en5"_s);
    network_.addInterface(u"eth0"_s);
    EXPECT_TRUE(ready_.isEmpty());
    network_.setIPv4(u"en5"_s, std::nullopt);
    network_.setIPv4(u"en5"_s, u"192.168.0.1"_s);
    ASSERT_EQ(ready_.size(), 2);
    EXPECT_EQ(ready_[0].router, std::nullopt);
    EXPECT_EQ(ready_[1].router, u"192.168.0.1"_s);
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
    plugIn(u"en5"_s);
    plugIn(u"en6"_s);
    network_.setIPv4(u"en5"_s, u"192.168.0.1"_s);
    network_.setIPv4(u"en6"_s, u"192.168.0.2"_s);
    observer_.startWatchNetworkInterface(reports());
    ASSERT_EQ(ready_.size(), 1);
    EXPECT_EQ(ready_[0].kOmbraBSDName, u"en5"_s) << "the first of the store's order";
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
    plugIn(u"en5"_s);
    network_.setIPv4(u"en5"_s, u"192.168.0.1"_s);
    observer_.startWatchNetworkInterface(reports());
    network_.addInterface(u"eth0"_s);
    network_.removeInterface(u"en5"_s);
    network_.removeInterface(u"eth0"_s);
    EXPECT_EQ(removed_, QStringList{u"en5"_s});
    network_.addInterface(u"en5"_s);
    EXPECT_EQ(ready_.size(), 1);
    network_.setIPv4(u"en5"_s, u"192.168.0.1"_s);
    EXPECT_EQ(ready_.size(), 2);
    network_.removeInterface(u"en5"_s);
    EXPECT_EQ(removed_.size(), 2);
}

TEST_F(RouterObserverTest, GoesOnWithoutAnObserversOperations)
{
    plugIn(u"en5"_s);
    network_.setIPv4(u"en5"_s, u"192.168.0.1"_s);
    EXPECT_TRUE(observer_.startWatchNetworkInterface(std::make_shared<RouterReports>()));
    EXPECT_TRUE(observer_.getModemPlugedInTime());
    network_.removeInterface(u"en5"_s);
    store_.replaceEntries({});
    EXPECT_FALSE(observer_.getModemPlugedInTime());
}

TEST_F(RouterObserverTest, ProbesForAnEthernetInterfaceWithARouter)
{
    const auto probe = [this] {
        log_.clear();
        return observer_.isInterfaceRouterReady("IOUSBHostInterface");
    };
    plugIn(u"wwan0"_s);
    plugIn(u"en5"_s);
    network_.setIPv4(u"wwan0"_s, u"192.168.0.1"_s);
    EXPECT_FALSE(probe());
    const auto found = u"bsd name has ethernet interface"_s;
    EXPECT_EQ(log_.lines(), (QStringList{found, u"no ethernet router is found"_s}));
    network_.setIPv4(u"en5"_s, u"192.168.0.1"_s);
    EXPECT_TRUE(probe());
    EXPECT_EQ(log_.lines(), (QStringList{found, u"ethernet router is ready"_s}));
    EXPECT_FALSE(observer_.isInterfaceRouterReady("IOUSBInterface"));
    EXPECT_EQ(log_.lines().last(), u"no ethernet router is found"_s);
    registry_.setReadable(false);
    EXPECT_FALSE(probe());
    EXPECT_TRUE(log_.lines().isEmpty());
    EXPECT_FALSE(observer_.getModemPlugedInTime());
}

TEST_F(RouterObserverTest, NeedsAnInterfaceName)
{
    EXPECT_DEATH(observer_.isSupportedEnthernetBSDName(std::nullopt),
                 "\\(bsdNameRef != NULL\\).*-\\[RouterObserver isSupportedEnthernetBSDName:\\].*"
                 "RouterObserver/RouterObserver.*144");
}
