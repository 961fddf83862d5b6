#pragma once

#include "platform/linux/x11/XScreen.h"

#include <QAbstractNativeEventFilter>
#include <QObject>

#include <functional>
#include <optional>

namespace tarvo {

/// The window that manages the system tray of an X screen.
struct XTray {
    xcb_window_t window = XCB_WINDOW_NONE; ///< owns the selection
    /// Its icons may have an alpha channel.
    bool translucent = false;
    /// Its icons are stacked on top of each other, not side by side.
    bool vertical = false;
    /// The process that owns the window; 0 when it is not known.
    quint32 process = 0;

    bool operator==(const XTray &) const = default;
};

/// @return whether the screen of the environment has a tray, asked over a connection of its own. Any thread; without a GUI
///         application, too
bool hasXTray();

/// Follows which window owns the tray selection of the freedesktop.org System Tray Protocol, by events alone: the
/// announcement that a new manager sends to the root window, and the end of the manager's window.
class XTrayWatcher final : private QAbstractNativeEventFilter {
public:
    /// @param changed  called from the event loop after the tray changed
    XTrayWatcher(const XScreen &screen, std::function<void()> changed);
    ~XTrayWatcher() override;
    XTrayWatcher(const XTrayWatcher &) = delete;
    XTrayWatcher &operator=(const XTrayWatcher &) = delete;

    /// @return the tray as it is now; nil when there is none
    const std::optional<XTray> &tray() const { return m_tray; }

private:
    bool nativeEventFilter(const QByteArray &eventType, void *message, qintptr *result) override;
    bool announcesTray(const xcb_client_message_event_t &message) const;
    void windowDestroyed(xcb_window_t window);
    void lookForTray();
    std::optional<XTray> findTray() const;
    xcb_window_t watchedSelectionOwner() const;

    XScreen m_screen;
    std::function<void()> m_changed;
    xcb_atom_t m_selection;
    xcb_atom_t m_manager;
    std::optional<XTray> m_tray;
    QObject m_context; ///< what is queued for it ends with the watcher
};

} // namespace tarvo
