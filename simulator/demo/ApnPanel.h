#pragma once

#include <QGroupBox>
#include <QStringList>

class QTreeWidget;

namespace tarvo {

class DemoWorld;

/// The modem's access points, as they are at this moment.
class ApnPanel : public QGroupBox {
public:
    /// @param world  outlives the panel
    explicit ApnPanel(DemoWorld &world);

    /// Shows what the modem has now; to be called as often as that is to be seen.
    void refresh();

private:
    DemoWorld &m_world;
    QTreeWidget *m_list;
    QList<QStringList> m_shown;
};

} // namespace tarvo
