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

/// A folder with files that go with it.
class Folder {
public:
    QString write(const QString &name, const QByteArray &content) const
    {
        const QString path = m_folder.filePath(name);
        QDir().mkpath(QFileInfo(path).path());
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
        return path;
    }
    QString path() const { return m_folder.path(); }

private:
    QTemporaryDir m_folder;
};

QByteArray settings(const QByteArray &content)
{
    return "<?xml version=\"1.0\"?><plist version=\"1.0\"><dict>" + content + "</dict></plist>";
}

const QByteArray &devices()
{
    static const QByteArray content =
        settings("<key>leaf</key><string>text</string><key>map</key><dict><key>k</key><string>v</string></dict>"
                 "<key>list</key><array><integer>4660</integer><string>22136</string></array>");
    return content;
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

TEST(ConfigManager, LooksUpByModuleAndKey)
{
    const Folder folder;
    const ConfigManager config(folder.write(u"c.plist"_s, devices()));
    EXPECT_EQ(config.loadProblem(), std::nullopt);
    EXPECT_EQ(config.getConfigurationByModule(u"leaf"_s), QVariant(u"text"_s));
    EXPECT_EQ(config.getConfigurationByModule(u"none"_s), std::nullopt);
    EXPECT_EQ(config.getConfigurationByModule(std::nullopt), std::nullopt);
    EXPECT_EQ(config.getConfigurationByModuleAndKey(u"map"_s, u"k"_s), QVariant(u"v"_s));
    EXPECT_EQ(config.getConfigurationByModuleAndKey(u"map"_s, u"none"_s), std::nullopt);
    EXPECT_EQ(config.getConfigurationByModuleAndKey(u"map"_s, std::nullopt), std::nullopt);
    EXPECT_EQ(config.getConfigurationByModuleAndKey(u"leaf"_s, u"k"_s), std::nullopt);
    EXPECT_EQ(config.getConfigurationByModuleAndKey(u"none"_s, u"k"_s), std::nullopt);
    EXPECT_EQ(config.getConfigurationByModuleAndKey(u"list"_s, u"22136"_s), QVariant(u"22136"_s));
    EXPECT_THROW(config.getConfigurationByModuleAndKey(u"list"_s, u"4660"_s), std::out_of_range)
        << "the array holds the number, not the text";
}

TEST(ConfigManager, ChangesTheDictionaryThatItHandsOut)
{
    const Folder folder;
    ConfigManager config(folder.write(u"c.plist"_s, devices()));
    EXPECT_TRUE(config.setConfigurationByModuleKeyAndValue(u"leaf"_s, u"k"_s, 1));
    EXPECT_TRUE(config.setConfigurationByModuleKeyAndValue(u"map"_s, u"k"_s, u"new"_s));
    EXPECT_TRUE(config.setConfigurationByModuleKeyAndValue(u"list"_s, u"any"_s, u"added"_s));
    EXPECT_TRUE(config.setConfigurationByModuleKeyAndValue(u"list"_s, u"other"_s, u"added"_s));
    EXPECT_FALSE(config.setConfigurationByModuleKeyAndValue(u"none"_s, u"k"_s, 1));
    const QVariantMap expected{{u"leaf"_s, u"text"_s},
                               {u"map"_s, QVariantMap{{u"k"_s, u"new"_s}}},
                               {u"list"_s, QVariantList{4660, u"22136"_s, u"added"_s}}};
    EXPECT_EQ(*config.getConfiguration(), expected);

    EXPECT_TRUE(config.removeConfigurationByModuleAndKey(u"map"_s, u"k"_s));
    EXPECT_FALSE(config.removeConfigurationByModuleAndKey(u"none"_s, u"k"_s));
    EXPECT_EQ(config.getConfigurationByModule(u"map"_s), QVariant(QVariantMap()));
    EXPECT_TRUE(config.removeConfigurationByModule(u"none"_s));
    EXPECT_TRUE(config.removeConfigurationByModule(u"map"_s));
    EXPECT_EQ(config.getConfiguration()->size(), 2);
}

TEST(ConfigManager, TakesSettingsIntoAnEmptyDictionaryOnly)
{
    const Folder folder;
    ConfigManager empty(folder.write(u"c.plist"_s, settings("")));
    EXPECT_EQ(empty.getConfigurationByModule(u"m"_s), std::nullopt);
    EXPECT_FALSE(empty.removeConfigurationByModule(u"m"_s));
    EXPECT_FALSE(empty.setConfigurationByModule(u"m"_s, std::nullopt));
    EXPECT_TRUE(empty.setConfigurationByModule(u"m"_s, u"v"_s));
    EXPECT_EQ(empty.getConfigurationByModule(u"m"_s), QVariant(u"v"_s));

    for (const auto &path : {folder.write(u"array.plist"_s, "<plist><array/></plist>"), folder.path()}) {
        ConfigManager damaged(path);
        EXPECT_FALSE(damaged.setConfigurationByModule(u"m"_s, u"v"_s));
        EXPECT_EQ(damaged.getConfiguration(), nullptr);
        EXPECT_TRUE(damaged.loadProblem().value_or(QString()).startsWith(path + u": it"_s));
        damaged.flush();
    }
}

TEST(ConfigManager, FlushReplacesTheFileWholeAndKeepsItsPermissions)
{
    const Folder folder;
    const QString path = folder.write(u"c.plist"_s, devices());
    const auto permissions = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadUser | QFile::WriteUser;
    ASSERT_TRUE(QFile::setPermissions(path, permissions));
    ConfigManager config(path);
    config.setConfigurationByModule(u"leaf"_s, true);
    config.flush();
    EXPECT_EQ(*ConfigManager(path).getConfiguration(), *config.getConfiguration());
    EXPECT_EQ(QFile::permissions(path), permissions);
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files), QStringList{u"c.plist"_s});

    const QByteArray before = contentOf(path);
    config.setConfigurationByModule(u"leaf"_s, u"no XML \a"_s);
    config.flush();
    EXPECT_EQ(contentOf(path), before);
}

