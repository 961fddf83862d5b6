#pragma once

#include "platform/StatusBar.h"

#include <QElapsedTimer>
#include <QObject>
#include <QString>

#include <functional>
#include <memory>
#include <optional>

class QTimer;

namespace tarvo {

class ConfigManager;
class CustomView;
class SystemLog;

/// The icon in the desktop's status bar, with its menu. On the main thread.
class StatusIcon {
public:
    /// What the user does with the icon. Each is called on the main thread.
    struct Callbacks {
        std::function<void()> clicked; ///< on the icon itself; a double click is one click
        std::function<void()> pointerEntered; ///< the icon; not in every bar
    };

    /// Everything referred to outlives the icon.
    StatusIcon(StatusBar &statusBar, SystemLog &systemLog, const ConfigManager &settings, QMenu &menu,
               Callbacks callbacks);
    ~StatusIcon();
    StatusIcon(const StatusIcon &) = delete;
    StatusIcon &operator=(const StatusIcon &) = delete;

    /// Creates the status items with the icon, unless they are there, where the settings want them.
    void startToolbarStatus();
    /// The modem is gone: so is the icon, where the settings say so.
    void showRemoval();

    /// Shows the image named @p name, whenever the icon is in the bar.
    void setStatusImage(const QString &name);
    /// Sets the tool tip, likewise.
    void setStatusToolTip(const QString &toolTip);

    /// @return where the icon is, in global coordinates with y downwards; nil when that is not known
    std::optional<QRect> frame() const;

    // Marks the icon every seven seconds, for three seconds each. Nothing starts it at present.
    void startConnectStatusTimer();
    void statusCheck(const QTimer *timer);
    void disSendcondStatus();

private:
    void clicked();

    StatusBar &m_statusBar;
    const ConfigManager &m_settings;
    QMenu &m_menu;
    const Callbacks m_callbacks;
    QObject m_context; ///< what is connected to it ends with the icon

    const std::unique_ptr<CustomView> cview_;
    std::unique_ptr<StatusItem> statusItem_;
    std::unique_ptr<StatusItem> statusDisplay_;
    std::unique_ptr<QTimer> firstStatusTimer_;
    QElapsedTimer m_lastClick;
};

} // namespace tarvo
