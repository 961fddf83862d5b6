#include "RouterObserver/ConfigManager.h"

#include "RouterObserver/PropertyList.h"
#include "RouterObserver/SettingFile.h"
#include "platform/Assertion.h"
#include "platform/WholeFile.h"

#include <QMetaType>
#include <QVariantList>

#include <algorithm>
#include <stdexcept>

namespace tarvo {

using namespace Qt::StringLiterals;

namespace {

bool isList(const QVariant &value)
{
    return value.typeId() == QMetaType::QVariantList;
}

bool isMap(const QVariant &value)
{
    return value.typeId() == QMetaType::QVariantMap;
}

std::optional<QVariant> entryOf(const QVariantMap &map, const QString &key)
{
    const auto entry = map.constFind(key);
    return entry == map.cend() ? std::nullopt : std::optional(*entry);
}

QVariant elementEqualTo(const QVariantList &list, const QString &key)
{
    const auto element = std::ranges::find_if(list, [&](const QVariant &value) { return isText(value, key); });
    const qsizetype index = element == list.end() ? -1 : element - list.begin();
    const auto position = static_cast<quint32>(index);
    if (position >= static_cast<quint64>(list.size()))
        throw std::out_of_range("no element of the array equals the key");
    return list[position];
}

bool isEqual(const QVariant &one, const QVariant &other)
{
    const bool oneIsText = one.typeId() == QMetaType::QString;
    const bool otherIsText = other.typeId() == QMetaType::QString;
    return oneIsText == otherIsText && one == other; // a variant takes a text and a number for equal
}

bool contains(const QVariantList &list, const QVariant &value)
{
    return std::ranges::any_of(list, [&](const QVariant &element) { return isEqual(element, value); });
}

bool textAsFlag(const QString &text)
{
    const auto *const first = std::ranges::find_if_not(text, [](QChar c) { return c.isSpace(); });
    return first != text.end() && u"YyTt123456789"_s.contains(*first);
}

} // namespace

ConfigManager &ConfigManager::sharedConfigManager()
{
    // Never destroyed: threads that outlive `main` may still read it.
    static auto *const instance = new ConfigManager;
    return *instance;
}

ConfigManager::ConfigManager()
    : settingPath_(findSettingFile())
{
    load();
}

ConfigManager::ConfigManager(const std::optional<QString> &filePath)
    : settingPath_(filePath)
{
    TARVO_ASSERT(filePath, "filePath != nil", "-[ConfigManager initWithFilePath:]", "RouterObserver/ConfigManager", 46);
    load();
}

ConfigManager::ConfigManager(const QVariantMap &values)
    : configDict_(values)
{
}

void ConfigManager::load()
{
    if (!settingPath_)
        return;
    const SettingFileReading reading = readSettingFile(*settingPath_);
    m_digest = settingDigest(reading.bytes);
    if (reading.values.root)
        configDict_ = reading.values.root->toMap();
    else
        loadProblem_ = u"%1: %2"_s.arg(*settingPath_, reading.values.problem);
}

std::optional<QVariant> ConfigManager::getConfigurationByModule(const std::optional<QString> &module) const
{
    return module && configDict_ ? entryOf(*configDict_, *module) : std::nullopt;
}

std::optional<QVariant> ConfigManager::getConfigurationByModuleAndKey(const std::optional<QString> &module,
                                                                      const std::optional<QString> &moduleKey) const
{
    const auto value = getConfigurationByModule(module);
    if (!value || !moduleKey)
        return std::nullopt;
    if (isMap(*value))
        return entryOf(value->toMap(), *moduleKey);
    if (isList(*value))
        return elementEqualTo(value->toList(), *moduleKey);
    return std::nullopt;
}

bool ConfigManager::flag(const QString &module, bool absent) const
{
    return boolValue(getConfigurationByModule(module).value_or(absent));
}

std::optional<QString> ConfigManager::text(const QString &module) const
{
    const auto value = getConfigurationByModule(module);
    return value && value->typeId() == QMetaType::QString ? std::optional(value->toString()) : std::nullopt;
}

bool ConfigManager::setConfigurationByModule(const std::optional<QString> &module,
                                             const std::optional<QVariant> &object)
{
    if (!module || !object || !configDict_)
        return false;
    configDict_->insert(*module, *object);
    return true;
}

bool ConfigManager::setConfigurationByModuleKeyAndValue(const std::optional<QString> &module,
                                                        const std::optional<QString> &key, const QVariant &value)
{
    if (!module || !key || !configDict_ || !configDict_->contains(*module))
        return false;
    QVariant &content = (*configDict_)[*module];
    if (isMap(content)) {
        auto map = content.toMap();
        map.insert(*key, value);
        content = map;
    } else if (isList(content) && !contains(content.toList(), value)) {
        auto list = content.toList();
        list.append(value);
        content = list;
    }
    return true;
}

bool ConfigManager::removeConfigurationByModule(const std::optional<QString> &module)
{
    if (!module || !configDict_ || configDict_->isEmpty())
        return false;
    configDict_->remove(*module);
    return true;
}

bool ConfigManager::removeConfigurationByModuleAndKey(const std::optional<QString> &module,
                                                      const std::optional<QString> &moduleKey)
{
    const auto value = getConfigurationByModule(module);
    if (!value || !moduleKey)
        return false;
    if (isMap(*value)) {
        auto map = value->toMap();
        map.remove(*moduleKey);
        configDict_->insert(*module, map);
    }
    return true;
}

QVariantMap *ConfigManager::getConfiguration()
{
    return configDict_ ? &*configDict_ : nullptr;
}

void ConfigManager::flush() const
{
    const auto bytes = configDict_ ? writePropertyList(*configDict_) : std::nullopt;
    if (!bytes)
        return;
    writeWholeFile(*settingPath_, *bytes);
}

bool isText(const QVariant &value, const QString &text)
{
    return value.typeId() == QMetaType::QString && value.toString() == text;
}

bool boolValue(const std::optional<QVariant> &value)
{
    if (!value)
        return false;
    switch (value->typeId()) {
    case QMetaType::QString:
        return textAsFlag(value->toString());
    case QMetaType::Bool:
        return value->toBool();
    case QMetaType::Int:
    case QMetaType::LongLong:
    case QMetaType::Double:
        return value->toDouble() != 0;
    default:
        return false;
    }
}

} // namespace tarvo
