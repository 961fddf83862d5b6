#pragma once

#include "platform/linux/x11/XTrayWatcher.h"

#include <QAbstractButton>
#include <QImage>
#include <QMenu>
#include <QPointer>
#include <QWidget>

#include <functional>
#include <optional>

namespace tarvo {

/// A window that sits in a system tray and is filled by one button.
///
/// Docks by the freedesktop.org System Tray Protocol and the XEmbed Protocol. The tray decides about its size; the
/// button's icon follows. It is shown once the tray has taken it in, so that it is never seen outside.
class TrayDock final : public QWidget, private QAbstractNativeEventFilter {
public:
    struct Contents {
        QAbstractButton &view; ///< filled in until the dock is destroyed; stays the caller's
        QMenu *menu; ///< shown on a right click; stays the caller's, may be null
        int width; ///< wanted, in pixels; a square is wanted when it is not positive
    };

    /// Asks @p tray to take the window in.
    /// @param expelled  called when the tray has put the window out, or destroyed it; in the middle of an event of
    ///                  the window, so it must not destroy the dock itself
    TrayDock(const XScreen &screen, const XTray &tray, const Contents &contents, std::function<void()> expelled);
    ~TrayDock() override;
    TrayDock(const TrayDock &) = delete;
    TrayDock &operator=(const TrayDock &) = delete;

    /// @return where the window is, in the application's coordinates; nil when nobody can see it
    std::optional<QRect> frame() const;

protected:
    void resizeEvent(QResizeEvent *event) override;
    void moveEvent(QMoveEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;

private:
    bool nativeEventFilter(const QByteArray &eventType, void *message, qintptr *result) override;
    void reparented(xcb_window_t parent);
    void makeWindow();
    void requestDock(const XTray &tray);
    void requestSize();
    QImage panelBackground() const;

    XScreen m_screen;
    xcb_window_t m_window = XCB_WINDOW_NONE;
    bool m_translucent;
    bool m_vertical;
    int m_width; ///< not positive for a square
    QPointer<QAbstractButton> m_view;
    std::function<void()> m_expelled;
    bool m_docked = false;
    QMenu *m_menu;
};

} // namespace tarvo
