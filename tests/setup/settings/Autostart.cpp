#include "setup/settings/Autostart.h"

#include "tests/support/FullDisk.h"
#include "tests/support/PrintQt.h"

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

#include <utility>

using namespace tarvo;
using namespace Qt::StringLiterals;

TEST(Autostart, ReadsTheMainGroupAlone)
{
    const std::tuple<QByteArray, bool, QByteArray> cases[] = {
        {"Hidden=true\n[Desktop Entry]\nExec=a\n", true,
         "Hidden=true\n[Desktop Entry]\nHidden=true\nX-GNOME-Autostart-enabled=false\nExec=a\n"},
        {"[Other]\nHidden=true\n[Desktop Entry]\n", true,
         "[Other]\nHidden=true\n[Desktop Entry]\nHidden=true\nX-GNOME-Autostart-enabled=false\n"},
        {"[Desktop Entry]\nX-GNOME-Autostart-enabled = false \n", false,
         "[Desktop Entry]\nHidden=true\nX-GNOME-Autostart-enabled=false\n"},
    };
    for (const auto &[entry, starts, off] : cases) {
        EXPECT_EQ(startsAtLogin(entry), starts) << entry.toStdString();
        EXPECT_EQ(withStartAtLogin(entry, false), off);
    }
}

TEST(Autostart, IsSwitchedInTheUsersCopyOfTheEntry)
{
    const QByteArray entry = "[Desktop Entry]\nExec=tarvo\nHidden=false\n[Other]\nHidden=true\n";
    const QByteArray off = withStartAtLogin(entry, false);
    EXPECT_EQ(off, "[Desktop Entry]\nHidden=true\nX-GNOME-Autostart-enabled=false\nExec=tarvo\n[Other]\nHidden=true\n");
    for (const auto &[bytes, starts] : {std::pair(entry, true), {off, false}, {withStartAtLogin(off, true), true}})
        EXPECT_EQ(startsAtLogin(bytes), starts);

    EXPECT_EQ(Autostart().isOn(), std::nullopt) << "nothing is installed";
    const QDir system(qEnvironmentVariable("XDG_CONFIG_DIRS"));
    system.mkpath(u"autostart"_s);
    QFile file(system.filePath(u"autostart/tarvo.desktop"_s));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(entry) > 0);
    file.close();
    EXPECT_EQ(Autostart().isOn(), true);
    EXPECT_EQ(Autostart().set(false), QString());
    EXPECT_EQ(Autostart().isOn(), false);
    QFile hidden(qEnvironmentVariable("XDG_CONFIG_HOME") + u"/autostart/tarvo.desktop"_s);
    ASSERT_TRUE(hidden.open(QIODevice::WriteOnly) && hidden.write("[Desktop Entry]\nHidden=true\n") > 0);
    hidden.close();
    {
        const FullDisk full;
        EXPECT_NE(Autostart().set(true), QString());
    }
    EXPECT_EQ(Autostart().isOn(), false) << "the entry is as it was";
    EXPECT_EQ(Autostart().set(true), QString());
    ASSERT_TRUE(hidden.open(QIODevice::ReadOnly));
    EXPECT_TRUE(hidden.readAll().contains("Exec=tarvo")) << "an entry that says only that it is hidden";
}
