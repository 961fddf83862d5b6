#include "RouterObserver/SettingsProblem.h"

#include "RouterObserver/ConfigManager.h"
#include "RouterObserver/DeviceSupport.h"

#include <QMetaType>
#include <QVariantList>
#include <QVariantMap>

#include <algorithm>

namespace tarvo {

using namespace Qt::StringLiterals;

namespace {

QVariantList vendorsOf(const ConfigManager &settings)
{
    return deviceIdentifiers(settings, u"vendor_ids"_s);
}

bool isWrittenAsText(const QVariant &vendor)
{
    return vendor.typeId() == QMetaType::QString;
}

} // namespace

SettingsProblem settingsProblem(const ConfigManager &settings)
{
    if (!settings.settingPath())
        return SettingsProblem::NoFile;
    if (settings.loadProblem())
        return SettingsProblem::Unreadable;
    const QVariantList vendors = vendorsOf(settings);
    const auto isUsable = [](const QVariant &vendor) {
        return isWrittenAsText(vendor) && vendor.toString() != u"4660";
    };
    if (std::ranges::any_of(vendors, isUsable))
        return SettingsProblem::None;
    return std::ranges::all_of(vendors, isWrittenAsText) ? SettingsProblem::NoVendor : SettingsProblem::VendorIsNumber;
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

QString unmatchedVendorLine(const ConfigManager &settings)
{
    const QVariantList vendors = vendorsOf(settings);
    const auto found = std::ranges::find_if_not(vendors, isWrittenAsText);
    if (found == vendors.end())
        return {};
    return u"settings: entry %1 of vendor_ids, %2, never matches, it is to be written as a text"_s
        .arg(found - vendors.begin() + 1)
        .arg(found->toString());
}

} // namespace tarvo
