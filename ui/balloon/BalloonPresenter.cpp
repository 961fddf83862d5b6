#include "ui/balloon/BalloonPresenter.h"

#include "platform/Notifications.h"
#include "ui/balloon/Balloon.h"
#include "ui/balloon/BalloonPlacement.h"
#include "ui/balloon/OvAttachedWindow.h"
#include "ui_BalloonView.h"

#include <QAccessible>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

#include <cmath>
#include <utility>

namespace tarvo {

using namespace Qt::StringLiterals;

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

    bool isUnderPointer() const override { return m_window->underMouse(); }

private:
    std::unique_ptr<OvAttachedWindow> m_window;
};

class NotificationBalloon final : public Balloon {
public:
    /// @param otherwise  shows the message in another way when the service turns it down
    /// @param appeared   told when one or the other has been shown
    NotificationBalloon(Notifications &notifications, const Notification &notification, Otherwise otherwise,
                        std::function<void()> appeared)
        : m_notifications(notifications)
        , m_kind(notification.kind)
    {
        notifications.show(notification,
                           [this, otherwise = std::move(otherwise), appeared = std::move(appeared)](bool shown) {
                               if (!shown)
                                   m_replacement = otherwise();
                               if (appeared)
                                   appeared();
                           });
    }

    // The notification stays where the desktop keeps such things; only nothing comes in its place any more.
    ~NotificationBalloon() override { m_notifications.forgetAnswer(m_kind); }

    bool isUnderPointer() const override { return m_replacement && m_replacement->isUnderPointer(); }

private:
    Notifications &m_notifications;
    const QString m_kind;
    std::unique_ptr<Balloon> m_replacement;
};

std::unique_ptr<OvAttachedWindow> balloonAt(QWidget *view, const BalloonPlacement &placement, float distance)
{
    return OvAttachedWindow::initWithView(view, {placement.point.x(), -placement.point.y()}, placement.side, distance);
}

constexpr int edgeMargin = 12; // between a balloon and the screen's edges

std::unique_ptr<OvAttachedWindow> balloonAtIcon(QWidget *view, const QRect &icon)
{
    constexpr float distance = 5;
    const QScreen *screen = QGuiApplication::screenAt(icon.center());
    if (!screen)
        screen = QGuiApplication::primaryScreen();
    return balloonAt(view,
                     placeBalloon({}, view->size(), flipped(icon), distance,
                                  flipped(screen->geometry()).grownBy(-edgeMargin),
                                  flipped(screen->availableGeometry())),
                     distance);
}

std::unique_ptr<OvAttachedWindow> balloonInCorner(QWidget *view)
{
    const BalloonShape shape{.arrowHeight = 0, .hasArrow = false};
    const QScreen *screen = QGuiApplication::primaryScreen();
    auto window = balloonAt(view,
                            placeBalloonInCorner(shape, view->size(), flipped(screen->geometry()),
                                                 flipped(screen->availableGeometry()), edgeMargin,
                                                 QGuiApplication::isRightToLeft()),
                            0);
    window->setHasArrow(false);
    window->setArrowHeight(0);
    return window;
}

} // namespace

BalloonPresenter::BalloonPresenter(Notifications *notifications, Callbacks callbacks)
    : m_notifications(notifications)
    , m_callbacks(std::move(callbacks))
    , balloonView_(std::make_unique<QWidget>())
{
    Ui::BalloonView interface;
    interface.setupUi(balloonView_.get());
    ballooonTextField_ = interface.ballooonTextField_;
}

BalloonPresenter::~BalloonPresenter()
{
    withdraw(); // their action leads to who may be gone
}

void BalloonPresenter::toggleAttachedWindowAtPoint(const std::optional<QString> &text, const BalloonExtras &extras)
{
    if (attachedWindow)
        close();
    else if (text && !text->isEmpty())
        attachedWindow = show(*text, extras);
}

void BalloonPresenter::dismiss(std::function<void()> closed)
{
    m_closed = std::move(closed);
    if (!attachedWindow || !attachedWindow->isUnderPointer())
        close();
}

void BalloonPresenter::close()
{
    attachedWindow.reset();
    if (m_closed)
        std::exchange(m_closed, {})();
}

void BalloonPresenter::withdraw()
{
    for (const QString &kind : std::exchange(m_notified, {}))
        m_notifications->close(kind);
}

std::unique_ptr<Balloon> BalloonPresenter::show(const QString &text, const BalloonExtras &extras)
{
    const std::optional<QRect> iconFrame = m_callbacks.iconFrame ? m_callbacks.iconFrame() : std::nullopt;
    if (iconFrame || !m_notifications || !m_notifications->available()) {
        auto window = showWindow(text, iconFrame);
        if (extras.appeared)
            extras.appeared();
        return window;
    }
    m_notified.insert(extras.kind);
    const Notification notification{.kind = extras.kind,
                                    .title = extras.title.isEmpty() ? u"Tarvo"_s : extras.title,
                                    .text = text,
                                    .iconName = u"io.github.tarvo.Tarvo"_s,
                                    .image = extras.image,
                                    .openLabel = extras.openLabel,
                                    .opened = extras.opened};
    return std::make_unique<NotificationBalloon>(
        *m_notifications, notification, [this, text] { return showWindow(text, std::nullopt); }, extras.appeared);
}

void BalloonPresenter::listenTo(const OvAttachedWindow &window)
{
    // Not at once: the window is still handling the event that it tells of.
    const auto clicked = [this] {
        if (m_callbacks.clicked)
            m_callbacks.clicked();
        close();
    };
    const auto left = [this] {
        if (m_closed)
            close();
    };
    QObject::connect(&window, &OvAttachedWindow::clicked, &m_context, clicked, Qt::QueuedConnection);
    QObject::connect(&window, &OvAttachedWindow::pointerLeft, &m_context, left, Qt::QueuedConnection);
}

std::unique_ptr<Balloon> BalloonPresenter::showWindow(const QString &text, const std::optional<QRect> &iconFrame)
{
    // A Wayland compositor would put the window into the middle of the screen.
    if (!iconFrame && QGuiApplication::platformName().startsWith(u"wayland"))
        return std::make_unique<Balloon>();
    const auto textWidth = static_cast<float>(QFontMetricsF(ballooonTextField_->font()).horizontalAdvance(text));
    // An even width keeps the arrow's tip, in the middle, on a whole pixel.
    balloonView_->resize(2 * static_cast<int>(std::ceil((textWidth + 30.0F) / 2)), 40);
    ballooonTextField_->setText(text);

    auto window = iconFrame ? balloonAtIcon(balloonView_.get(), *iconFrame) : balloonInCorner(balloonView_.get());
    QPalette palette = ballooonTextField_->palette();
    palette.setColor(QPalette::WindowText, window->borderColor());
    ballooonTextField_->setPalette(palette);
    window->setTranslucent(m_callbacks.isScreenComposited && m_callbacks.isScreenComposited());
    window->setAccessibleName(text);
    listenTo(*window);
    return std::make_unique<WindowBalloon>(std::move(window));
}

} // namespace tarvo
