#pragma once

#include <QDialog>
#include <QElapsedTimer>
#include <QString>

#include <memory>
#include <optional>

class QLabel;
class QPushButton;

namespace tarvo {

/// The panel that announces something, with one or two buttons. There is one for the whole program; it lives as long as
/// somebody holds it, on the main thread. It takes neither the keyboard nor, for a second after it appeared, any key.
class AlertPanelController : public QObject {
    Q_OBJECT

public:
    /// @return the one panel, a new one when nobody holds it
    static std::shared_ptr<AlertPanelController> shareAlertPanel();

    ~AlertPanelController() override;

    /// Fills the panel and shows it in front, in the middle of the screen. Returns at once.
    /// @param strAlternateBtn  the second button's title; nil leaves only the default button
    void runAlertPanelTitle(const QString &title, const QString &msg, const QString &strDefaultBtn,
                            const std::optional<QString> &strAlternateBtn);

    /// Ends the panel with the code 1 and asks for the page with the new firmware.
    void btnOKAction();
    /// Ends the panel with the code 0.
    void btnCancelAction();

    /// The panel itself; closing it only hides it.
    QDialog &wndAlert() { return *wndAlert_; }

Q_SIGNALS:
    /// The page with the new firmware is to be opened.
    void pageWanted();

private:
    AlertPanelController();
    void awakeFromNib();
    bool eventFilter(QObject *target, QEvent *event) override;

    std::unique_ptr<QDialog> wndAlert_;
    QElapsedTimer m_shown;
    QLabel *labelMsg_ = nullptr;
    QPushButton *btnOK_ = nullptr;
    QPushButton *btnCancel_ = nullptr;
};

} // namespace tarvo
