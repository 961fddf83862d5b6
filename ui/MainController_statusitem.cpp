#include "RouterObserver/ConfigManager.h"
#include "app/MainController.h"
#include "platform/StatusBar.h"
#include "ui/AboutDialog.h"
#include "ui/CustomView.h"

#include <QAction>
#include <QMessageBox>

#include <functional>

namespace tarvo {

void MainController::startToolbarStatus()
{
    if (!configurationFlag(QStringLiteral("IsDisplayNetStatusInToolBar")) || statusItem_)
        return;
    createStatusItems(QStringLiteral("ready"));
}

void MainController::createStatusItems(const QString &imageName)
{
    statusDisplay_ = services_.statusBar.createItem(variableStatusItemLength);
    statusItem_ = services_.statusBar.createItem(squareStatusItemLength);
    cview_ = std::make_unique<CustomView>(services_.systemLog);
    cview_->setImage(imageName);
    addMenuActions();
    QObject::connect(cview_.get(), &CustomView::clicked, &mainThread_, [this] { openHomepage(); });
    QObject::connect(cview_.get(), &CustomView::mouseEntered, &mainThread_, [this] { mouseEnteredHandle(); });
    QObject::connect(cview_.get(), &CustomView::appearanceChanged, &mainThread_, [this] {
        if (statusItem_)
            statusItem_->viewChanged();
    });
    statusItem_->setView(cview_.get());
}

void MainController::removeStatusItems()
{
    statusItem_.reset();
    statusDisplay_.reset();
}

void MainController::addMenuActions()
{
    const auto add = [this](const QString &text, const std::function<void()> &operation) {
        auto *action = new QAction(text, cview_.get());
        QObject::connect(action, &QAction::triggered, &mainThread_, operation);
        cview_->addAction(action);
    };
    add(qtTrId("MenuOpenModemPage"), [this] { openWebUI(); });
    if (configurationText(QStringLiteral("WebUISmsPage")))
        add(qtTrId("MenuOpenMessages"), [this] { openWebUISmsPage(); });
    add(qtTrId("MenuAbout"), [this] { showAbout(); });
    add(qtTrId("MenuQuit"), [this] { windowShouldClose(); });
}

void MainController::showAbout()
{
    if (!aboutDialog_)
        aboutDialog_ = makeAboutDialog();
    aboutDialog_->show();
    aboutDialog_->raise();
    aboutDialog_->activateWindow();
}

void MainController::setStatusImage(const QString &imageName)
{
    if (cview_)
        cview_->setImage(imageName);
}

void MainController::setStatusToolTip(const QString &toolTip)
{
    if (cview_)
        cview_->setTip(toolTip);
}

void MainController::mouseEnteredHandle()
{
    if (configurationFlag(QStringLiteral("DonotShowStatusWhenMouseMoveIn"))
        || state_.startDisplayFlowing_.exchange(true)) {
        log(QStringLiteral("already dislaystatus or no need display"));
        return;
    }
    state_.statusDisplayFlowFinishFlag_ = false;
    startThread([this] { displayUIStatus(); });
}

void MainController::startDisPlayUIStatusThread()
{
    if (state_.startDisplayFlowing_.exchange(true))
        return;
    if (!startThread([this] { displayUIStatus(); }))
        state_.startDisplayFlowing_ = false;
}

} // namespace tarvo
