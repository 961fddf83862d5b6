#include "ui/windows/UsageBar.h"

#include "ui/look/AccessibleRole.h"

#include <QPainter>
#include <QPainterPath>

#include <algorithm>

namespace tarvo {

namespace {

constexpr int barHeight = 12;
constexpr int markOverhang = 4; ///< of a mark above and below the bar
const QColor overLimitColor(0xc6, 0x28, 0x28);

/// @return the amount that the bar's whole length stands for
double fullAmount(const UsageBar::Amounts &amounts)
{
    constexpr double roomBeyond = 1.15; // so that a mark or an overrun at the end can be seen
    return std::max({amounts.used, amounts.limit, amounts.reminder}) * roomBeyond;
}

/// @return a colour that the empty bar can be seen in on light and on dark windows
QColor trackColor(const QPalette &palette)
{
    QColor color = palette.color(QPalette::WindowText);
    color.setAlphaF(0.16F);
    return color;
}

} // namespace

UsageBar::UsageBar(const QString &name)
{
    setAccessibleRole<UsageBar, QAccessible::ProgressBar>();
    setAccessibleName(name);
    setMinimumHeight(barHeight + 2 * markOverhang);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void UsageBar::setAmounts(const Amounts &amounts, const QString &text)
{
    setAccessibleDescription(text);
    if (amounts == m_amounts)
        return;
    m_amounts = amounts;
    update();
}

QSize UsageBar::sizeHint() const
{
    return {240, barHeight + 2 * markOverhang};
}

void UsageBar::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (isRightToLeft()) {
        painter.translate(width(), 0);
        painter.scale(-1, 1);
    }
    const QRectF track(0.5, markOverhang + 0.5, width() - 1, barHeight - 1);
    QPainterPath outline;
    outline.addRoundedRect(track, 4, 4);
    painter.fillPath(outline, trackColor(palette()));

    const double full = fullAmount(m_amounts);
    if (full <= 0)
        return;
    const bool over = m_amounts.limit > 0 && m_amounts.used > m_amounts.limit;
    painter.setClipPath(outline);
    painter.fillRect(QRectF(track.x(), track.y(), track.width() * m_amounts.used / full, track.height()),
                     over ? overLimitColor : palette().color(QPalette::Highlight));
    painter.setClipping(false);
    painter.setRenderHint(QPainter::Antialiasing, false);
    for (const auto &[amount, style] : {std::pair(m_amounts.reminder, Qt::DotLine), {m_amounts.limit, Qt::SolidLine}}) {
        if (amount <= 0)
            continue;
        const int x = qRound(track.x() + track.width() * amount / full);
        painter.setPen(QPen(palette().color(QPalette::WindowText), 2, style));
        painter.drawLine(x, 0, x, height());
    }
}

} // namespace tarvo
