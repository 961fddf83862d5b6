#include "ui/UpdateAlert.h"

#include "ui/AlertPanelController.h"
#include "ui/WebPages.h"

#include <QCoreApplication>

namespace tarvo {

UpdateAlert::UpdateAlert(WebPages &pages)
    : m_pages(pages)
{
}

void UpdateAlert::showAlertMsgForUpdate()
{
    if (!m_panel) {
        m_panel = AlertPanelController::shareAlertPanel();
        QObject::connect(m_panel.get(), &AlertPanelController::pageWanted, &m_context,
                         [this](const QString &page) { m_pages.openPage(page); });
    }
    m_panel->runAlertPanelTitle(qtTrId("updateTitleTip"), qtTrId("updateMsgTip"), qtTrId("updateButtonTip"),
                                std::nullopt);
}

} // namespace tarvo
