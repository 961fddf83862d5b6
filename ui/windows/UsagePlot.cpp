#include "ui/windows/UsagePlot.h"

#include "status/DataAmounts.h"
#include "ui/look/AccessibleRole.h"

#include <QCoreApplication>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>

namespace tarvo {

namespace {

/// @return the data used since the first sample, in gigabytes
double growth(const QList<UsageHistory::Sample> &samples)
{
    return samples.isEmpty() ? 0 : std::max(0.0, samples.last().gigabytes - samples.first().gigabytes);
}

/// @return the curve in a frame of the size 1 by 1, y upwards, as fractions of the time and of @p most
QPolygonF curve(const QList<UsageHistory::Sample> &samples, double most)
{
    QPolygonF points;
    const double end = std::max(1.0, static_cast<double>(samples.last().sincePlugIn.count()));
    for (const UsageHistory::Sample &sample : samples) {
        const double used = std::clamp(sample.gigabytes - samples.first().gigabytes, 0.0, most);
        points << QPointF(static_cast<double>(sample.sincePlugIn.count()) / end, most > 0 ? used / most : 0);
    }
    return points;
}

} // namespace

UsagePlot::UsagePlot()
{
    setAccessibleRole<UsagePlot, QAccessible::Chart>();
    setAccessibleName(qtTrId("StatusPlot"));
    setMinimumHeight(72);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void UsagePlot::setSamples(const QList<UsageHistory::Sample> &samples)
{
    if (samples == m_samples)
        return;
    m_samples = samples;
    setAccessibleDescription(dataAmount(growth(samples)));
    update();
}

void UsagePlot::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const QRectF frame = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
    painter.setPen(palette().color(QPalette::Mid));
    painter.setBrush(palette().base());
    painter.drawRect(frame);
    if (m_samples.isEmpty())
        return;

    painter.setRenderHint(QPainter::Antialiasing);
    const double most = growth(m_samples);
    const QRectF area = frame.adjusted(1, fontMetrics().height() + 6, -1, -1);
    QPolygonF points;
    for (const QPointF &point : curve(m_samples, most)) {
        const double x = isRightToLeft() ? 1 - point.x() : point.x();
        points << QPointF(area.x() + area.width() * x, area.bottom() - area.height() * point.y());
    }
    QPolygonF filled = points;
    filled << QPointF(points.last().x(), area.bottom()) << QPointF(points.first().x(), area.bottom());
    QColor fill = palette().color(QPalette::Highlight);
    painter.setPen(QPen(fill, 2));
    painter.drawPolyline(points);
    fill.setAlpha(60);
    painter.setPen(Qt::NoPen);
    painter.setBrush(fill);
    painter.drawPolygon(filled);

    painter.setPen(palette().color(QPalette::Text));
    const QRectF text = frame.adjusted(6, 3, -6, -3);
    painter.drawText(text, Qt::AlignTop | Qt::AlignLeading, dataAmount(most));
}

} // namespace tarvo
