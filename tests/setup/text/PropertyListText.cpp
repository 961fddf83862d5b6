#include "setup/text/PropertyListText.h"

#include "setup/settings/SettingKeys.h"
#include "tests/support/PrintQt.h"

#include <gtest/gtest.h>

#include <functional>

using namespace tarvo;
using namespace Qt::StringLiterals;

namespace {

using Change = std::function<std::optional<PropertyListText>(const PropertyListText &)>;

Change set(const QStringList &path, const QVariant &value)
{
    return [=](const PropertyListText &text) { return text.withValue(path, value); };
}

Change texts(const QStringList &path, const QStringList &wanted)
{
    return [=](const PropertyListText &text) { return text.withTexts(path, wanted); };
}

Change remove(const QStringList &path)
{
    return [=](const PropertyListText &text) { return text.withoutValue(path); };
}

/// @return @p xml after @p change; a text in angle brackets when there is none
QByteArray changed(const QByteArray &xml, const Change &change)
{
    const auto text = PropertyListText::fromBytes(xml);
    const auto result = text ? change(*text) : std::nullopt;
    if (!text)
        return "<unreadable>";
    return result ? result->toBytes() : "<refused>"_ba;
}

} // namespace

TEST(PropertyListText, ChangesTheEntryAndNothingElse)
{
    const QStringList list{u"d"_s, u"l"_s};
    const std::tuple<QByteArray, Change, QByteArray> cases[] = {
        // one entry for another, and an entity before it
        {"<a>&amp;</a><k>x</k>\n<t/> <!-- why -->\n", set({u"x"_s}, false),
         "<a>&amp;</a><k>x</k>\n<f/> <!-- why -->\n"},
        {"<k>x</k><s>1</s><k>x</k><s>2</s>", set({u"x"_s}, u"<&"_s), "<k>x</k><s>1</s><k>x</k><s>&lt;&amp;</s>"},
        // a new entry: last, behind the remark on the one before; or after its example
        {"\n  <k>x</k>\n  <t/> <!-- why -->\n", set({u"y"_s}, true),
         "\n  <k>x</k>\n  <t/> <!-- why -->\n  <k>y</k>\n  <t/>\n"},
        {"\n <!--\n <k>y</k>\n <t/>\n -->\n <k>x</k>\n <t/>\n", set({u"y"_s}, u"v"_s),
         "\n <!--\n <k>y</k>\n <t/>\n -->\n <k>y</k>\n <s>v</s>\n <k>x</k>\n <t/>\n"},
        {"", set(list, QVariantList{u"1"_s}),
         "\n  <k>d</k>\n  <dict>\n    <k>l</k>\n    <array>\n      <s>1</s>\n    </array>\n  </dict>\n"},
        // lists
        {"\r\n <k>d</k>\r\n <dict>\r\n  <k>l</k>\r\n  <array/>\r\n </dict>\r\n", texts(list, {u"1"_s}),
         "\r\n <k>d</k>\r\n <dict>\r\n  <k>l</k>\r\n  <array>\r\n    <s>1</s>\r\n  </array>\r\n </dict>\r\n"},
        {"<k>d</k><dict><k>l</k><array>\n <integer>7</integer>\n <s>1</s> <!-- one -->\n <s>1</s>\n</array></dict>",
         texts(list, {u"7"_s, u"1"_s}),
         "<k>d</k><dict><k>l</k><array>\n <s>1</s> <!-- one -->\n <s>7</s>\n</array></dict>"},
        {"<k>d</k><s>no dictionary</s>", texts(list, {}), "<k>d</k><dict>\n  <k>l</k>\n  <array/>\n</dict>"},
        // taking out
        {"\n <k>x</k>\n <!-- kept -->\n <t/>\n <k>y</k><t/>\n", remove({u"x"_s}), "\n <!-- kept -->\n <k>y</k><t/>\n"},
        {"<k>x</k><t/>", remove({u"y"_s}), "<k>x</k><t/>"},
        {"<k>x</k><t/>", remove(list), "<k>x</k><t/>"},
        {"<k>x</k><t/>", set({u"y"_s}, u"\a"_s), "refused"},
    };
    for (const auto &[before, change, after] : cases) {
        const auto whole = [](QByteArray entries) {
            entries = "<?xml version=\"1.0\"?>\n<plist><dict>" + entries + "</dict></plist>";
            for (const auto &[brief, full] : {std::pair("k>", "key>"),
                                              {"s>", "string>"},
                                              {"<t/", "<true/"},
                                              {"<f/", "<false/"},
                                              {"<a>&amp;</a>", "<key>&amp;</key><true/>"}})
                entries.replace(brief, full);
            return entries;
        };
        EXPECT_EQ(changed(whole(before), change).toStdString(),
                  after == "refused" ? "<refused>" : whole(after).toStdString());
    }
}

TEST(PropertyListText, KeepsTheEncoding)
{
    const QString plain = u"<?xml version=\"1.0\" encoding=\"%1\"?>\r\n<plist><dict><!-- \u00e4%2 --></dict></plist>"_s;
    const QString long1 = QString(5000, u'\u00df'); // more than a reader's buffer
    const auto utf8 = plain.arg(u"UTF-8"_s, long1 + u"\U0001f4f6"_s);
    const std::pair<QByteArray, QStringConverter::Encoding> cases[] = {
        {utf8.toUtf8(), QStringConverter::Utf8},
        {(QChar(QChar::ByteOrderMark) + utf8).toUtf8(), QStringConverter::Utf8},
        {plain.arg(u"ISO-8859-1"_s, long1).toLatin1(), QStringConverter::Latin1},
        {QStringEncoder(QStringConverter::Utf16BE)(QChar(QChar::ByteOrderMark) + plain.arg(u"UTF-16"_s, long1)),
         QStringConverter::Utf16BE},
    };
    for (const auto &[bytes, encoding] : cases) {
        const QByteArray result = changed(bytes, set({u"x"_s}, u"\u00fc"_s));
        QString expected = QStringDecoder(encoding, QStringConverter::Flag::ConvertInitialBom)(bytes);
        expected.insert(expected.indexOf(u"</dict>"), u"\r\n  <key>x</key>\r\n  <string>\u00fc</string>\r\n"_s);
        EXPECT_EQ(QString(QStringDecoder(encoding, QStringConverter::Flag::ConvertInitialBom)(result)), expected);
    }
}

TEST(PropertyListText, TakesOnlyXmlDictionaries)
{
    for (const QByteArray bytes : {"<plist><array/></plist>", "<plist><dict>", "bplist00", ""})
        EXPECT_EQ(changed(bytes, set({u"x"_s}, true)), "<unreadable>");
    const auto text = PropertyListText::fromBytes(shippedSettingsFile());
    for (const SettingKey &key : settingKeys()) {
        const auto without = text->withoutValue(key.path);
        const QVariant value = settingAt(text->values(), key.path);
        ASSERT_TRUE(without && without->withValue(key.path, value.isValid() ? value : QVariant(u"v"_s)));
    }
}
