#include "simulator/demo/ApnPanel.h"

#include "simulator/demo/DemoWorld.h"

#include <QHeaderView>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace tarvo {

using namespace Qt::StringLiterals;

namespace {

constexpr int shownRows = 7; // with the header
constexpr int indexColumn = 0;
constexpr int defaultColumn = 4;

/// The rows that show @p condition's access points: the modem's own, then what the computer added.
QList<QStringList> rows(const ModemCondition &condition)
{
    const auto mark = [&](const QString &name) {
        return name == condition.defaultProfileName ? u"default"_s : QString();
    };
    QList<QStringList> all;
    for (qsizetype index = 0; index < condition.webProfiles.size(); ++index) {
        const QString &name = condition.webProfiles[index];
        all.append({QString::number(index), name, u"built in"_s, u"modem"_s, mark(name)});
    }
    for (const QJsonObject &apn : condition.pcApns) {
        const QString name = apn.value(u"profile"_s).toString();
        all.append({QString::number(apn.value(u"index"_s).toInt()), name, apn.value(u"apn"_s).toString(), u"computer"_s,
                    mark(name)});
    }
    return all;
}

} // namespace

ApnPanel::ApnPanel(DemoWorld &world)
    : QGroupBox(u"Access points"_s)
    , m_world(world)
    , m_list(new QTreeWidget)
{
    m_list->setHeaderLabels({u"Index"_s, u"Name"_s, u"APN"_s, u"Came from"_s, QString()});
    m_list->setRootIsDecorated(false);
    m_list->setStyleSheet(u"QTreeView::item { padding: 1px 4px; }"_s);
    m_list->setSelectionMode(QAbstractItemView::NoSelection);
    m_list->header()->setSectionResizeMode(QHeaderView::Stretch);
    m_list->header()->setSectionResizeMode(indexColumn, QHeaderView::ResizeToContents);
    m_list->header()->setSectionResizeMode(defaultColumn, QHeaderView::ResizeToContents);
    m_list->header()->setStretchLastSection(false);
    m_list->setMinimumHeight(shownRows * fontMetrics().lineSpacing());
    (new QVBoxLayout(this))->addWidget(m_list);
    refresh();
}

void ApnPanel::refresh()
{
    const QList<QStringList> wanted = rows(m_world.modem().condition());
    if (wanted == m_shown)
        return;
    m_shown = wanted;
    m_list->clear();
    for (const QStringList &row : wanted) {
        auto *item = new QTreeWidgetItem(m_list, row);
        QFont font = item->font(indexColumn);
        font.setBold(!row[defaultColumn].isEmpty());
        for (int column = 0; column < row.size(); ++column)
            item->setFont(column, font);
    }
}

} // namespace tarvo
