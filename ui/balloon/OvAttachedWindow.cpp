#include "ui/balloon/OvAttachedWindow.h"

#include "ui/look/AccessibleRole.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QImage>
#include <QMouseEvent>
#include <QPainter>
#include <QRegion>
#include <QScreen>
#include <QTransform>

namespace tarvo {

namespace {

constexpr Qt::WindowFlags balloonFlags = Qt::ToolTip | Qt::FramelessWindowHint | Qt::NoDropShadowWindowHint
    | Qt::WindowDoesNotAcceptFocus | Qt::WindowStaysOnTopHint;

/// Turns a point with y downwards into one with y upwards, and back, around the same origin.
QPointF flipped(QPointF point)
{
    return {point.x(), -point.y()};
}

/// @return where @p rect, with y upwards, is in a window of the height @p height with y downwards
QRectF inWindow(const OvRect &rect, double height)
{
    return {rect.x, height - rect.maxY(), rect.width, rect.height};
}

void paintShadow(QPainter &painter, const QPainterPath &outline, const QRectF &bounds, int reach)
{
    QPainterPath outside;
    outside.addRect(bounds);
    outside.addPath(outline);
    painter.save();
    painter.setClipPath(outside); // nothing of it shows through the translucent balloon
    const QPainterPath fallen = outline.translated(0, reach / 4.0);
    for (int spread = reach * 3 / 4; spread > 0; --spread)
        painter.strokePath(fallen, QPen(QColor(0, 0, 0, 7), 2 * spread, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.restore();
}

QBrush opaque(QBrush brush)
{
    QColor color = brush.color();
    color.setAlpha(255);
    brush.setColor(color);
    return brush;
}

} // namespace

std::unique_ptr<OvAttachedWindow> OvAttachedWindow::initWithView(QWidget *view, QPointF point, QWidget *window,
                                                                 OvSide side, float distance)
{
    if (!view)
        return nullptr;
    return std::unique_ptr<OvAttachedWindow>(new OvAttachedWindow(view, point, window, side, distance));
}

std::unique_ptr<OvAttachedWindow> OvAttachedWindow::initWithView(QWidget *view, QPointF point, QWidget *window,
                                                                 float distance)
{
    return initWithView(view, point, window, OvSide::Automatic, distance);
}

std::unique_ptr<OvAttachedWindow> OvAttachedWindow::initWithView(QWidget *view, QPointF point, OvSide side,
                                                                 float distance)
{
    return initWithView(view, point, nullptr, side, distance);
}

std::unique_ptr<OvAttachedWindow> OvAttachedWindow::initWithView(QWidget *view, QPointF point, float distance)
{
    return initWithView(view, point, nullptr, OvSide::Automatic, distance);
}

OvAttachedWindow::OvAttachedWindow(QWidget *view, QPointF point, QWidget *window, OvSide side, float distance)
    : QWidget(nullptr, balloonFlags)
    , view_(view)
    , window_(window)
    , point_(point)
    , side_(side)
    , distance_(distance)
{
    setAccessibleRole<OvAttachedWindow, QAccessible::AlertMessage>(); // screen readers announce alerts
    setAttribute(Qt::WA_ShowWithoutActivating);
    setAttribute(Qt::WA_X11NetWmWindowTypeNotification);
    setFocusPolicy(Qt::NoFocus);
    if (side_ == OvSide::Automatic)
        side_ = bestSideForAutomaticPosition();
    view->setParent(this);
    redisplay();
    view->show();
}

OvAttachedWindow::~OvAttachedWindow()
{
    if (view_)
        view_->setParent(nullptr);
}

void OvAttachedWindow::setBorderColor(const QColor &color)
{
    borderColor_ = color;
    updateBackground();
}

void OvAttachedWindow::setBorderWidth(float width)
{
    shape_.setBorderWidth(width);
    updateBackground();
}

void OvAttachedWindow::setViewMargin(float margin)
{
    shape_.setViewMargin(margin, viewSize());
    redisplay();
}

void OvAttachedWindow::setArrowBaseWidth(float width)
{
    shape_.setArrowBaseWidth(width, viewSize());
    redisplay();
}

void OvAttachedWindow::setArrowHeight(float height)
{
    shape_.arrowHeight = height;
    redisplay();
}

void OvAttachedWindow::setHasArrow(bool hasArrow)
{
    shape_.hasArrow = hasArrow;
    updateBackground();
}

void OvAttachedWindow::setCornerRadius(float radius)
{
    shape_.setCornerRadius(radius, viewSize());
    redisplay();
}

void OvAttachedWindow::setDrawsRoundCornerBesideArrow(bool rounded)
{
    shape_.drawsRoundCornerBesideArrow = rounded;
    redisplay();
}

void OvAttachedWindow::setBackgroundColor(const QBrush &color)
{
    backgroundColor_ = color;
    updateBackground();
}

void OvAttachedWindow::setBackgroundImage(const QImage &image)
{
    if (!image.isNull())
        setBackgroundColor(QBrush(image));
}

void OvAttachedWindow::setTranslucent(bool translucent)
{
    translucent_ = translucent;
    setAttribute(Qt::WA_TranslucentBackground, translucent);
    redisplay();
}

QPointF OvAttachedWindow::pointOnScreen() const
{
    return flipped(window_ ? window_->mapToGlobal(point_) : point_);
}

OvSide OvAttachedWindow::bestSideForAutomaticPosition() const
{
    const QScreen *shownOn = window_ ? window_->screen() : QGuiApplication::primaryScreen();
    const OvRect visible = shownOn ? flipped(QRectF(shownOn->availableGeometry())) : OvRect();
    const OvRect reference = window_ ? flipped(QRectF(window_->frameGeometry())) : visible;
    return bestBalloonSide(shape_, viewSize(), pointOnScreen(), distance_, visible, reference);
}

QSizeF OvAttachedWindow::viewSize() const
{
    return view_ ? QSizeF(view_->size()) : QSizeF();
}

int OvAttachedWindow::shadowMargin() const
{
    return translucent_ ? 16 : 0;
}

QPainterPath OvAttachedWindow::backgroundPath() const
{
    const QTransform toWindow(1, 0, 0, -1, shadowMargin(), shadowMargin() + layout_.window.height);
    return toWindow.map(balloonOutline(shape_, layout_.view, side_));
}

void OvAttachedWindow::updateGeometry()
{
    layout_ = layOutBalloon(shape_, viewSize(), pointOnScreen(), side_, distance_);
    const int margin = shadowMargin();
    const QPointF origin(layout_.window.x, -layout_.window.maxY());
    const QSizeF size(layout_.window.width, layout_.window.height);
    setGeometry(QRect(origin.toPoint(), size.toSize()).adjusted(-margin, -margin, margin, margin));
    if (view_)
        view_->setGeometry(inWindow(layout_.view, layout_.window.height).toRect().translated(margin, margin));
}

void OvAttachedWindow::updateBackground()
{
    if (translucent_)
        clearMask();
    else
        setMask(QRegion(backgroundPath().toFillPolygon().toPolygon()));
    update();
}

void OvAttachedWindow::redisplay()
{
    if (resizing_)
        return;
    resizing_ = true;
    updateGeometry();
    updateBackground();
    resizing_ = false;
}

void OvAttachedWindow::leaveEvent(QEvent *event)
{
    QWidget::leaveEvent(event);
    Q_EMIT pointerLeft();
}

void OvAttachedWindow::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint()))
        Q_EMIT clicked();
}

void OvAttachedWindow::closeEvent(QCloseEvent *event)
{
    if (!window_) {
        QWidget::closeEvent(event);
        return;
    }
    event->ignore();
    window_->close();
}

void OvAttachedWindow::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    redisplay();
}

void OvAttachedWindow::paintEvent(QPaintEvent *)
{
    const QPainterPath outline = backgroundPath();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (translucent_)
        paintShadow(painter, outline, rect(), shadowMargin());
    painter.setClipPath(outline);
    painter.fillPath(outline, translucent_ ? backgroundColor_ : opaque(backgroundColor_));
    if (shape_.borderWidth > 0) {
        const QPen pen(borderColor_, 2 * static_cast<double>(shape_.borderWidth), Qt::SolidLine, Qt::FlatCap,
                       Qt::RoundJoin);
        painter.strokePath(outline, pen);
    }
}

} // namespace tarvo
