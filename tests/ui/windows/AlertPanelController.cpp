#include "ui/windows/AlertPanelController.h"

#include "tests/support/Companion.h"
#include "tests/support/PrintQt.h"

#include <QPushButton>
#include <QTest>

using namespace tarvo;
using namespace Qt::StringLiterals;

TEST(AlertPanel, OnlyTheDefaultButtonLeadsToThePage)
{
    const auto panel = AlertPanelController::shareAlertPanel();
    QDialog &window = panel->wndAlert();
    auto *ok = window.findChild<QPushButton *>(u"btnOK_"_s);
    auto *cancel = window.findChild<QPushButton *>(u"btnCancel_"_s);
    int wanted = 0;
    QObject::connect(panel.get(), &AlertPanelController::pageWanted, [&] { ++wanted; });

    const std::pair<std::function<void()>, bool> answers[] = {
        {[&] { ok->click(); }, true},
        {[&] { cancel->click(); }, false},
        {[&] { window.close(); }, false},
    };
    for (const auto &[answer, leadsToPage] : answers) {
        wanted = 0;
        panel->runAlertPanelTitle(u"T"_s, u"M"_s, u"D"_s, u"A"_s);
        EXPECT_TRUE(window.isVisible() && cancel->isVisible() && !window.isModal());
        for (QWidget *target : {static_cast<QWidget *>(&window), static_cast<QWidget *>(ok)})
            QTest::keyClicks(target, u" \r"_s);
        EXPECT_TRUE(window.isVisible()) << "whoever was typing did not mean it";
        answer();
        EXPECT_FALSE(window.isVisible());
        EXPECT_EQ(window.result(), leadsToPage ? 1 : 0);
        EXPECT_EQ(wanted, leadsToPage ? 1 : 0);
    }
    panel->runAlertPanelTitle(u"T2"_s, u"M2"_s, u"D2"_s, std::nullopt);
    EXPECT_EQ((QStringList{window.windowTitle(), window.accessibleDescription(), ok->text()}),
              (QStringList{u"T2"_s, u"M2"_s, u"D2"_s}));
    EXPECT_FALSE(cancel->isVisible());
}
