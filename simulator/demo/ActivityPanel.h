#pragma once

#include <QGroupBox>
#include <QString>

class QComboBox;
class QTreeWidget;
class QTreeWidgetItem;

namespace tarvo {

class DemoWorld;

/// What happens: the requests to the modem, the companion's log and the pages that it opens, the newest last.
class ActivityPanel : public QGroupBox {
public:
    /// @param world  outlives the panel
    explicit ActivityPanel(DemoWorld &world);

private:
    /// Adds a line; one that is among the last few already is counted there.
    void add(const QString &kind, const QString &text);
    /// @return such a line; null when there is none
    QTreeWidgetItem *recentLine(const QString &kind, const QString &text) const;
    void applyFilter();

    QComboBox *m_filter;
    QTreeWidget *m_list;
};

} // namespace tarvo
