#include "apn/ProfileSelection.h"

#include "apn/ProfileSeal.h"
#include "simulator/surroundings/RecordingLog.h"
#include "tests/apn/ProfileFolder.h"

#include <QRegularExpression>

#include <sys/stat.h>

#include <filesystem>

using namespace tarvo;

namespace {

struct Selection : testing::Test {
    QStringList select(const QString &list) { return getValidParsedContentFromApnProfiles(list, {}, systemLog, {}); }

    ProfileFolder folder;
    RecordingLog systemLog;
};

} // namespace

TEST_F(Selection, ReadsTheListOfProfiles)
{
    EXPECT_EQ(getParsedApnContentFromTotalProfile({}, systemLog), std::nullopt);
    EXPECT_EQ(systemLog.lines(), QStringList{u"can not find profile.xml"_s});
    folder.add(u"profile.xml"_s, u"A*B"_s);
    EXPECT_EQ(getParsedApnContentFromTotalProfile({}, systemLog), u"A*B"_s);
    EXPECT_EQ(select(u"profile"_s), QStringList()) << "the list is no candidate";
    EXPECT_EQ(systemLog.lines().last(), u"can not find *.xml files!"_s);
    folder.write(u"profile.xml"_s, "damaged");
    EXPECT_EQ(getParsedApnContentFromTotalProfile({}, systemLog), std::nullopt);
    EXPECT_EQ(systemLog.lines().last(),
              folder.path(u"profile.xml is skipped: its length is no multiple of 130 bytes"_s));
}

TEST_F(Selection, TakesListedFilesInListingOrder)
{
    QStringList names{u"profile"_s};
    for (int i = 0; i < 30; ++i) {
        names.append(u"N%1"_s.arg(i));
        const QString file = i % 3 ? names.last() + u".xml"_s : u"sub%1/%2.xml"_s.arg(i % 4).arg(names.last());
        folder.add(file, file);
    }
    for (const QString &name : {u"other.xml"_s, u"sub/profile.xml"_s, u"N1.XML"_s, u"profile.xml"_s, u"sub/N1.xml"_s})
        folder.add(name, name);

    QStringList expected;
    for (const auto &entry : std::filesystem::recursive_directory_iterator(APN_ROOT))
        expected.append(QString::fromStdString(entry.path().string()).sliced(folder.path(QString()).size()));
    expected = expected.filter(QRegularExpression(u"(N[0-9]+|/profile)\\.xml$"_s));
    EXPECT_EQ(expected.size(), 32);
    EXPECT_EQ(select(names.join(u'*') + u"**nowhere"_s), expected);
    EXPECT_EQ(systemLog.lines(), QStringList());
}

TEST_F(Selection, PassesOverWhatCannotBeUsed)
{
    folder.add(u"good.xml"_s, u"good"_s);
    folder.add(u"folder.xml/inner.xml"_s, u"inner"_s);
    folder.add(u"xmlname.xml"_s, u"never"_s);
    folder.write(u"short.xml"_s, "damaged");
    folder.write(u"big.xml"_s, {});
    ASSERT_TRUE(QFile::resize(folder.path(u"big.xml"_s), qint64{1} << 30));
    QFile::link(folder.path(u"link.xml"_s), folder.path(u"link.xml"_s));
    QFile::link(folder.path(QString()), folder.path(u"again"_s));
    QFile::link(u"/dev/zero"_s, folder.path(u"device.xml"_s));
    ASSERT_EQ(::mkfifo(folder.path(u"fifo.xml"_s).toLocal8Bit().constData(), 0600), 0);
    QStringList texts = select(u"good*short*xmlname*folder*inner*link*big*device*fifo"_s);
    texts.sort();
    EXPECT_EQ(texts, (QStringList{u"good"_s, u"inner"_s}));
    QStringList lines = systemLog.lines().replaceInStrings(folder.path(QString()), QString());
    lines.sort();
    EXPECT_EQ(lines,
              (QStringList{u"again is skipped: it is a link to a folder"_s,
                           u"big.xml is skipped: it is larger than 262144 bytes"_s,
                           u"device.xml is skipped: it is no regular file"_s,
                           u"fifo.xml is skipped: it is no regular file"_s, u"folder.xml is skipped: it is a folder"_s,
                           u"link.xml is skipped: it cannot be read: Too many levels of symbolic links"_s,
                           u"short.xml is skipped: its length is no multiple of 130 bytes"_s,
                           u"xmlname.xml is skipped: its name cannot be cut before the extension"_s}));
}

TEST(CheckDefaultApn, PicksTheNameOrItsSuccessor)
{
    const std::tuple<std::optional<QString>, QString, int, QString> cases[] = {
        {u"b"_s, u"c,a"_s, 0, u"a,b,c"_s},     {u"d"_s, u"c,a"_s, 1, u"a,c,d"_s}, {u"a"_s, u"c,a"_s, 1, u"c,a"_s},
        {std::nullopt, u"c,a"_s, 0, u"c,a"_s}, {u"B"_s, u"c,a"_s, 1, u"B,a,c"_s}, {u""_s, u"c,"_s, 1, u"c,"_s},
    };
    for (const auto &[name, before, index, after] : cases) {
        QStringList names = before.split(u',');
        EXPECT_EQ(checkDefaultApn(name, names), index);
        EXPECT_EQ(names.join(u','), after);
    }
    QStringList none;
    EXPECT_EQ(checkDefaultApn(u"a"_s, none), -1);
}