TEST(ConfigManager, UsesTheFirstFileOfTheStandardFolders)
{
    const char *const variables[] = {"XDG_CONFIG_HOME", "XDG_CONFIG_DIRS", "XDG_DATA_HOME", "XDG_DATA_DIRS"};
    const Folder folder;
    for (const char *variable : variables) {
        const auto name = QString::fromLatin1(variable);
        qputenv(variable, QString(folder.path() + u'/' + name).toLocal8Bit());
        folder.write(name + u"/tarvo/Config.plist"_s,
                     settings("<key>from</key><string>" + name.toLatin1() + "</string>"));
    }
    for (const char *variable : variables) {
        const auto name = QString::fromLatin1(variable);
        EXPECT_EQ(ConfigManager().getConfigurationByModule(u"from"_s), QVariant(name));
        const QString damaged = folder.write(name + u"/tarvo/Config.plist"_s, "damaged");
        const ConfigManager config;
        EXPECT_EQ(config.getConfigurationByModule(u"from"_s), std::nullopt) << "no later file stands in";
        EXPECT_TRUE(config.loadProblem().value_or(QString()).startsWith(damaged));
        QFile::remove(damaged);
    }
    EXPECT_EQ(ConfigManager().loadProblem(), std::nullopt);
}

TEST(ConfigManager, ReadsFlags)
{
    const struct {
        QVariant value;
        bool flag;
    } cases[] = {
        {true, true},
        {false, false},
        {qlonglong(0), false},
        {qlonglong(-1), true},
        {0.5, true},
        {u"yes"_s, true},
        {u" \tT"_s, true},
        {u"9"_s, true},
        {u"0"_s, false},
        {u"01"_s, false},
        {u"no"_s, false},
        {u"-1"_s, false},
        {u" "_s, false},
        {u""_s, false},
        {QVariantMap(), false},
        {QVariant(), false},
        {QByteArray("1"), false},
    };
    for (const auto &[value, flag] : cases)
        EXPECT_EQ(boolValue(value), flag) << value.typeName() << ' ' << value.toString().toStdString();
    EXPECT_FALSE(boolValue(std::nullopt));
}

TEST(ConfigManager, ShippedSettingsLoad)
{
    const ConfigManager config(QStringLiteral(TARVO_SHIPPED_CONFIG));
    EXPECT_EQ(config.loadProblem(), std::nullopt);
    EXPECT_EQ(config.getConfigurationByModuleAndKey(u"device_info"_s, u"vendor_ids"_s),
              QVariant(QVariantList{u"4660"_s}));
    EXPECT_TRUE(boolValue(config.getConfigurationByModule(u"IsDisplayNetStatusInToolBar"_s)));
}

TEST(ConfigManagerDeathTest, NeedsAPath)
{
    EXPECT_DEATH(ConfigManager(std::optional<QString>()),
                 "\\(filePath != nil\\).*-\\[ConfigManager initWithFilePath:\\].*RouterObserver/ConfigManager.*46");
}
