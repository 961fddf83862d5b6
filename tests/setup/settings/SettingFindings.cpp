#include "setup/settings/SettingFindings.h"

#include "RouterObserver/PropertyList.h"
#include "tests/support/PrintQt.h"

#include <gtest/gtest.h>

using namespace tarvo;
using namespace Qt::StringLiterals;

namespace {

/// Good settings with the entries of @p xml.
QList<SettingFinding> findings(const QByteArray &xml)
{
    const auto root = readPropertyList("<plist><dict>" + xml + "</dict></plist>").root;
    QVariantMap settings{{u"device_info"_s, QVariantMap{{u"vendor_ids"_s, QVariantList{u"1"_s}}}}};
    settings.insert(root.value_or(QVariant()).toMap());
    return checkSettings(settings);
}

QByteArray vendors(const QByteArray &elements)
{
    return "<key>device_info</key><dict><key>vendor_ids</key><array>" + elements + "</array></dict>";
}

} // namespace

TEST(SettingFindings, NameWhatTheCompanionWouldNotUnderstand)
{
    using enum Fault;
    const QString vendorIds = u"device_info/vendor_ids"_s;
    const std::pair<QByteArray, QList<SettingFinding>> cases[] = {
        {"", {}},
        {"<key>NeedDialModeJudge</key><string>yes</string><key>OperatorHomePage</key><string>http://%@/a</string>", {}},
        {"<key>NeedDialModeJugde</key><true/>", {{UnknownKey, u"NeedDialModeJugde"_s}}},
        {"<key>NeedDialModeJudge</key><array/>", {{WrongType, u"NeedDialModeJudge"_s}}},
        {"<key>ManualDialKey</key><true/>", {{WrongType, u"ManualDialKey"_s}}},
        {"<key>OperatorHomePage</key><string>www.example.org</string>",
         {{NoUrl, u"OperatorHomePage"_s, u"www.example.org"_s}}},
        {"<key>OperatorHomePage</key><string>http:///x</string>", {{NoUrl, u"OperatorHomePage"_s, u"http:///x"_s}}},
        {"<key>NetInfoAddress</key><string>http://a/b</string>", {{NoModemPath, u"NetInfoAddress"_s, u"http://a/b"_s}}},
        {vendors("<integer>4660</integer>"), {{NumberNeverMatches, vendorIds, u"4660"_s}}},
        {vendors("<string>0x1234</string>"), {{NotDecimal, vendorIds, u"0x1234"_s}}},
        {vendors("<string>70000</string>"), {{NotDecimal, vendorIds, u"70000"_s}}},
        {vendors("<true/>"), {{WrongType, vendorIds}}},
        {vendors(""), {{NoVendor, vendorIds}}},
        {vendors("<string>4660</string>"), {{OnlyExampleVendor, vendorIds, u"4660"_s}}},
        {vendors("<string>4660</string><string>1</string>"), {}},
        {"<key>device_info</key><string>1</string>", {{WrongType, u"device_info"_s}, {NoVendor, vendorIds}}},
        {"<key>device_info</key><dict><key>vendor_id</key><array/></dict>",
         {{UnknownKey, u"device_info/vendor_id"_s}, {NoVendor, vendorIds}}},
    };
    for (const auto &[xml, expected] : cases)
        EXPECT_EQ(findings(xml), expected) << xml.toStdString();
}

TEST(SettingFindings, FindNothingInWhatIsShippedButTheExample)
{
    const QList<SettingFinding> example{{Fault::OnlyExampleVendor, u"device_info/vendor_ids"_s, exampleVendor}};
    EXPECT_EQ(checkSettings(shippedSettings()), example);

    QByteArray all = shippedSettingsFile();
    for (qsizetype begin = 0; (begin = all.indexOf("<!--\n", begin + 1)) >= 0;) {
        const qsizetype end = all.indexOf("-->", begin);
        if (all.mid(begin, end - begin).contains("<key>"))
            all.remove(end, 3).remove(begin, 4);
    }
    const QVariantMap settings = readPropertyList(all).root.value_or(QVariant()).toMap();
    EXPECT_EQ(checkSettings(settings), example) << "the entries in comments";
    for (const SettingKey &key : settingKeys())
        EXPECT_TRUE(settingAt(settings, key.path).isValid()) << key.name().toStdString();
}
