#include "setup/settings/SettingKeys.h"

#include "RouterObserver/PropertyList.h"

#include <QCoreApplication>
#include <QFile>
#include <QMetaType>

namespace tarvo {

using namespace Qt::StringLiterals;

QString SettingKey::label() const
{
    return qtTrId(("Setting_" + path.last().toLatin1()).constData());
}

QString SettingKey::explanation() const
{
    return qtTrId(("Explain_" + path.last().toLatin1()).constData());
}

const QList<SettingKey> &settingKeys()
{
    using enum SettingKind;
    static const QList<SettingKey> keys{
        {vendorsPath, Identifiers},
        {{u"device_info"_s, u"product_ids"_s}, Identifiers},
        {exclusionsPath, Identifiers},
        {{u"IsDisplayNetStatusInToolBar"_s}, Flag},
        {{u"DonotShowStatusWhenMouseMoveIn"_s}, Flag},
        {{u"NeedDisplayWhenDeviceRemoved"_s}, Flag},
        {{u"AddRefererIntoHttpHeader"_s}, Flag},
        {{u"NetInfoAddress"_s}, ModemPath},
        {{u"ConnectModeAddress"_s}, ModemPath},
        {{u"NeedManualSetConnectStatus"_s}, Flag},
        {{u"ConnectStatusKey"_s}, Text},
        {{u"ConnectedStatusValue"_s}, Text},
        {{u"NeedDialModeJudge"_s}, Flag},
        {{u"ManualDialKey"_s}, Text},
        {{u"NeedCheckFotaUpdate"_s}, Flag},
        {{u"OperatorHomePage"_s}, Page},
        {{u"WebUISmsPage"_s}, Page},
        {{u"FotaNewVersionHomePage"_s}, Page},
        {{u"DateLimitHomePage"_s}, Page},
        {{u"ProvisionAccessPoints"_s}, Flag, true},
        {{u"WebDefaultApnProfileName"_s}, Text},
    };
    return keys;
}

QVariant settingAt(const QVariantMap &settings, const QStringList &path)
{
    QVariant value(settings);
    for (const QString &key : path)
        value = value.typeId() == QMetaType::QVariantMap ? value.toMap().value(key) : QVariant();
    return value;
}

QStringList identifiersAt(const QVariantMap &settings, const QStringList &path)
{
    QStringList texts;
    for (const QVariant &element : settingAt(settings, path).toList()) {
        if (element.typeId() == QMetaType::QString)
            texts.append(element.toString());
    }
    return texts;
}

QByteArray shippedSettingsFile()
{
    QFile file(u":/tarvo/setup/Config.plist"_s);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

const QVariantMap &shippedSettings()
{
    static const QVariantMap settings = readPropertyList(shippedSettingsFile()).root.value_or(QVariant()).toMap();
    return settings;
}

} // namespace tarvo
