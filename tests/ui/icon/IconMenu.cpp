#include "ui/icon/IconMenu.h"

#include "tests/support/PrintQt.h"

#include <QCoreApplication>

#include <gtest/gtest.h>

using namespace tarvo;
using namespace Qt::StringLiterals;

namespace {

QStringList texts(const QMenu &menu)
{
    QStringList all;
    for (const QAction *action : menu.actions())
        if (!action->isSeparator())
            all << (action->isEnabled() ? action->text() : u"("_s + action->text() + u')');
    return all;
}

} // namespace

TEST(IconMenu, HasTheSameEntriesAtAllTimesAndStandsStillWhileItIsOpen)
{
    QStringList done;
    const auto note = [&](const QString &what) { return [&done, what] { done += what; }; };
    IconMenu menu({note(u"status"_s), note(u"modem"_s), note(u"messages"_s),
                   [&](Page page) { done += u"page %1"_s.arg(int(page)); }, note(u"settings"_s), note(u"about"_s),
                   note(u"quit"_s)});
    const QStringList before{u""_s,
                             u"(MenuOpenHomePage)"_s,
                             u"(MenuOpenModemPage)"_s,
                             u"(MenuOpenMessages)"_s,
                             u"(MenuRecentNews)"_s,
                             u"MenuSettings"_s,
                             u"MenuAbout"_s,
                             u"MenuQuit"_s};
    EXPECT_EQ(texts(menu.menu()), before);

    menu.menu().popup({});
    menu.setContent({.situation = Situation::NotAnswering,
                     .summary = u"Rock & Roll"_s,
                     .clickPage = Page::Firmware,
                     .hasMessages = true,
                     .news = {{QDateTime::currentDateTime(), {u"news"_s, Page::Firmware}}}});
    EXPECT_EQ(texts(menu.menu()), before);
    menu.menu().close();
    QCoreApplication::processEvents();
    EXPECT_EQ(texts(menu.menu()),
              (QStringList{u"Rock && Roll"_s, u"MenuOpenFirmwarePage"_s, u"MenuOpenModemPage"_s, u"MenuOpenMessages"_s,
                           u"MenuRecentNews"_s, u"MenuSettings"_s, u"MenuAbout"_s, u"MenuQuit"_s}));
    for (QAction *action : menu.menu().actions())
        action->menu() ? action->menu()->actions().first()->trigger() : action->trigger();
    EXPECT_EQ(done.join(u','), u"status,page 2,modem,messages,page 2,settings,about,quit"_s);
    menu.setContent({.situation = Situation::NotSetUp});
    EXPECT_TRUE(texts(menu.menu()).contains(u"MenuSetUpModem"_s));
}
