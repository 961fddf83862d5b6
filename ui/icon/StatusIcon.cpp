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

StatusIcon::StatusIcon(StatusBar &statusBar, SystemLog &systemLog, const ConfigManager &settings, QMenu &menu,
                       Callbacks callbacks)
    : m_statusBar(statusBar)
    , m_settings(settings)
    , m_menu(menu)
    , m_callbacks(std::move(callbacks))
    , cview_(std::make_unique<CustomView>(systemLog))
{
    QObject::connect(cview_.get(), &CustomView::clicked, &m_context, [this] { clicked(); });
    QObject::connect(cview_.get(), &CustomView::mouseEntered, &m_context, m_callbacks.pointerEntered);
    QObject::connect(cview_.get(), &CustomView::appearanceChanged, &m_context, [this] {
        if (statusItem_)
            statusItem_->viewChanged();
    });
}

StatusIcon::~StatusIcon() = default;

void StatusIcon::startToolbarStatus()
{
    if (!m_settings.flag(u"IsDisplayNetStatusInToolBar"_s) || statusItem_)
        return;
    statusDisplay_ = m_statusBar.createItem(variableStatusItemLength);
    statusItem_ = m_statusBar.createItem(squareStatusItemLength);
    statusItem_->setMenu(&m_menu);
    statusItem_->setView(cview_.get());
}

void StatusIcon::showRemoval()
{
    if (m_settings.flag(u"NeedDisplayWhenDeviceRemoved"_s))
        return;
    statusItem_.reset();
    statusDisplay_.reset();
}

void StatusIcon::clicked()
{
    const bool second = m_lastClick.isValid() && !m_lastClick.hasExpired(QApplication::doubleClickInterval());
    m_lastClick.start();
    if (!second)
        m_callbacks.clicked();
}

void StatusIcon::setStatusImage(const QString &name)
{
    cview_->setImage(name);
}

void StatusIcon::setStatusToolTip(const QString &toolTip)
{
    cview_->setTip(toolTip);
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
