#include "setup/settings/SettingStore.h"

#include "setup/settings/SettingKeys.h"
#include "tests/support/FullDisk.h"
#include "tests/support/PrintQt.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <gtest/gtest.h>

#include <thread>
#include <vector>

using namespace tarvo;
using namespace Qt::StringLiterals;

namespace {

class SettingStoreTest : public testing::Test {
protected:
    void SetUp() override
    {
        for (const char *variable : {"XDG_CONFIG_HOME", "XDG_CONFIG_DIRS", "XDG_DATA_HOME", "XDG_DATA_DIRS"})
            QDir(qEnvironmentVariable(variable)).removeRecursively();
        path_ = userSettingsPath();
    }

    static QByteArray read(const QString &path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    static void write(const QString &path, const QByteArray &bytes)
    {
        QDir().mkpath(QFileInfo(path).path());
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    }
    static QByteArray plist(const QByteArray &entries) { return "<plist><dict>" + entries + "</dict></plist>"; }
    static QStringList vendors() { return identifiersAt(settingsInForce().values, vendorsPath); }

    QString path_;
};

} // namespace

TEST_F(SettingStoreTest, MakesTheUsersFileOfTheShippedOne)
{
    EXPECT_EQ(changeSettings(useDevice({0x12d1, 2}), Damaged::Refuse).problem, QString());
    EXPECT_EQ(vendors(), QStringList{u"4817"_s}) << "the example makes way";
    QByteArray expected = shippedSettingsFile();
    EXPECT_EQ(read(path_), expected.replace("4660</string>", "4817</string>"));
    EXPECT_EQ(QFileInfo(path_).permissions() & 0x0fff, QFile::ReadUser | QFile::WriteUser);

    EXPECT_EQ(changeSettings(excludeDevice({0x12d1, 7}), Damaged::Refuse).problem, QString());
    EXPECT_EQ(changeSettings(useDevice({0x12d2, 8}), Damaged::Refuse).problem, QString());
    EXPECT_EQ(vendors(), (QStringList{u"4817"_s, u"4818"_s}));
    EXPECT_EQ(identifiersAt(settingsInForce().values, exclusionsPath), QStringList{u"7"_s});
    EXPECT_EQ(changeSettings(useDevice({0x12d1, 7}), Damaged::Refuse).problem, QString());
    EXPECT_EQ(identifiersAt(settingsInForce().values, exclusionsPath), QStringList());

    const QByteArray last = read(path_);
    EXPECT_EQ(resetSettings().backup, path_ + u".bak"_s);
    EXPECT_EQ(read(path_ + u".bak"_s), last);
    EXPECT_FALSE(QFile::exists(path_)) << "which would hide what the administrator set";
    EXPECT_EQ(resetSettings().backup, QString()) << "there is nothing to take away";
    write(path_, last);
    ASSERT_TRUE(QFile::link(u"nowhere"_s, path_ + u".bak1"_s));
    EXPECT_EQ(resetSettings().backup, path_ + u".bak2"_s) << "no backup is written over";
}

TEST_F(SettingStoreTest, StartsFromTheFileInForceAndFollowsALink)
{
    write(qEnvironmentVariable("XDG_CONFIG_DIRS") + u"/tarvo/Config.plist"_s,
          plist("<key>mine</key><true/><!-- c --><key>device_info</key><dict><key>vendor_ids</key>"
                "<array><integer>4660</integer><integer>9</integer></array></dict>"));
    QDir().mkpath(QFileInfo(path_).path());
    const QString target = qEnvironmentVariable("HOME") + u"/elsewhere"_s;
    ASSERT_TRUE(QFile::link(target, path_));
    const QString refusal = rootRefusal(path_, Scope::User);
    EXPECT_EQ(changeSettings(useDevice({4660, 1}), Damaged::Refuse).problem, refusal);
    EXPECT_TRUE(QFileInfo(path_).isSymLink());
    EXPECT_EQ(QFile::exists(target), refusal.isEmpty()) << "root follows no link";
    if (!refusal.isEmpty()) {
        ASSERT_TRUE(QFile::remove(path_));
    }
    EXPECT_EQ(changeSettings(useDevice({4660, 1}), Damaged::Refuse).problem, QString());
    EXPECT_TRUE(read(path_).contains("<key>mine</key><true/><!-- c -->"));
    EXPECT_EQ(vendors(), (QStringList{u"4660"_s, u"9"_s})) << "numbers become texts";
}

TEST_F(SettingStoreTest, NeverWritesOverWhatItCannotReadUnasked)
{
    for (const QByteArray &damaged : {"<plist><dict>"_ba, "<plist><array/></plist>"_ba}) {
        write(path_, damaged);
        const SettingsWritten refused = changeSettings(useDevice({1, 1}), Damaged::Refuse);
        EXPECT_TRUE(refused.isDamaged && refused.problem.startsWith(path_ + u": "_s));
        EXPECT_EQ(read(path_), damaged);
        const SettingsWritten written = changeSettings(useDevice({1, 1}), Damaged::StartAfresh);
        EXPECT_EQ(read(written.backup), damaged);
        EXPECT_EQ(vendors(), QStringList{u"1"_s});
    }
    QFile::remove(path_);
    QDir().mkpath(path_);
    EXPECT_TRUE(changeSettings(useDevice({1, 1}), Damaged::Refuse).isDamaged) << "a folder";
    EXPECT_EQ(changeSettings(useDevice({1, 1}), Damaged::StartAfresh).problem, QString());
    EXPECT_EQ(vendors(), QStringList{u"1"_s});
}

TEST_F(SettingStoreTest, TurnsTheBinaryFormIntoXmlAndKeepsIt)
{
    // {"x": true}, by the format of CFBinaryPList.c
    const QByteArray binary = "bplist00\xd1\x01\x02Qx\x09\x08\x0b\x0d"_ba
        + QByteArray::fromHex("000000000000010100000000000000030000000000000000000000000000000e");
    write(path_, binary);
    const SettingsWritten written = changeSettings(useDevice({1, 1}), Damaged::Refuse);
    EXPECT_TRUE(written.fromBinary) << written.problem.toStdString();
    EXPECT_EQ(read(written.backup), binary);
    EXPECT_TRUE(read(path_).startsWith("<?xml"));
    EXPECT_EQ(settingsInForce().values.value(u"x"_s), QVariant(true));
    EXPECT_EQ(vendors(), QStringList{u"1"_s});
}

TEST_F(SettingStoreTest, KeepsWhatIsThereWhenTheDiskIsFull)
{
    for (const QByteArray &before : {plist("<key>mine</key><true/>"), "damaged"_ba}) {
        write(path_, before);
        const FullDisk full;
        const SettingsWritten written = changeSettings(useDevice({1, 1}), Damaged::StartAfresh);
        EXPECT_TRUE(written.problem.startsWith(path_ + u": "_s)) << written.problem.toStdString();
        EXPECT_EQ(written.backup, QString());
        EXPECT_EQ(read(path_), before);
        EXPECT_EQ(QDir(QFileInfo(path_).path()).entryList(QDir::Files), QStringList{u"Config.plist"_s});
    }
    const FullDisk full;
    EXPECT_EQ(read(resetSettings().backup), "damaged") << "moving takes no room";
}

TEST_F(SettingStoreTest, LosesNoneOfChangesThatAreMadeAtOnce)
{
    std::vector<std::thread> programs;
    QStringList expected;
    for (quint16 vendor = 1; vendor <= 8; ++vendor) {
        expected.append(QString::number(vendor));
        programs.emplace_back([vendor] {
            EXPECT_EQ(changeSettings(useDevice({vendor, 1}), Damaged::Refuse).problem, QString());
        });
    }
    for (std::thread &program : programs)
        program.join();
    QStringList found = vendors();
    found.sort();
    EXPECT_EQ(found, expected);
}
