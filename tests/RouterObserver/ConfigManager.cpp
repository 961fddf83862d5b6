#include "RouterObserver/ConfigManager.h"

#include "tests/support/PrintQt.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QVariantList>

#include <gtest/gtest.h>

#include <stdexcept>

using namespace tarvo;
using namespace Qt::StringLiterals;

namespace {

class ConfigManagerTest : public testing::Test {
protected:
    QString write(const QString &name, const QByteArray &content) const
    {
        const QString path = QDir(folder_.path()).filePath(name);
        QDir().mkpath(QFileInfo(path).path());
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(R"(<?xml version="1.0"?><plist version="1.0">)" + content + "</plist>");
        return path;
    }
    QString writeModules() const
    {
        return write(u"c.plist"_s,
                     "<dict><key>leaf</key><string>text</string>"
                     "<key>map</key><dict><key>k</key><string>v</string></dict>"
                     "<key>list</key><array><integer>4660</integer><string>22136</string></array></dict>");
    }

    QTemporaryDir folder_;
};

} // namespace

TEST_F(ConfigManagerTest, LooksUpByModuleAndKey)
{
    const ConfigManager config(writeModules());
    EXPECT_EQ(config.getConfigurationByModule(u"leaf"_s), QVariant(u"text"_s));
    EXPECT_EQ(config.getConfigurationByModule(u"none"_s), std::nullopt);
    EXPECT_EQ(config.getConfigurationByModuleAndKey(u"map"_s, u"k"_s), QVariant(u"v"_s));
    for (const auto &module : {u"map"_s, u"leaf"_s, u"none"_s})
        EXPECT_EQ(config.getConfigurationByModuleAndKey(module, u"none"_s), std::nullopt);
    EXPECT_EQ(config.getConfigurationByModuleAndKey(u"list"_s, u"22136"_s), QVariant(u"22136"_s));
    EXPECT_THROW(config.getConfigurationByModuleAndKey(u"list"_s, u"4660"_s), std::out_of_range) << "a number";
}

TEST_F(ConfigManagerTest, ChangesTheDictionaryThatItHandsOut)
{
    ConfigManager config(writeModules());
    EXPECT_TRUE(config.setConfigurationByModuleKeyAndValue(u"leaf"_s, u"k"_s, 1));
    EXPECT_TRUE(config.setConfigurationByModuleKeyAndValue(u"map"_s, u"k"_s, u"new"_s));
    EXPECT_TRUE(config.setConfigurationByModuleKeyAndValue(u"list"_s, u"any"_s, u"4660"_s));
    EXPECT_TRUE(config.setConfigurationByModuleKeyAndValue(u"list"_s, u"other"_s, u"4660"_s));
    EXPECT_FALSE(config.setConfigurationByModuleKeyAndValue(u"none"_s, u"k"_s, 1));
    const QVariantMap expected{{u"leaf"_s, u"text"_s},
                               {u"map"_s, QVariantMap{{u"k"_s, u"new"_s}}},
                               {u"list"_s, QVariantList{4660, u"22136"_s, u"4660"_s}}};
    EXPECT_EQ(*config.getConfiguration(), expected);
    EXPECT_TRUE(config.removeConfigurationByModuleAndKey(u"map"_s, u"k"_s));
    EXPECT_FALSE(config.removeConfigurationByModuleAndKey(u"none"_s, u"k"_s));
    EXPECT_EQ(config.getConfigurationByModule(u"map"_s), QVariant(QVariantMap()));
    EXPECT_TRUE(config.removeConfigurationByModule(u"map"_s));
    EXPECT_EQ(config.getConfigurationByModule(u"map"_s), std::nullopt);
}

TEST_F(ConfigManagerTest, TakesSettingsIntoAnEmptyDictionaryButNotIntoNone)
{
    ConfigManager empty(write(u"c.plist"_s, "<dict/>"));
    EXPECT_FALSE(empty.removeConfigurationByModule(u"m"_s));
    EXPECT_TRUE(empty.setConfigurationByModule(u"m"_s, u"v"_s));
    EXPECT_EQ(empty.getConfigurationByModule(u"m"_s), QVariant(u"v"_s));
    for (const auto &path : {write(u"array.plist"_s, "<array/>"), folder_.path(), folder_.filePath(u"none"_s)}) {
        ConfigManager none(path);
        EXPECT_FALSE(none.setConfigurationByModule(u"m"_s, u"v"_s));
        EXPECT_EQ(none.getConfiguration(), nullptr);
        EXPECT_TRUE(none.loadProblem().value_or(QString()).startsWith(path + u": "_s));
        none.flush();
    }
}

TEST_F(ConfigManagerTest, FlushReplacesTheFileWholeOrNotAtAll)
{
    const QString path = writeModules();
    ConfigManager config(path);
    config.setConfigurationByModule(u"leaf"_s, true);
    config.flush();
    const QVariantMap written = *config.getConfiguration();
    EXPECT_EQ(QDir(folder_.path()).entryList(QDir::Files), QStringList{u"c.plist"_s});
    config.setConfigurationByModule(u"leaf"_s, u"no XML \a"_s);
    config.flush();
    EXPECT_EQ(*ConfigManager(path).getConfiguration(), written);
}

TEST_F(ConfigManagerTest, UsesTheFirstFileOfTheStandardFolders)
{
    const char *const variables[] = {"XDG_CONFIG_HOME", "XDG_CONFIG_DIRS", "XDG_DATA_HOME", "XDG_DATA_DIRS"};
    const auto fileOf = [](const char *variable) { return qEnvironmentVariable(variable) + u"/tarvo/Config.plist"_s; };
    for (const char *variable : variables)
        write(fileOf(variable), "<dict><key>from</key><string>"_ba + variable + "</string></dict>");
    for (const char *variable : variables) {
        EXPECT_EQ(ConfigManager().getConfigurationByModule(u"from"_s), QVariant(QString::fromLatin1(variable)));
        const QString damaged = write(fileOf(variable), "<dict>");
        EXPECT_TRUE(ConfigManager().loadProblem().value_or(QString()).startsWith(damaged)) << "none stands in";
        QFile::remove(damaged);
    }
    EXPECT_EQ(ConfigManager().loadProblem(), std::nullopt);
}

TEST_F(ConfigManagerTest, ReadsFlags)
{
    for (const auto &value : QVariantList{true, qlonglong(-1), 0.5, u"yes"_s, u" \tT"_s, u"9"_s})
        EXPECT_TRUE(boolValue(value)) << value.toString().toStdString();
    for (const auto &value : QVariantList{false, qlonglong(0), u"0"_s, u"01"_s, u"-1"_s, u"no"_s, u" "_s, u""_s,
                                          QVariantMap(), QVariant(), QByteArray("1")})
        EXPECT_FALSE(boolValue(value)) << value.toString().toStdString();
    EXPECT_FALSE(boolValue(std::nullopt));
}
