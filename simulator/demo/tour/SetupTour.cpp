#include "simulator/demo/tour/SetupTour.h"

#include "setup/settings/SettingKeys.h"
#include "setup/settings/SettingStore.h"
#include "setup/window/SetupWindow.h"
#include "simulator/demo/DemoWorld.h"
#include "simulator/demo/tour/ShownWindows.h"
#include "simulator/demo/tour/TourReport.h"
#include "ui/icon/CustomView.h"

#include <QListWidget>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QTabWidget>

#include <algorithm>

namespace tarvo {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

const QString companionIsUp = u"Tarvo init success"_s;

/// @return the action or button of @p candidates that says @p text; null when there is none
template <typename Control>
Control *withText(const QList<Control *> &candidates, const QString &text)
{
    const auto found = std::ranges::find(candidates, text, &Control::text);
    return found == candidates.end() ? nullptr : *found;
}

/// @return what the rows of the page that is shown say to a screen reader
QStringList rowTexts(const SetupWindow &window)
{
    QStringList texts;
    const auto *const list = window.findChild<QTabWidget *>()->currentWidget()->findChild<QListWidget *>();
    for (int i = 0; i < list->count(); ++i)
        texts.append(list->item(i)->data(Qt::AccessibleTextRole).toString());
    return texts;
}

bool isInOrder(const QString &row)
{
    return row.startsWith(qtTrId("MarkOk"));
}

} // namespace

SetupTour::SetupTour(DemoWorld &world, TourReport &report)
    : m_world(world)
    , m_report(report)
{
}

void SetupTour::run()
{
    meetUnknownModem();
    if (auto *const window = visibleWindow<SetupWindow>()) {
        useModem(*window);
        seeChain(*window);
        window->close();
        m_report.check(u"the setup program closes without a question"_s, !visibleWindow<QMessageBox>());
    }
}

void SetupTour::meetUnknownModem()
{
    m_report.begin(u"A modem is plugged in that the settings do not know"_s);
    m_world.plugIn();
    const auto toolTip = [this] { return m_world.statusBar().icon()->toolTip(); };
    m_report.check(u"the tool tip says that it is not set up"_s,
                   eventually([&] { return toolTip().contains(u"1235:0001"); }));
    m_report.check(u"it is left alone"_s, !eventually([this] { return !m_world.modem().requests().isEmpty(); }, 2s));
    QMenu *const menu = m_world.statusBar().menu();
    QAction *const entry = withText(menu->actions(), qtTrId("MenuSetUpModem"));
    m_report.check(u"the menu offers to set it up"_s, entry && entry->isEnabled());
    menu->popup(QGuiApplication::primaryScreen()->geometry().center());
    m_report.takePicture(u"unknown-modem"_s);
    menu->close();
    if (entry)
        entry->trigger();
    m_report.check(u"that opens the setup program"_s,
                   eventually([] { return visibleWindow<SetupWindow>() != nullptr; }, 2s));
    m_report.end();
}

void SetupTour::useModem(SetupWindow &window)
{
    m_report.begin(u"The setup program looks at the devices, and the user chooses one"_s);
    const auto rowSays = [&window](const char *id) { return rowTexts(window).value(0).contains(qtTrId(id)); };
    m_report.check(u"it finds that the device answers like a modem"_s,
                   eventually([&] { return rowSays("DeviceIsModem") && rowSays("DeviceUnsupported"); }));
    m_report.takePicture(u"setup-found"_s);
    auto *const use = withText(window.findChildren<QPushButton *>(), qtTrId("UseModem"));
    m_report.check(u"\"%1\" can be pressed"_s.arg(qtTrId("UseModem")), use && use->isEnabled());
    if (use)
        use->click();
    m_report.check(u"the file of settings names the modem's vendor"_s,
                   identifiersAt(settingsInForce().values, vendorsPath) == QStringList{u"4661"_s});
    m_report.check(u"the companion starts again with it"_s,
                   eventually([this] { return m_world.systemLog().count(companionIsUp) == 2; }));
    m_report.check(u"the modem is in the settings"_s, eventually([&] { return rowSays("DeviceSupported"); }));
    m_report.takePicture(u"setup-used"_s);
    m_report.end();
}

void SetupTour::seeChain(SetupWindow &window)
{
    m_report.begin(u"The setup program checks everything between the modem and the companion"_s);
    window.findChild<QTabWidget *>()->setCurrentIndex(1);
    m_report.check(u"the checks are done"_s, eventually([&] { return !rowTexts(window).isEmpty(); }));
    const QStringList rows = rowTexts(window);
    constexpr int modemChecks = 12; // from the settings to the access points; what follows is the desktop's
    m_report.check(u"the chain to the modem is whole"_s,
                   rows.size() > modemChecks && std::all_of(rows.begin(), rows.begin() + modemChecks, isInOrder));
    m_report.check(u"the companion runs with these settings"_s, !rows.isEmpty() && isInOrder(rows.last()));
    m_report.takePicture(u"setup-checks"_s);
    m_report.end();
}

} // namespace tarvo
