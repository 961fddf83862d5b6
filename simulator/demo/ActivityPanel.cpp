#include "simulator/demo/ActivityPanel.h"

#include "simulator/demo/DemoWorld.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QScrollBar>
#include <QTime>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace tarvo {

using namespace Qt::StringLiterals;

namespace {
constexpr int maximumLines = 2000;
constexpr int recentLines = 6; // as many as a poll may repeat
constexpr int timeColumn = 0;
constexpr int kindColumn = 1;
constexpr int textColumn = 2;
constexpr int timesColumn = 3;
constexpr int timesRole = Qt::UserRole;
const QString timeFormat = u"HH:mm:ss"_s;
const QString requestKind = u"request"_s;
const QString logKind = u"log"_s;
const QString pageKind = u"page"_s;
} // namespace

ActivityPanel::ActivityPanel(DemoWorld &world)
    : QGroupBox(u"Activity"_s)
    , m_filter(new QComboBox)
    , m_list(new QTreeWidget)
{
    m_filter->addItem(u"Everything"_s);
    m_filter->addItem(u"Requests to the modem"_s, requestKind);
    m_filter->addItem(u"The companion's log"_s, logKind);
    m_filter->addItem(u"Opened pages"_s, pageKind);
    m_list->setHeaderHidden(true);
    m_list->setColumnCount(4);
    m_list->setRootIsDecorated(false);
    m_list->setStyleSheet(u"QTreeView::item { padding: 1px 4px; }"_s);
    m_list->setUniformRowHeights(true);
    m_list->setAlternatingRowColors(true);
    m_list->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    m_list->header()->setSectionResizeMode(textColumn, QHeaderView::Stretch);
    m_list->header()->setStretchLastSection(false);

    auto *filterRow = new QHBoxLayout;
    filterRow->addWidget(new QLabel(u"Show"_s));
    filterRow->addWidget(m_filter);
    filterRow->addStretch();
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(filterRow);
    layout->addWidget(m_list);

    connect(m_filter, &QComboBox::currentIndexChanged, this, &ActivityPanel::applyFilter);
    connect(&world, &DemoWorld::modemAsked, this, [this](const QString &request) { add(requestKind, request); });
    connect(&world, &DemoWorld::lineLogged, this, [this](const QString &line) { add(logKind, line); });
    connect(&world, &DemoWorld::pageOpened, this, [this](const QUrl &page) { add(pageKind, page.toString()); });
}

void ActivityPanel::add(const QString &kind, const QString &text)
{
    if (QTreeWidgetItem *item = recentLine(kind, text)) {
        const int times = item->data(timesColumn, timesRole).toInt() + 1;
        item->setData(timesColumn, timesRole, times);
        item->setText(timesColumn, u"× %1"_s.arg(times));
        item->setText(timeColumn, QTime::currentTime().toString(timeFormat));
        return;
    }
    const QScrollBar *bar = m_list->verticalScrollBar();
    const bool atEnd = bar->value() == bar->maximum();
    auto *item = new QTreeWidgetItem(m_list, {QTime::currentTime().toString(timeFormat), kind, text, QString()});
    item->setToolTip(textColumn, text);
    item->setData(timesColumn, timesRole, 1);
    item->setForeground(timeColumn, palette().placeholderText());
    item->setForeground(timesColumn, palette().placeholderText());
    item->setForeground(kindColumn, kind == pageKind ? palette().link() : palette().placeholderText());
    item->setHidden(m_filter->currentIndex() != 0 && m_filter->currentData() != kind);
    if (m_list->topLevelItemCount() > maximumLines)
        delete m_list->takeTopLevelItem(0);
    if (atEnd)
        m_list->scrollToBottom();
}

QTreeWidgetItem *ActivityPanel::recentLine(const QString &kind, const QString &text) const
{
    const int count = m_list->topLevelItemCount();
    for (int line = count - 1; line >= std::max(0, count - recentLines); --line) {
        QTreeWidgetItem *item = m_list->topLevelItem(line);
        if (item->text(kindColumn) == kind && item->text(textColumn) == text)
            return item;
    }
    return nullptr;
}

void ActivityPanel::applyFilter()
{
    for (int line = 0; line < m_list->topLevelItemCount(); ++line) {
        QTreeWidgetItem *item = m_list->topLevelItem(line);
        item->setHidden(m_filter->currentIndex() != 0 && m_filter->currentData() != item->text(kindColumn));
    }
}

} // namespace tarvo
