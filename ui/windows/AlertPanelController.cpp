#include "ui/windows/AlertPanelController.h"

#include "ui/look/Images.h"
#include "ui_AlertPanel.h"

#include <QGuiApplication>
#include <QScreen>

namespace tarvo {

using namespace Qt::StringLiterals;

namespace {

/// Whoever was typing when the panel appeared did not mean it.
constexpr std::chrono::milliseconds quietTime{1000};

std::weak_ptr<AlertPanelController> sharedPanel;

} // namespace

std::shared_ptr<AlertPanelController> AlertPanelController::shareAlertPanel()
{
    auto panel = sharedPanel.lock();
    if (!panel) {
        panel.reset(new AlertPanelController);
        sharedPanel = panel;
    }
    return panel;
}

AlertPanelController::AlertPanelController()
    : wndAlert_(std::make_unique<QDialog>())
{
    Ui::AlertPanel interface;
    interface.setupUi(wndAlert_.get());
    labelMsg_ = interface.labelMsg_;
    btnOK_ = interface.btnOK_;
    btnCancel_ = interface.btnCancel_;
    interface.labelIcon_->setPixmap(imageNamed(u"newVersion"_s).pixmap(48));
    wndAlert_->setWindowIcon(applicationImage());
    wndAlert_->setAttribute(Qt::WA_ShowWithoutActivating);
    for (QObject *target :
         {static_cast<QObject *>(wndAlert_.get()), static_cast<QObject *>(btnOK_), static_cast<QObject *>(btnCancel_)})
        target->installEventFilter(this);
    awakeFromNib();
}

AlertPanelController::~AlertPanelController() = default;

void AlertPanelController::awakeFromNib()
{
    connect(btnOK_, &QPushButton::clicked, this, &AlertPanelController::btnOKAction);
    connect(btnCancel_, &QPushButton::clicked, this, &AlertPanelController::btnCancelAction);
}

void AlertPanelController::runAlertPanelTitle(const QString &title, const QString &msg, const QString &strDefaultBtn,
                                              const std::optional<QString> &strAlternateBtn)
{
    labelMsg_->setText(msg);
    wndAlert_->setWindowTitle(title);
    wndAlert_->setAccessibleDescription(msg);
    btnOK_->setText(strDefaultBtn);
    btnCancel_->setVisible(strAlternateBtn.has_value());
    btnCancel_->setText(strAlternateBtn.value_or(QString()));
    labelMsg_->setFocus(); // no button waits for a key
    wndAlert_->adjustSize();
    if (const QScreen *screen = QGuiApplication::primaryScreen()) {
        QRect frame = wndAlert_->rect();
        frame.moveCenter(screen->availableGeometry().center());
        wndAlert_->move(frame.topLeft());
    }
    m_shown.start();
    wndAlert_->show();
    wndAlert_->raise();
}

bool AlertPanelController::eventFilter(QObject *, QEvent *event)
{
    const bool isKey = event->type() == QEvent::KeyPress || event->type() == QEvent::KeyRelease
        || event->type() == QEvent::ShortcutOverride;
    return isKey && !m_shown.hasExpired(quietTime.count());
}

void AlertPanelController::btnOKAction()
{
    wndAlert_->done(QDialog::Accepted);
    Q_EMIT pageWanted();
}

void AlertPanelController::btnCancelAction()
{
    wndAlert_->done(QDialog::Rejected);
}

} // namespace tarvo
