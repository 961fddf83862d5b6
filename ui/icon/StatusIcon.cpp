#include "ui/icon/StatusIcon.h"

#include "RouterObserver/ConfigManager.h"
#include "ui/icon/CustomView.h"

#include <QApplication>
#include <QTimer>

#include <chrono>
#include <utility>

namespace tarvo {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

StatusIcon::StatusIcon(StatusBar &statusBar, SystemLog &systemLog, QMenu &menu, Actions actions)
    : m_statusBar(statusBar)
    , m_systemLog(systemLog)
    , m_menu(menu)
    , m_actions(std::move(actions))
{
}

StatusIcon::~StatusIcon() = default;

void StatusIcon::startToolbarStatus()
{
    if (!configurationFlag(u"IsDisplayNetStatusInToolBar"_s) || statusItem_)
        return;
    createStatusItems(u"ready"_s);
}

void StatusIcon::showPolling()
{
    if (!configurationFlag(u"IsDisplayNetStatusInToolBar"_s))
        return;
    if (statusItem_)
        setStatusImage(u"online"_s);
    else
        createStatusItems(u"online"_s);
}

void StatusIcon::showRemoval()
{
    if (!configurationFlag(u"NeedDisplayWhenDeviceRemoved"_s)) {
        removeStatusItems();
        return;
    }
    setStatusImage(u"ready"_s);
}

void StatusIcon::createStatusItems(const QString &imageName)
{
    statusDisplay_ = m_statusBar.createItem(variableStatusItemLength);
    statusItem_ = m_statusBar.createItem(squareStatusItemLength);
    cview_ = std::make_unique<CustomView>(m_systemLog);
    cview_->setImage(imageName);
    cview_->setTip(m_toolTip);
    QObject::connect(cview_.get(), &CustomView::clicked, &m_context, [this] { clicked(); });
    QObject::connect(cview_.get(), &CustomView::mouseEntered, &m_context, m_actions.pointerEntered);
    QObject::connect(cview_.get(), &CustomView::appearanceChanged, &m_context, [this] {
        if (statusItem_)
            statusItem_->viewChanged();
    });
    statusItem_->setMenu(&m_menu);
    statusItem_->setView(cview_.get());
}

void StatusIcon::removeStatusItems()
{
    statusItem_.reset();
    statusDisplay_.reset();
}

void StatusIcon::clicked()
{
    const bool second = m_lastClick.isValid() && !m_lastClick.hasExpired(QApplication::doubleClickInterval());
    m_lastClick.start();
    if (!second)
        m_actions.click();
}

void StatusIcon::setStatusImage(const QString &name)
{
    if (cview_)
        cview_->setImage(name);
}

void StatusIcon::setStatusToolTip(const QString &toolTip)
{
    m_toolTip = toolTip;
    if (cview_)
        cview_->setTip(toolTip);
}

QString StatusIcon::image() const
{
    return cview_ ? cview_->image() : u"ready"_s;
}

std::optional<QRect> StatusIcon::frame() const
{
    return statusItem_ ? statusItem_->frame() : std::nullopt;
}

void StatusIcon::startConnectStatusTimer()
{
    if (firstStatusTimer_)
        return;
    firstStatusTimer_ = std::make_unique<QTimer>();
    QObject::connect(firstStatusTimer_.get(), &QTimer::timeout, &m_context,
                     [this] { statusCheck(firstStatusTimer_.get()); });
    firstStatusTimer_->start(7s);
}

void StatusIcon::statusCheck(const QTimer *timer)
{
    if (timer != firstStatusTimer_.get() || !statusItem_)
        return;
    statusItem_->setTitle(u"11"_s);
    QTimer::singleShot(3s, &m_context, [this] { disSendcondStatus(); });
}

void StatusIcon::disSendcondStatus()
{
    if (statusItem_)
        statusItem_->setTitle(QString());
}

} // namespace tarvo
