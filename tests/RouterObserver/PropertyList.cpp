#include "RouterObserver/PropertyList.h"

#include "tests/support/PrintQt.h"

#include <QDataStream>
#include <QDateTime>
#include <QIODevice>
#include <QTimeZone>
#include <QVariantList>
#include <QVariantMap>

#include <gtest/gtest.h>

using namespace tarvo;
using namespace Qt::StringLiterals;

namespace {

/// A binary property list of @p objects, the first of which is the root; a reference is one byte.
QByteArray binary(const QList<QByteArray> &objects)
{
    QByteArray bytes = "bplist00";
    QByteArray tail;
    QDataStream stream(&tail, QIODevice::WriteOnly);
    for (const QByteArray &object : objects) {
        stream << static_cast<quint16>(bytes.size());
        bytes += object;
    }
    const quint64 widths = 0x0201;
    stream << widths << quint64(objects.size()) << quint64(0) << quint64(bytes.size());
    return bytes + tail;
}

/// Each array but the last object holds the next object ten times.
QByteArray arraysInArrays(int count)
{
    QList<QByteArray> objects;
    for (int i = 1; i <= count; ++i)
        objects.append("\xAA" + QByteArray(10, char(i)));
    return binary(objects << "\x09"_ba);
}

// NOLINTBEGIN(modernize-raw-string-literal): bytes, not text
const QByteArray smallBinary =
    binary({"\xD2\x01\x02\x03\x04"_ba, "\x51\x6B"_ba, "\x61\x00\xE9"_ba, "\xA2\x05\x06"_ba,
            "\x23\x3F\xE0\0\0\0\0\0\0"_ba, "\x13\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFB"_ba, "\x42\x01\x02"_ba});
// NOLINTEND(modernize-raw-string-literal)

} // namespace

TEST(PropertyList, KeepsTheKindOfEachValueThroughARoundTrip)
{
    const QVariantMap root{
        {u"truth"_s, true},
        {u"integer"_s, qlonglong(-4660)},
        {u"real"_s, 0.1},
        {u"whole real"_s, 2.0},
        {u"text"_s, u"<é&\U0001F4F6> "_s},
        {u"date"_s, QDateTime(QDate(2026, 2, 28), QTime(23, 59, 58), QTimeZone::utc())},
        {u"data"_s, QByteArray("\0\xFF", 2)},
        {u"list"_s, QVariantList{QVariantList{}, QVariantMap{}, u""_s, false}},
    };
    const auto reading = readPropertyList(writePropertyList(root).value_or(QByteArray()));
    const QVariantMap again = reading.root.value_or(QVariant()).toMap();
    EXPECT_EQ(again, root);
    for (const auto &[key, value] : root.asKeyValueRange())
        EXPECT_EQ(again[key].typeId(), value.typeId()) << key.toStdString();
}

TEST(PropertyList, WritesNothingThatWouldNotBeReadBack)
{
    EXPECT_FALSE(writePropertyList(u"bell \a"_s));
    EXPECT_FALSE(writePropertyList(std::numeric_limits<double>::quiet_NaN()));
    EXPECT_FALSE(writePropertyList(QVariantList{QVariant()}));
}

TEST(PropertyList, ReadsTheXmlFormAsPeopleWriteIt)
{
    const auto reading =
        readPropertyList("<plist><array><!-- <true/> --><integer> 0x1F </integer><integer>-010</integer>"
                         "<real>1e3</real><string> a<![CDATA[<b>]]>&amp;</string>"
                         "<data>\n AP\n 8=\n</data></array></plist>");
    const QVariantList expected{qlonglong(31), qlonglong(-10), 1000.0, u" a<b>&"_s, QByteArray("\0\xFF", 2)};
    EXPECT_EQ(reading.root.value_or(QVariant()), expected) << reading.problem.toStdString();
}

TEST(PropertyList, ReadsTheBinaryForm)
{
    const auto reading = readPropertyList(smallBinary);
    const QVariantMap expected{{u"k"_s, QVariantList{qlonglong(-5), QByteArray("\1\2")}}, {u"é"_s, 0.5}};
    EXPECT_EQ(reading.root.value_or(QVariant()), expected) << reading.problem.toStdString();
}

TEST(PropertyList, RefusesWhatIsNoSmallSoundPropertyList)
{
    const struct {
        const char *name;
        QByteArray bytes;
        QString problem;
    } cases[] = {
        {"deep XML", "<plist>" + QByteArray("<array>").repeated(40), u"too deeply"_s},
        {"entity that grows", "<!DOCTYPE p [<!ENTITY e '12345'>]><string>&e;</string>", u"ntity"_s},
        {"no value", "<plist/>", u"no property list"_s},
        {"two values", "<plist><true/><true/></plist>", u"more than one"_s},
        {"key without a value", "<dict><key>a</key></dict>", u"alternate"_s},
        {"element in a text", "<string><true/></string>", u"line 1"_s},
        {"damaged number", "<integer>1x</integer>", u"kind, integer"_s},
        {"damaged date", "<date>2026-02-30T00:00:00Z</date>", u"kind, date"_s},
        {"damaged data", "<data>!!!!</data>", u"kind, data"_s},
        {"NUL in a key", binary({"\xD1\x01\x02"_ba, "\x53\x61\0b"_ba, "\x09"_ba}), u"object 1 is damaged"_s},
        {"key that is no text", binary({"\xD1\x01\x02"_ba, "\x09"_ba, "\x09"_ba}), u"no text"_s},
        {"no UTF-8", binary({"\x51\xE9"_ba}), u"object 0 is damaged"_s},
        {"half a surrogate pair", binary({"\x61\xD8\x3D"_ba}), u"object 0 is damaged"_s},
        {"date beyond all years", binary({"\x33\x7F\xE0\0\0\0\0\0\0"_ba}), u"object 0 is damaged"_s},
        {"large", "<plist><string>" + QByteArray(1 << 20, 'x') + "</string></plist>", u"larger than"_s},
        {"loop", binary({"\xA1\x00"_ba}), u"too deeply"_s},
        {"shared references that expand", arraysInArrays(20), u"too large"_s},
        {"large text shared often",
         binary({char(0xAF) + "\x11\x02\x00"_ba + QByteArray(512, 1), "\x5F\x11\x75\x30"_ba + QByteArray(30000, 'x')}),
         u"too large"_s},
        {"reference to no object", binary({"\xA1\x07"_ba}), u"object 7 is damaged"_s},
        {"text longer than the file", binary({"\x5F\x13\x7F\xFF\xFF\xFF\xFF\xFF\xFF\xFF"_ba}),
         u"object 0 is damaged"_s},
        {"header only", "bplist00", u"trailer"_s},
    };
    for (const auto &[name, bytes, problem] : cases) {
        const auto reading = readPropertyList(bytes);
        EXPECT_FALSE(reading.root) << name;
        EXPECT_TRUE(reading.problem.contains(problem)) << name << ": " << reading.problem.toStdString();
    }
}

TEST(PropertyList, SurvivesDamageAtAnyByte)
{
    for (qsizetype at = 0; at < smallBinary.size(); ++at) {
        for (const int damage : {0x01, 0x0F, 0x80, 0xFF}) {
            QByteArray damaged = smallBinary;
            damaged[at] = static_cast<char>(damaged[at] ^ damage);
            const auto reading = readPropertyList(damaged);
            EXPECT_NE(reading.root.has_value(), !reading.problem.isEmpty()) << at;
        }
        EXPECT_FALSE(readPropertyList(smallBinary.first(at)).root) << at;
    }
}
