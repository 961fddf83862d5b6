#pragma once

#include "RouterObserver/ConfigManager.h"
#include "RouterObserver/RouterObserver.h"
#include "platform/StateStore.h"
#include "simulator/surroundings/RecordingLog.h"
#include "simulator/surroundings/SimulatedDeviceRegistry.h"
#include "simulator/surroundings/SimulatedNetwork.h"
#include "tests/support/PrintQt.h"

#include <QVariantList>

#include <gtest/gtest.h>

namespace tarvo {

using Qt::StringLiterals::operator""_s;

inline constexpr int vendor = 0x1234;
inline constexpr int product = 0x5678;
inline constexpr int excludedProduct = 0x5679;

/// @return those that are shipped, with other devices
inline ConfigManager settingsWith(const QVariant &deviceInfo)
{
    ConfigManager settings(QStringLiteral(TARVO_SHIPPED_CONFIG));
    settings.setConfigurationByModule(u"device_info"_s, deviceInfo);
    return settings;
}

class RouterObserverTest : public testing::Test {
protected:
    RouterObserverTest()
    {
        auto reports = std::make_shared<RouterReports>();
        reports->procECMReady = [this](const ReadyDictionary &ready) { ready_.append(ready); };
        reports->procInterfaceRemoved = [this](const QString &bsdName) { removed_.append(bsdName); };
        reports_ = reports;
    }

    void plugIn(const QString &bsdName, const std::optional<QString> &router)
    {
        registry_.addModem(bsdName, vendor, product);
        network_.addInterface(bsdName);
        network_.setIPv4(bsdName, router);
    }

    StateStore store_;
    SimulatedNetwork network_{store_};
    SimulatedDeviceRegistry registry_;
    RecordingLog log_;
    ConfigManager settings_ =
        settingsWith(QVariantMap{{u"vendor_ids"_s, QVariantList{u"4660"_s, qlonglong(0x4321)}},
                                 {u"eliminate_product_ids"_s, QVariantList{QString::number(excludedProduct)}}});
    RouterObserver observer_{store_, registry_, log_, settings_};
    std::shared_ptr<const RouterReports> reports_;
    QList<ReadyDictionary> ready_;
    QStringList removed_;
};

} // namespace tarvo
