#include "RouterObserver/SettingsProblem.h"

#include "RouterObserver/ConfigManager.h"

#include <QMetaType>
#include <QVariantList>
#include <QVariantMap>

#include <algorithm>

namespace tarvo {

using namespace Qt::StringLiterals;

SettingsProblem settingsProblem(const ConfigManager &settings)
{
    if (!settings.settingPath())
        return SettingsProblem::NoFile;
    if (settings.loadProblem())
        return SettingsProblem::Unreadable;
    const auto info = settings.getConfigurationByModule(u"device_info"_s).value_or(QVariant());
    const QVariantList vendors = info.toMap().value(u"vendor_ids"_s).toList();
    const auto isUsable = [](const QVariant &vendor) {
        return vendor.typeId() == QMetaType::QString && vendor.toString() != u"4660";
    };
    if (std::ranges::any_of(vendors, isUsable))
        return SettingsProblem::None;
    const auto isNumber = [](const QVariant &vendor) { return vendor.typeId() != QMetaType::QString; };
    return std::ranges::any_of(vendors, isNumber) ? SettingsProblem::VendorIsNumber : SettingsProblem::NoVendor;
}

QString logLine(SettingsProblem problem)
{
    switch (problem) {
    case SettingsProblem::NoFile:
        return u"settings: there are none, so that no modem is supported"_s;
    case SettingsProblem::Unreadable:
        return u"settings: they cannot be read, so that no modem is supported"_s;
    case SettingsProblem::NoVendor:
        return u"settings: vendor_ids lists no vendor of a modem"_s;
    case SettingsProblem::VendorIsNumber:
        return u"settings: a number in vendor_ids never matches, it is to be written as a text"_s;
    case SettingsProblem::None:
        break;
    }
    return {};
}

} // namespace tarvo
