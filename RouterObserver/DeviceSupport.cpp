#include "RouterObserver/DeviceSupport.h"

#include "RouterObserver/ConfigManager.h"

#include <QMetaType>

#include <algorithm>

namespace tarvo {

using namespace Qt::StringLiterals;

QVariantList deviceIdentifiers(const ConfigManager &settings, const QString &key)
{
    const auto module = u"device_info"_s;
    const auto info = settings.getConfigurationByModule(module);
    if (!info || info->typeId() != QMetaType::QVariantMap)
        return {};
    return settings.getConfigurationByModuleAndKey(module, key).value_or(QVariant()).toList();
}

bool listsIdentifier(const ConfigManager &settings, const QString &key, qint64 identifier)
{
    const auto identifiers = deviceIdentifiers(settings, key);
    const QString decimal = QString::number(static_cast<qint32>(identifier));
    return std::ranges::any_of(identifiers, [&](const QVariant &listed) { return isText(listed, decimal); });
}

Support supportOf(qint64 vendor, std::optional<qint64> product, const ConfigManager &settings)
{
    if (product && listsIdentifier(settings, u"eliminate_product_ids"_s, *product))
        return Support::Excluded;
    return listsIdentifier(settings, u"vendor_ids"_s, vendor) ? Support::Supported : Support::Unsupported;
}

} // namespace tarvo
