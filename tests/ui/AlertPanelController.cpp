#include "ui/AlertPanelController.h"

#include "tests/support/Companion.h"
#include "tests/support/PrintQt.h"

#include <QPushButton>
#include <QTest>

using namespace tarvo;
using namespace Qt::StringLiterals;

namespace {

struct AlertPanel : testing::Test {
    AlertPanel()
    {
        configure({{u"FotaNewVersionHomePage"_s, u"http://update/"_s}});
        QObject::connect(panel.get(), &AlertPanelController::pageWanted, panel.get(),
                         [this](const QString &page) { wanted << page; });
    }

    QPushButton *button(const QString &name) { return panel->wndAlert().findChild<QPushButton *>(name); }

    std::shared_ptr<AlertPanelController> panel = AlertPanelController::shareAlertPanel();
    QDialog &window = panel->wndAlert();
    QStringList wanted;
};

} // namespace

TEST_F(AlertPanel, IsOneForAllThatHoldIt)
{
    EXPECT_EQ(AlertPanelController::shareAlertPanel(), panel);
}

TEST_F(AlertPanel, ShowsWhatItIsGivenEachTime)
{
    panel->runAlertPanelTitle(u"T"_s, u"M"_s, u"D"_s, u"A"_s);
    EXPECT_TRUE(window.isVisible());
    EXPECT_FALSE(window.isModal());
    EXPECT_EQ(window.windowTitle(), u"T"_s);
    EXPECT_EQ(button(u"btnOK_"_s)->text(), u"D"_s);
    EXPECT_TRUE(button(u"btnCancel_"_s)->isVisible());
    EXPECT_EQ(button(u"btnCancel_"_s)->text(), u"A"_s);
    panel->runAlertPanelTitle(u"T2"_s, u"M2"_s, u"D2"_s, std::nullopt);
    EXPECT_EQ(window.windowTitle(), u"T2"_s);
    EXPECT_EQ(window.accessibleDescription(), u"M2"_s);
    EXPECT_FALSE(button(u"btnCancel_"_s)->isVisible());
}

TEST_F(AlertPanel, OnlyTheDefaultButtonLeadsToThePage)
{
    struct Case {
        const char *what;
        std::function<void()> answer;
        int result;
        QStringList pages;
    };
    const QStringList page(u"http://update/"_s);
    const Case cases[] = {
        {"click", [&] { button(u"btnOK_"_s)->click(); }, 1, page},
        {"return key", [&] { QTest::keyClick(&window, Qt::Key_Return); }, 1, page},
        {"second button", [&] { button(u"btnCancel_"_s)->click(); }, 0, {}},
        {"escape key", [&] { QTest::keyClick(&window, Qt::Key_Escape); }, 0, {}},
        {"close box", [&] { window.close(); }, 0, {}},
    };
    for (const Case &c : cases) {
        wanted.clear();
        window.setResult(-1);
        panel->runAlertPanelTitle(u"T"_s, u"M"_s, u"D"_s, u"A"_s);
        c.answer();
        EXPECT_FALSE(window.isVisible()) << c.what;
        EXPECT_EQ(window.result(), c.result) << c.what;
        EXPECT_EQ(wanted, c.pages) << c.what;
    }
    configure({});
    panel->btnOKAction();
    EXPECT_EQ(wanted, QStringList()) << "without a page it only closes";
}
