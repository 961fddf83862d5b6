#pragma once

#include <QGroupBox>
#include <QString>

class QComboBox;
class QTreeWidget;

namespace tarvo {

class DemoWorld;

/// What happens: the requests to the modem, the companion's log and the pages that it opens, the newest last.
class ActivityPanel : public QGroupBox {
public:
    /// @param world  outlives the panel
    explicit ActivityPanel(DemoWorld &world);

private:
    /// A line; one that repeats the last of its kind is counted there.
    void add(const QString &kind, const QString &text);
    void applyFilter();

    QComboBox *m_filter;
    QTreeWidget *m_list;
};

} // namespace tarvo
