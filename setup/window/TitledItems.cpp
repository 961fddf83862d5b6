#include "setup/window/TitledItems.h"

#include <QApplication>
#include <QPainter>
#include <QStyledItemDelegate>

namespace tarvo {

using namespace Qt::StringLiterals;

namespace {

constexpr int bodyRole = Qt::UserRole;
constexpr int margin = 8; // pixels
constexpr int iconSize = 24;
constexpr int lineGap = 2;
constexpr int wrapping = Qt::TextWordWrap | Qt::AlignLeading | Qt::AlignTop;

QFont titleFont(QFont font)
{
    font.setBold(true);
    return font;
}

/// Where the parts of an item are, for a layout from left to right.
struct Places {
    QRect icon;
    QRect title;
    QRect body;

    Places(const QRect &item, const QFont &font, const QString &titleText, const QString &bodyText)
    {
        const QPoint corner = item.topLeft() + QPoint(margin, margin);
        icon = QRect(corner, QSize(iconSize, iconSize));
        const QRect room(corner + QPoint(iconSize + margin, 0), QSize(item.width() - iconSize - 3 * margin, 10'000));
        title = QFontMetrics(titleFont(font)).boundingRect(room, wrapping, titleText);
        body = QRect(title.bottomLeft() + QPoint(0, lineGap + 1), QSize());
        if (!bodyText.isEmpty())
            body = QFontMetrics(font).boundingRect(room.translated(0, title.height() + lineGap), wrapping, bodyText);
        if (bodyText.isEmpty() && title.height() < iconSize)
            title.moveTop(icon.center().y() - title.height() / 2);
        title.setWidth(room.width());
        body.setWidth(room.width());
    }

    int height() const { return qMax(icon.bottom(), body.bottom()) + 1 - icon.top() + 2 * margin; }
};

class TitledDelegate final : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        const auto *const view = qobject_cast<const QAbstractItemView *>(option.widget);
        const QRect row(0, 0, view ? view->viewport()->width() : 0, 0);
        return {row.width(), placesIn(row, option.font, index).height()};
    }

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        const QStyle *const style = option.widget ? option.widget->style() : QApplication::style();
        style->drawPrimitive(QStyle::PE_PanelItemViewItem, &option, painter, option.widget);
        const Places places = placesIn(option.rect, option.font, index);
        const auto placed = [&](const QRect &part) { return QStyle::visualRect(option.direction, option.rect, part); };
        const bool selected = option.state.testFlag(QStyle::State_Selected);
        painter->save();
        painter->setLayoutDirection(option.direction);
        painter->setPen(option.palette.color(selected ? QPalette::HighlightedText : QPalette::Text));
        index.data(Qt::DecorationRole).value<QIcon>().paint(painter, placed(places.icon));
        painter->setFont(option.font);
        painter->drawText(placed(places.body), visualWrapping(option.direction), index.data(bodyRole).toString());
        painter->setFont(titleFont(option.font));
        painter->drawText(placed(places.title), visualWrapping(option.direction), index.data().toString());
        painter->restore();
    }

private:
    static int visualWrapping(Qt::LayoutDirection direction)
    {
        return Qt::TextWordWrap | int(QStyle::visualAlignment(direction, Qt::AlignLeft | Qt::AlignTop));
    }

    static Places placesIn(const QRect &rect, const QFont &font, const QModelIndex &index)
    {
        return {rect, font, index.data().toString(), index.data(bodyRole).toString()};
    }
};

} // namespace

TitledList::TitledList(QWidget *parent)
    : QListWidget(parent)
{
    setItemDelegate(new TitledDelegate(this));
    setVerticalScrollMode(ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
}

void TitledList::setItems(const QList<TitledItem> &items)
{
    const int chosen = currentRow();
    clear();
    for (const TitledItem &item : items) {
        auto *const row = new QListWidgetItem(item.icon, item.title, this);
        row->setData(bodyRole, item.body);
        row->setData(Qt::AccessibleTextRole, u"%1: %2. %3"_s.arg(item.iconText, item.title, item.body));
    }
    setCurrentRow(qBound(items.isEmpty() ? -1 : 0, chosen, int(items.size()) - 1));
}

void TitledList::resizeEvent(QResizeEvent *event)
{
    QListWidget::resizeEvent(event);
    scheduleDelayedItemsLayout(); // texts wrap at the width
}

QString isolated(const QString &text)
{
    return QChar(0x2068) + text + QChar(0x2069); // first strong isolate, pop directional isolate
}

} // namespace tarvo
