#include "platform/linux/tray/DesktopStatusBar.h"

#include <QFile>

#include <chrono>
#include <utility>

namespace tarvo {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr auto settlingDelay = 1s;

bool isKnownForwarder(quint32 process)
{
    QFile name(u"/proc/%1/comm"_s.arg(process));
    return name.open(QIODevice::ReadOnly) && name.read(64).trimmed() == "xembedsniproxy";
}

/// An item of both bars, of which at most one shows it.
class DesktopItem final : public StatusItem {
public:
    DesktopItem(std::unique_ptr<StatusItem> trayItem, std::unique_ptr<StatusItem> notifierItem)
        : m_trayItem(std::move(trayItem))
        , m_notifierItem(std::move(notifierItem))
    {
    }

    void setView(QAbstractButton *view) override
    {
        if (m_trayItem)
            m_trayItem->setView(view);
        m_notifierItem->setView(view);
    }

    void setMenu(QMenu *menu) override
    {
        if (m_trayItem)
            m_trayItem->setMenu(menu);
        m_notifierItem->setMenu(menu);
    }

    void viewChanged() override { m_notifierItem->viewChanged(); }
    void setTitle(const QString &) override { } // neither kind of bar has room for a text

    std::optional<QRect> frame() const override { return m_trayItem ? m_trayItem->frame() : std::nullopt; }

private:
    std::unique_ptr<StatusItem> m_trayItem; // null where there is no X
    std::unique_ptr<StatusItem> m_notifierItem;
};

} // namespace

BarKind chooseBar(bool hasTray, bool hosted, bool forwarded)
{
    if (hasTray && !(hosted && forwarded))
        return BarKind::Tray;
    return hosted ? BarKind::Notifier : BarKind::None;
}

DesktopStatusBar::DesktopStatusBar(BusConnection &sessionBus, std::function<void()> hostOutOfReach)
    : m_hostOutOfReach(std::move(hostOutOfReach))
    , m_hosts(sessionBus, [this] { choose(); })
{
    const std::optional<XScreen> screen = XScreen::ofApplication();
    if (!screen)
        return;
    m_trayBar = std::make_unique<XEmbedStatusBar>(*screen);
    m_trays = std::make_unique<XTrayWatcher>(*screen, [this] { choose(); });
    m_settling.setSingleShot(true);
    QObject::connect(&m_settling, &QTimer::timeout, &m_settling, [this] {
        m_hasSettled = true;
        choose();
    });
    choose();
}

DesktopStatusBar::~DesktopStatusBar() = default;

std::unique_ptr<StatusItem> DesktopStatusBar::createItem(double length)
{
    return std::make_unique<DesktopItem>(m_trayBar ? m_trayBar->createItem(length) : nullptr,
                                         m_notifierBar.createItem(length));
}

void DesktopStatusBar::choose()
{
    // Before the bus has answered a tray that forwards cannot be told from a real one.
    if (!m_hosts.known())
        return;
    const std::optional<XTray> tray = m_trays ? m_trays->tray() : std::nullopt;
    const bool canBeHosted = m_hosts.hosted() && NotifierStatusBar::reachesHosts();
    const BarKind wanted = chooseBar(tray.has_value(), canBeHosted, tray && forwards(*tray));
    m_kind = settled(wanted);
    if (m_kind != BarKind::Notifier)
        m_notifierBar.hide();
    setTray(m_kind == BarKind::Tray ? tray : std::nullopt);
    if (m_kind == BarKind::Notifier)
        m_notifierBar.show();
    if (wanted == BarKind::None && m_hosts.hosted() && m_hostOutOfReach)
        m_hostOutOfReach();
}

BarKind DesktopStatusBar::settled(BarKind wanted)
{
    if (wanted != BarKind::Notifier) {
        m_settling.stop();
        m_hasSettled = false;
        return wanted;
    }
    if (m_hasSettled || !m_trays)
        return wanted;
    if (!m_settling.isActive())
        m_settling.start(settlingDelay);
    return BarKind::None;
}

bool DesktopStatusBar::forwards(const XTray &tray) const
{
    return tray.process != 0 && (m_hosts.offersItems(tray.process) || isKnownForwarder(tray.process));
}

void DesktopStatusBar::setTray(const std::optional<XTray> &tray)
{
    if (!m_trayBar || tray == m_dockedTray)
        return;
    m_dockedTray = tray;
    m_trayBar->setTray(tray);
}

} // namespace tarvo
