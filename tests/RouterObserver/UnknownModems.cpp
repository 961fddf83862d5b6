#include "RouterObserver/UnknownModems.h"

#include "tests/RouterObserver/ObserverFixture.h"

using namespace tarvo;

TEST_F(RouterObserverTest, UnknownModemsAreThoseWithAGatewayThatTheSettingsNeitherNameNorExclude)
{
    const auto plug = [&](const QString &name, int vendorID, int productID, const std::optional<QString> &router) {
        registry_.addModem(name, vendorID, productID);
        network_.addInterface(name);
        network_.setIPv4(name, router);
    };
    int changes = 0;
    UnknownModems unknown(store_, registry_, observer_, [&] { ++changes; });
    unknown.watch();
    plug(u"en1"_s, vendor, product, u"10.0.0.1"_s);
    plug(u"en2"_s, vendor + 1, excludedProduct, u"10.0.0.1"_s);
    plug(u"en3"_s, 0x00ab, 1, std::nullopt);
    EXPECT_EQ(unknown.first(), std::nullopt);
    network_.setIPv4(u"en3"_s, u"10.0.0.3"_s);
    EXPECT_EQ(unknown.first(), u"00ab:0001"_s);
    network_.removeInterface(u"en3"_s);
    EXPECT_EQ(unknown.first(), std::nullopt);
    EXPECT_EQ(changes, 2);
}
