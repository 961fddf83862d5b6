#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <QVariantMap>

namespace tarvo {

using Qt::StringLiterals::operator""_s;

/// What a setting's value is.
enum class SettingKind {
    Flag, ///< a truth value; numbers and texts can be read as one
    Text,
    ModemPath, ///< a path on the modem's web server
    Page, ///< an address for the browser; "%@" stands for the modem's address
    Identifiers, ///< texts that are USB identifiers in decimal
};

/// One setting that the companion reads.
struct SettingKey {
    QStringList path; ///< the key, after the key of the dictionary that it stands in, if it stands in one
    SettingKind kind;
    bool flagWhenAbsent = false; ///< how a flag reads when it is absent

    QString name() const { return path.join(u'/'); }
    /// @return what the setting is called, in the user's language
    QString label() const;
    /// @return what the setting does, in the user's language
    QString explanation() const;
};

/// All settings, in the order in which they are explained.
const QList<SettingKey> &settingKeys();

/// @return the value at @p path in @p settings; invalid when it is absent
QVariant settingAt(const QVariantMap &settings, const QStringList &path);

/// @return the texts of the list at @p path; what is no text is left out
QStringList identifiersAt(const QVariantMap &settings, const QStringList &path);

inline const QStringList vendorsPath{u"device_info"_s, u"vendor_ids"_s};
inline const QStringList exclusionsPath{u"device_info"_s, u"eliminate_product_ids"_s};

/// The vendor that the shipped settings name as an example.
inline const QString exampleVendor = u"4660"_s;

/// The settings that the companion is shipped with, as bytes of an XML property list.
QByteArray shippedSettingsFile();
/// The same as values.
const QVariantMap &shippedSettings();

} // namespace tarvo
