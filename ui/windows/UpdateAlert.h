#pragma once

#include <QObject>

#include <memory>

namespace tarvo {

class AlertPanelController;
class WebPages;

/// Announces new firmware in the program's panel. On the main thread.
class UpdateAlert {
public:
    /// @param pages  opens the page that the panel's button asks for; outlives this object
    explicit UpdateAlert(WebPages &pages);

    /// Shows the update panel; returns at once. Without a configured page it promises none.
    void showAlertMsgForUpdate();
    /// Hides the panel: its modem is gone.
    void close();

private:
    WebPages &m_pages;
    std::shared_ptr<AlertPanelController> m_panel; ///< made when it is first needed
    QObject m_context; ///< what is connected to it ends with this object
};

} // namespace tarvo
