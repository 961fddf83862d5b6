#include "ui/windows/StatusWindow.h"

#include "tests/support/PrintQt.h"
#include "ui/look/Images.h"
#include "ui/look/Translations.h"

#include <QLabel>
#include <QLocale>

#include <gtest/gtest.h>

using namespace tarvo;
using namespace Qt::StringLiterals;

TEST(StatusWindow, ShowsHowThingsStand)
{
    QObject english; // takes the texts back
    installTranslations(english, QLocale::English);
    StatusWindowContent told{u"ready"_s, {}, {.name = u"Stick"_s, .gateway = u"10.0.0.1"_s}, {}};
    StatusWindow window([&] { return told; });
    const auto shown = [&] {
        window.present();
        QStringList texts; // of the bars for screen readers
        for (const QWidget *part : window.findChildren<QWidget *>()) {
            const auto *const label = qobject_cast<const QLabel *>(part);
            texts << (label ? label->text() : part->accessibleDescription());
        }
        texts.removeAll(QString());
        EXPECT_EQ(window.findChild<QLabel *>()->pixmap().toImage(), imageNamed(told.image).pixmap(48).toImage());
        window.hide();
        return texts.join(u'|');
    };
    const QString all = u"%1|This month|%2|%2|Last three days|%3|%3|Used since the modem was plugged in|Connection|%4|"
                        "Dialling|–|Roaming|–|Firmware|%5|Device|%6|Interface|–|Address|–|Gateway|%7|"
                        "Access points|%8|Last answer|–"_s;
    const QString dash = u"–"_s;
    EXPECT_EQ(shown(), all.arg(u"No modem"_s, dash, dash, dash, dash, dash, dash, dash));

    const QString attached = all.arg(u"%1"_s, u"%2"_s, u"%3"_s, u"Connected"_s, u"no new version offered"_s, u"Stick"_s,
                                     u"10.0.0.1"_s, u"0 sent"_s);
    told.image = u"online"_s;
    told.status.detection = Detection::Attached;
    StatusSnapshot &snapshot = told.status.snapshot;
    snapshot = {.m_useData = 12, .m_totalMonthData = 10, .answering = true};
    snapshot.details = {.connected = true, .countsMonth = true, .threeDayUse = 2};
    EXPECT_EQ(shown(), attached.arg(u"Connected · 12.0 of 10.0 GB"_s, u"12.0 of 10.0 GB"_s, u"2.00 GB"_s));
    snapshot.answering = false;
    EXPECT_EQ(shown(), attached.arg(u"The modem does not answer"_s, dash, dash));
}
