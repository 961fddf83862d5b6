#include "ui/BalloonPresenter.h"

#include "platform/Notifications.h"
#include "ui/Balloon.h"
#include "ui/BalloonPlacement.h"
#include "ui/OvAttachedWindow.h"
#include "ui_BalloonView.h"

#include <QAccessible>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

#include <cmath>
#include <utility>

namespace tarvo {

namespace {

using Otherwise = std::function<std::unique_ptr<Balloon>()>;

class WindowBalloon final : public Balloon {
public:
    explicit WindowBalloon(std::unique_ptr<OvAttachedWindow> window)
        : m_window(std::move(window))
    {
        m_window->show();
        m_window->raise();
        QAccessibleEvent appeared(m_window.get(), QAccessible::Alert);
        QAccessible::updateAccessibility(&appeared);
    }

private:
    std::unique_ptr<OvAttachedWindow> m_window;
};

class NotificationBalloon final : public Balloon {
public:
    /// @param otherwise  shows the message in another way when the service turns it down
    NotificationBalloon(Notifications &notifications, const QString &text, Otherwise otherwise)
        : m_notifications(notifications)
    {
        notifications.show(
            {.title = QStringLiteral("Tarvo"), .text = text, .iconName = QStringLiteral("io.github.tarvo.Tarvo")},
            [this, otherwise = std::move(otherwise)] { m_replacement = otherwise(); });
    }

    ~NotificationBalloon() override { m_notifications.close(); }

private:
    Notifications &m_notifications;
    std::unique_ptr<Balloon> m_replacement;
};

std::unique_ptr<OvAttachedWindow> balloonAt(QWidget *view, const BalloonPlacement &placement, float distance)
{
    return OvAttachedWindow::initWithView(view, {placement.point.x(), -placement.point.y()}, placement.side, distance);
}

std::unique_ptr<OvAttachedWindow> balloonAtIcon(QWidget *view, const QRect &icon)
{
    constexpr float distance = 5;
    const QScreen *screen = QGuiApplication::screenAt(icon.center());
    if (!screen)
        screen = QGuiApplication::primaryScreen();
    return balloonAt(view,
                     placeBalloon({}, view->size(), flipped(icon), distance, flipped(screen->geometry()),
                                  flipped(screen->availableGeometry())),
                     distance);
}

std::unique_ptr<OvAttachedWindow> balloonInCorner(QWidget *view)
{
    constexpr float margin = 12;
    const BalloonShape shape{.arrowHeight = 0, .hasArrow = false};
    const QScreen *screen = QGuiApplication::primaryScreen();
    auto window =
        balloonAt(view,
                  placeBalloonInCorner(shape, view->size(), flipped(screen->geometry()),
                                       flipped(screen->availableGeometry()), margin, QGuiApplication::isRightToLeft()),
                  0);
    window->setHasArrow(false);
    window->setArrowHeight(0);
    return window;
}

} // namespace

BalloonPresenter::BalloonPresenter(Notifications *notifications, std::function<bool()> isScreenComposited,
                                   std::function<std::optional<QRect>()> iconFrame)
    : m_notifications(notifications)
    , m_isScreenComposited(std::move(isScreenComposited))
    , m_iconFrame(std::move(iconFrame))
    , balloonView_(std::make_unique<QWidget>())
{
    Ui::BalloonView interface;
    interface.setupUi(balloonView_.get());
    ballooonTextField_ = interface.ballooonTextField_;
}

BalloonPresenter::~BalloonPresenter() = default;

void BalloonPresenter::toggleAttachedWindowAtPoint(const std::optional<QString> &text)
{
    if (attachedWindow)
        attachedWindow.reset();
    else if (text && !text->isEmpty())
        attachedWindow = show(*text, m_iconFrame());
}

std::unique_ptr<Balloon> BalloonPresenter::show(const QString &text, const std::optional<QRect> &iconFrame)
{
    if (iconFrame || !m_notifications || !m_notifications->available())
        return showWindow(text, iconFrame);
    return std::make_unique<NotificationBalloon>(*m_notifications, text,
                                                 [this, text] { return showWindow(text, std::nullopt); });
}

std::unique_ptr<Balloon> BalloonPresenter::showWindow(const QString &text, const std::optional<QRect> &iconFrame)
{
    const auto textWidth = static_cast<float>(QFontMetricsF(ballooonTextField_->font()).horizontalAdvance(text));
    // An even width keeps the arrow's tip, in the middle, on a whole pixel.
    balloonView_->resize(2 * static_cast<int>(std::ceil((textWidth + 30.0F) / 2)), 40);
    ballooonTextField_->setText(text);

    auto window = iconFrame ? balloonAtIcon(balloonView_.get(), *iconFrame) : balloonInCorner(balloonView_.get());
    QPalette palette = ballooonTextField_->palette();
    palette.setColor(QPalette::WindowText, window->borderColor());
    ballooonTextField_->setPalette(palette);
    window->setTranslucent(m_isScreenComposited && m_isScreenComposited());
    window->setAccessibleName(text);
    return std::make_unique<WindowBalloon>(std::move(window));
}

} // namespace tarvo
