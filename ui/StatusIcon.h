#pragma once

#include "platform/StatusBar.h"

#include <QObject>
#include <QString>

#include <functional>
#include <memory>
#include <optional>

class QMessageBox;
class QTimer;

namespace tarvo {

class CustomView;
class SystemLog;

/// The icon in the desktop's status bar, with its menu. On the main thread.
class StatusIcon {
public:
    /// What the user does with the icon. Each is called on the main thread.
    struct Actions {
        std::function<void()> click; ///< on the icon itself
        std::function<void()> pointerEntered; ///< the icon; not in every bar
        std::function<void()> openModemPage; ///< chosen in the menu, as the next two
        std::function<void()> openMessages;
        std::function<void()> quit;
    };

    /// @param statusBar, systemLog  outlive the icon
    StatusIcon(StatusBar &statusBar, SystemLog &systemLog, Actions actions);
    ~StatusIcon();
    StatusIcon(const StatusIcon &) = delete;
    StatusIcon &operator=(const StatusIcon &) = delete;

    /// Creates the status items and the icon, once, where the settings want them.
    void startToolbarStatus();
    /// Polling starts: the icon is there, and shows "online", where the settings want it.
    void showPolling();
    /// The modem is gone: the icon shows "ready" without a tip, or goes along, as the settings say.
    void showRemoval();

    /// Shows the image named @p name; nothing without an icon.
    void setStatusImage(const QString &name);
    /// Sets the tool tip; nothing without an icon.
    void setStatusToolTip(const QString &toolTip);

    /// @return where the icon is, in global coordinates with y downwards; nil when that is not known
    std::optional<QRect> frame() const;

    // Marks the icon every seven seconds, for three seconds each. Nothing starts it at present.
    void startConnectStatusTimer();
    void statusCheck(const QTimer *timer);
    void disSendcondStatus();

private:
    void createStatusItems(const QString &imageName);
    void removeStatusItems();
    void addMenuActions();
    void showAbout();

    StatusBar &m_statusBar;
    SystemLog &m_systemLog;
    const Actions m_actions;
    QObject m_context; ///< what is connected to it ends with the icon

    std::unique_ptr<CustomView> cview_;
    std::unique_ptr<StatusItem> statusItem_;
    std::unique_ptr<StatusItem> statusDisplay_;
    std::unique_ptr<QTimer> firstStatusTimer_;
    std::unique_ptr<QMessageBox> m_aboutDialog;
};

} // namespace tarvo
