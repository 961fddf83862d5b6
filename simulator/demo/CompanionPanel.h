#pragma once

#include <QGroupBox>

class QLabel;
class QPushButton;

namespace tarvo {

class DemoWorld;

/// What the companion shows and knows at this moment.
class CompanionPanel : public QGroupBox {
public:
    /// @param world  outlives the panel
    explicit CompanionPanel(DemoWorld &world);

    /// Shows what the companion shows now; to be called as often as that is to be seen.
    void refresh();

private:
    QString knowledge() const;

    DemoWorld &m_world;
    QLabel *m_icon;
    QLabel *m_headline;
    QLabel *m_tip;
    QLabel *m_knowledge;
    QPushButton *m_click;
    QPushButton *m_menu;
};

} // namespace tarvo
