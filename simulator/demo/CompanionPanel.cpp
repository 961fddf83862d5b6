#include "simulator/demo/CompanionPanel.h"

#include "simulator/demo/DemoWorld.h"
#include "ui/icon/CustomView.h"

#include <QGridLayout>
#include <QLabel>
#include <QMap>
#include <QMenu>
#include <QPushButton>

namespace tarvo {

using namespace Qt::StringLiterals;

namespace {

constexpr int iconSize = 48;

/// What the image @p name says.
QString meaning(const QString &name)
{
    static const QMap<QString, QString> meanings{
        {u"ready"_s, u"Waiting for a modem"_s},
        {u"online"_s, u"Online"_s},
        {u"newVersion"_s, u"New firmware"_s},
        {u"dataFluxReached"_s, u"Data limit reached"_s},
        {u"dataFluxExceeded"_s, u"Data limit exceeded"_s},
    };
    return meanings.value(name, u"No icon"_s);
}

} // namespace

CompanionPanel::CompanionPanel(DemoWorld &world)
    : QGroupBox(u"Companion"_s)
    , m_world(world)
    , m_icon(new QLabel)
    , m_headline(new QLabel)
    , m_tip(new QLabel)
    , m_knowledge(new QLabel)
    , m_click(new QPushButton(u"&Click the icon"_s))
    , m_menu(new QPushButton(u"Open its &menu"_s))
{
    QFont large = font();
    large.setPointSizeF(large.pointSizeF() * 1.4);
    m_headline->setFont(large);
    m_tip->setWordWrap(true);
    m_knowledge->setForegroundRole(QPalette::PlaceholderText);
    m_icon->setFixedSize(iconSize, iconSize);

    auto *layout = new QGridLayout(this);
    layout->addWidget(m_icon, 0, 0, 2, 1, Qt::AlignTop);
    layout->addWidget(m_headline, 0, 1);
    layout->addWidget(m_click, 0, 2);
    layout->addWidget(m_menu, 0, 3);
    layout->addWidget(m_tip, 1, 1, 1, 3);
    layout->addWidget(m_knowledge, 2, 1, 1, 3);
    layout->setColumnStretch(1, 1);
    layout->setHorizontalSpacing(layout->horizontalSpacing() * 2);
    connect(m_click, &QPushButton::clicked, this, [this] {
        if (auto *icon = m_world.statusBar().icon())
            icon->click();
    });
    connect(m_menu, &QPushButton::clicked, this, [this] {
        if (auto *menu = m_world.statusBar().menu())
            menu->popup(m_menu->mapToGlobal(m_menu->rect().bottomLeft()));
    });
    refresh();
}

void CompanionPanel::refresh()
{
    const CustomView *icon = m_world.statusBar().icon();
    m_icon->setPixmap(icon ? icon->icon().pixmap(QSize(iconSize, iconSize), devicePixelRatio()) : QPixmap());
    m_headline->setText(meaning(icon ? icon->image() : QString()));
    m_tip->setText(icon && !icon->toolTip().isEmpty() ? icon->toolTip() : u"No news"_s);
    m_click->setEnabled(icon != nullptr);
    m_menu->setEnabled(icon != nullptr);
    m_knowledge->setText(knowledge());
}

QString CompanionPanel::knowledge() const
{
    MainController &controller = m_world.controller();
    const StatusSnapshot snapshot = controller.snapshot();
    if (controller.news().stopProcModemStatus())
        return u"Not polling"_s;
    return u"Polling %1  ·  %2 of %3 GB used this month  ·  roaming %4"_s.arg(m_world.server().authority())
        .arg(static_cast<double>(snapshot.m_useData), 0, 'f', 1)
        .arg(static_cast<double>(snapshot.m_totalMonthData), 0, 'f', 1)
        .arg(snapshot.isRoamOn_ ? u"allowed"_s : u"off"_s);
}

} // namespace tarvo
