#pragma once

#include "ui/balloon/BalloonGeometry.h"

#include <QBrush>
#include <QColor>
#include <QPointer>
#include <QWidget>

#include <memory>

namespace tarvo {

/// A frameless window that shows one content view in a rounded rectangle with an arrow, like a speech balloon.
///
/// It never takes the keyboard focus and is in no window list. Points are in Qt's coordinates, y downwards: those of
/// the window that is given with them, global ones without a window. The side is chosen once; only the setters and a
/// resize lay the balloon out again.
class OvAttachedWindow : public QWidget {
    Q_OBJECT

public:
    /// @return a balloon, still hidden; null without a content
    /// @param view      the content, which is shown in the balloon as long as that lives and stays the caller's
    /// @param window    the window whose coordinates @p point has; may be null
    /// @param distance  between @p point and the arrow's tip
    static std::unique_ptr<OvAttachedWindow> initWithView(QWidget *view, QPointF point, QWidget *window,
                                                          OvSide side = OvSide::Automatic, float distance = 0);
    // The same with a side that suits the place, or with @p point in global coordinates.
    static std::unique_ptr<OvAttachedWindow> initWithView(QWidget *view, QPointF point, QWidget *window,
                                                          float distance);
    static std::unique_ptr<OvAttachedWindow> initWithView(QWidget *view, QPointF point, OvSide side = OvSide::Automatic,
                                                          float distance = 0);
    static std::unique_ptr<OvAttachedWindow> initWithView(QWidget *view, QPointF point, float distance);

    ~OvAttachedWindow() override;

    // How the balloon looks; lengths in points, within the bounds that `BalloonShape` has. Each setter draws it anew at
    // once, and moves and resizes the window where that follows.
    const QColor &borderColor() const { return borderColor_; }
    void setBorderColor(const QColor &color);
    float borderWidth() const { return shape_.borderWidth; }
    void setBorderWidth(float width);
    float viewMargin() const { return shape_.viewMargin; }
    void setViewMargin(float margin);
    float arrowBaseWidth() const { return shape_.arrowBaseWidth; }
    void setArrowBaseWidth(float width);
    float arrowHeight() const { return shape_.arrowHeight; }
    void setArrowHeight(float height);
    bool hasArrow() const { return shape_.hasArrow; }
    void setHasArrow(bool hasArrow);
    float cornerRadius() const { return shape_.cornerRadius; }
    void setCornerRadius(float radius);
    bool drawsRoundCornerBesideArrow() const { return shape_.drawsRoundCornerBesideArrow; }
    void setDrawsRoundCornerBesideArrow(bool rounded);
    const QBrush &windowBackgroundColor() const { return backgroundColor_; }
    void setBackgroundColor(const QBrush &color);
    /// Fills the balloon with @p image, repeated; nothing for a null image.
    void setBackgroundImage(const QImage &image);

    /// Whether the screen can show the balloon translucent and with a shadow; otherwise, and at first, it is opaque
    /// and cut to its outline. To be set before it is shown.
    void setTranslucent(bool translucent);

Q_SIGNALS:
    /// The user has clicked the balloon.
    void clicked();
    /// The pointer has left the balloon.
    void pointerLeft();

protected:
    void leaveEvent(QEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    OvAttachedWindow(QWidget *view, QPointF point, QWidget *window, OvSide side, float distance);

    QPointF pointOnScreen() const;
    OvSide bestSideForAutomaticPosition() const;
    QSizeF viewSize() const;
    int shadowMargin() const;
    QPainterPath backgroundPath() const;
    void updateGeometry();
    void updateBackground();
    void redisplay();

    QColor borderColor_ = Qt::white;
    QBrush backgroundColor_{QColor::fromRgbF(0.1F, 0.1F, 0.1F, 0.75F)};
    BalloonShape shape_;
    QPointer<QWidget> view_;
    QPointer<QWidget> window_;
    QPointF point_;
    OvSide side_;
    float distance_;
    BalloonLayout layout_;
    bool translucent_ = false;
    bool resizing_ = false;
};

} // namespace tarvo
