#include "platform/linux/network/UdevDeviceRegistry.h"

#include "tests/support/PrintQt.h"

#include <QMap>

#include <gio/gio.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <umockdev.h>

#include <memory>

using namespace tarvo;
using namespace Qt::StringLiterals;

namespace {

constexpr const char *devices = R"(P: /devices/usb1
E: SUBSYSTEM=usb
E: DEVTYPE=usb_device
A: idVendor=1d6b
A: idProduct=0002

P: /devices/usb1/1-1
E: SUBSYSTEM=usb
E: DEVTYPE=usb_device
A: idVendor=12d1\n
A: idProduct=00fF\n

P: /devices/usb1/1-1/1-1:1.0
E: SUBSYSTEM=usb
E: DEVTYPE=usb_interface

P: /devices/usb1/1-1/1-1:1.0/net/en5
E: SUBSYSTEM=net
A: ifindex=5\n
L: device=../../../1-1:1.0

P: /devices/usb1/1-1/1-1:1.1
E: SUBSYSTEM=usb
E: DEVTYPE=usb_interface

P: /devices/virtual/net/veth6
E: SUBSYSTEM=net
A: ifindex=6\n
)";

class UdevDeviceRegistryTest : public testing::Test {
protected:
    void SetUp() override
    {
        // The testbed's thread would start GLib's worker some time later, which ends the process when it finds no descriptor.
        g_type_ensure(G_TYPE_TASK);
        m_testbed.reset(umockdev_testbed_new());
        ASSERT_TRUE(umockdev_in_mock_environment()) << "this test runs under umockdev-wrapper";
        ASSERT_TRUE(umockdev_testbed_add_from_string(m_testbed.get(), devices, nullptr));
    }

    QVariant above(IOServiceHandle service, const QString &key)
    {
        return m_registry.searchProperty(service, key, RegistrySearch::Upward).value_or(u"none"_s);
    }
    QVariant nameBelow(IOServiceHandle service)
    {
        return m_registry.searchProperty(service, u"BSD Name"_s, RegistrySearch::Downward).value_or(u"none"_s);
    }

    std::unique_ptr<UMockdevTestbed, decltype(&g_object_unref)> m_testbed{nullptr, &g_object_unref};
    QMap<QString, int> m_indexes{{u"en5"_s, 5}, {u"veth6"_s, 6}};
    int m_failures = 0;
    // Not by way of "this": the sanitizer needs a descriptor to check that, and a test leaves none.
    UdevDeviceRegistry m_registry{[&indexes = m_indexes](const QString &name) { return indexes.value(name); },
                                  [&failures = m_failures] { ++failures; }};
};

} // namespace

TEST_F(UdevDeviceRegistryTest, KnowsTheUsbDeviceBehindAnInterface)
{
    const IOServiceHandle service = m_registry.serviceMatchingBSDName(u"en5"_s);
    ASSERT_NE(service, 0);
    EXPECT_EQ(above(service, u"idVendor"_s), QVariant(0x12d1));
    EXPECT_EQ(above(service, u"idProduct"_s), QVariant(0xff));
    EXPECT_EQ(nameBelow(service), u"en5"_s);
    for (const QString &none : {u"veth6"_s, u"unknown"_s, u""_s})
        EXPECT_EQ(m_registry.serviceMatchingBSDName(none), 0) << none.toStdString();
}

TEST_F(UdevDeviceRegistryTest, KeepsWhatItReadUntilTheInterfaceIsForgotten)
{
    const IOServiceHandle service = m_registry.serviceMatchingBSDName(u"en5"_s);
    umockdev_testbed_remove_device(m_testbed.get(), "/sys/devices/usb1/1-1");
    m_indexes = {{u"enx0"_s, 5}};
    EXPECT_EQ(m_registry.serviceMatchingBSDName(u"enx0"_s), service) << "a rename is no other device";
    EXPECT_EQ(above(service, u"idVendor"_s), QVariant(0x12d1));
    EXPECT_EQ(nameBelow(service), u"enx0"_s);

    m_registry.forgetInterface(5);
    EXPECT_EQ(above(service, u"idVendor"_s), u"none"_s);
    EXPECT_EQ(m_registry.serviceMatchingBSDName(u"enx0"_s), 0);
}

TEST_F(UdevDeviceRegistryTest, LooksAgainAfterAShortageOfDescriptors)
{
    rlimit usual{};
    getrlimit(RLIMIT_NOFILE, &usual);
    for (rlimit few{0, usual.rlim_max}; few.rlim_cur < 40; ++few.rlim_cur) {
        setrlimit(RLIMIT_NOFILE, &few);
        m_registry.serviceMatchingBSDName(u"en5"_s);
        setrlimit(RLIMIT_NOFILE, &usual);
        EXPECT_EQ(above(m_registry.serviceMatchingBSDName(u"en5"_s), u"idVendor"_s), 0x12d1) << few.rlim_cur;
        m_registry.forgetInterface(5);
    }
    EXPECT_GT(m_failures, 0);
}

TEST_F(UdevDeviceRegistryTest, TakesNeitherAHubNorAnotherLinkForTheDevice)
{
    umockdev_testbed_set_attribute(m_testbed.get(), "/sys/devices/usb1/1-1", "idVendor", "garbage");
    EXPECT_EQ(above(m_registry.serviceMatchingBSDName(u"en5"_s), u"idVendor"_s), u"none"_s);
    m_indexes = {{u"en5"_s, 8}};
    EXPECT_EQ(m_registry.serviceMatchingBSDName(u"en5"_s), 0);
}

TEST_F(UdevDeviceRegistryTest, ListsUsbInterfacesUnderBothClassNames)
{
    const auto services = m_registry.servicesMatchingClass("IOUSBHostInterface");
    ASSERT_EQ(services.value_or(QList<IOServiceHandle>()).size(), 2);
    EXPECT_EQ(m_registry.servicesMatchingClass("IOUSBInterface"), services);
    EXPECT_TRUE(m_registry.servicesMatchingClass("IOPCIDevice")->isEmpty());
    EXPECT_EQ(above(services->first(), u"idVendor"_s), QVariant(0x12d1));
    EXPECT_EQ(nameBelow(services->first()), u"en5"_s);
    EXPECT_EQ(nameBelow(services->last()), u"none"_s);

    umockdev_testbed_remove_device(m_testbed.get(), "/sys/devices/usb1/1-1/1-1:1.0");
    EXPECT_EQ(m_registry.servicesMatchingClass("IOUSBInterface"), QList{services->last()});
    EXPECT_EQ(above(services->first(), u"idVendor"_s), u"none"_s);
}
