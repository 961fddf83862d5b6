#pragma once

#include "platform/StatusBar.h"
#include "platform/linux/tray/NotifierHosts.h"
#include "platform/linux/tray/NotifierStatusBar.h"
#include "platform/linux/tray/XEmbedStatusBar.h"
#include "platform/linux/x11/XTrayWatcher.h"

#include <QTimer>

#include <functional>
#include <memory>
#include <optional>

namespace tarvo {

/// The kinds of bar that can show an item.
enum class BarKind {
    None, ///< nothing shows items at present
    Tray, ///< windows in a system tray of the X desktop
    Notifier, ///< items of a StatusNotifierItem host
};

/// Chooses where items go. A tray is preferred, as it tells where the item is and when the pointer enters it, unless
/// it only forwards what it is given to the host: then neither is true of it.
BarKind chooseBar(bool hasTray, bool hosted, bool forwarded);

/// The status bar of whatever desktop runs: at each time its items are in at most one of the two kinds of bar, and
/// they follow when bars come, go or change kind.
///
/// A panel that has both kinds brings them, and takes them away, one after the other. Hosts may show an item for ever that
/// is offered and taken back at once, so on an X desktop items are offered only to a host that is still alone after a
/// second.
///
/// A tray is taken to forward its icons to a StatusNotifierItem host when the process that owns it is KDE's
/// `xembedsniproxy`, or offers StatusNotifierItems itself: panels that draw a tray show items and offer none. Such an
/// offer may come only after a tray got its first icon; items then move to the host and stay there.
class DesktopStatusBar final : public StatusBar {
public:
    /// @param sessionBus      where hosts are looked for, once it is there; outlives this object
    /// @param hostOutOfReach  called, maybe again and again, when there is only a host that this process cannot show items
    ///                        in: the bus came, or came back, after Qt had asked for it
    explicit DesktopStatusBar(BusConnection &sessionBus, std::function<void()> hostOutOfReach = {});
    ~DesktopStatusBar() override;

    std::unique_ptr<StatusItem> createItem(double length) override;

    /// @return the kind of bar that shows the items now
    BarKind kind() const { return m_kind; }

private:
    void choose();
    /// @return @p wanted, or none for the moment while a tray may still come beside the host
    BarKind settled(BarKind wanted);
    bool forwards(const XTray &tray) const;
    void setTray(const std::optional<XTray> &tray);

    const std::function<void()> m_hostOutOfReach;
    BarKind m_kind = BarKind::None;
    std::optional<XTray> m_dockedTray;
    NotifierStatusBar m_notifierBar;
    std::unique_ptr<XEmbedStatusBar> m_trayBar; ///< null where there is no X
    std::unique_ptr<XTrayWatcher> m_trays; ///< null where there is no X
    QTimer m_settling; ///< runs while a tray may still come beside the host
    bool m_hasSettled = false; ///< none came
    NotifierHosts m_hosts;
};

} // namespace tarvo
