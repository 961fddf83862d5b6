#include "ui/Images.h"

#include <QIconEngine>
#include <QPainter>
#include <QPixmap>
#include <QSvgRenderer>

#include <memory>
#include <utility>

namespace tarvo {

using namespace Qt::StringLiterals;

namespace {

constexpr int usualSize = 22; // pixels

using Drawing = std::shared_ptr<QSvgRenderer>; // clones draw the same

Drawing drawingOf(QStringView folder, const QString &name)
{
    auto drawing = std::make_shared<QSvgRenderer>(u":/tarvo/icons/hicolor/%1/%2.svg"_s.arg(folder, name));
    drawing->setAspectRatioMode(Qt::KeepAspectRatio);
    return drawing;
}

/// Draws an SVG file at whatever size is asked for. Qt's own engine for such files is a plugin, and need not be there.
class SvgEngine : public QIconEngine {
public:
    explicit SvgEngine(Drawing drawing)
        : m_drawing(std::move(drawing))
    {
    }

    bool isNull() override { return !m_drawing->isValid(); }
    QIconEngine *clone() const override { return new SvgEngine(*this); }

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode, QIcon::State) override
    {
        drawingFor(qMin(rect.width(), rect.height())).render(painter, QRectF(rect));
    }

    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, pixmap.rect(), mode, state);
        return pixmap;
    }

protected:
    /// @return the drawing whose lines meet the pixels at @p side pixels, as well as one can
    virtual QSvgRenderer &drawingFor(int) { return *m_drawing; }

private:
    Drawing m_drawing;
};

/// An image that was also drawn for the sizes of panels which are no multiples of 16 pixels.
class StateEngine final : public SvgEngine {
public:
    explicit StateEngine(const QString &name)
        : SvgEngine(drawingOf(u"scalable/status", name))
        , m_name(name)
        , m_for22(drawingOf(u"22x22/status", name))
        , m_for24(drawingOf(u"24x24/status", name))
    {
    }

    QIconEngine *clone() const override { return new StateEngine(*this); }

    /// @return the name by which others find the image, and its variant in one colour, in the icon theme; empty where it
    ///         is not installed
    QString iconName() override { return QIcon::hasThemeIcon(m_name) ? m_name : QString(); }

protected:
    QSvgRenderer &drawingFor(int side) override
    {
        if (side % 22 == 0)
            return *m_for22;
        return side == 24 ? *m_for24 : SvgEngine::drawingFor(side);
    }

private:
    QString m_name;
    Drawing m_for22;
    Drawing m_for24;
};

QIcon iconOf(std::unique_ptr<SvgEngine> engine)
{
    return engine->isNull() ? QIcon() : QIcon(engine.release());
}

} // namespace

QIcon imageNamed(const QString &name)
{
    // Not drawn by the icon theme: it would stretch the drawing for 22 pixels to 24, and its lines would blur.
    return iconOf(std::make_unique<StateEngine>(u"tarvo-"_s + name));
}

QIcon applicationImage()
{
    // The theme's may be of a kind that no installed plugin draws, or damaged.
    const auto name = u"io.github.tarvo.Tarvo"_s;
    const QIcon themed = QIcon::fromTheme(name);
    return themed.pixmap(usualSize).isNull() ? iconOf(std::make_unique<SvgEngine>(drawingOf(u"scalable/apps", name)))
                                             : themed;
}

} // namespace tarvo
