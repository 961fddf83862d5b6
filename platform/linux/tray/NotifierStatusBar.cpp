#include "platform/linux/tray/NotifierStatusBar.h"

#include <QAbstractButton>
#include <QDBusConnection>
#include <QIcon>
#include <QIconEngine>
#include <QImage>
#include <QMenu>
#include <QPixmap>
#include <QPointer>
#include <QSystemTrayIcon>

namespace tarvo {

namespace {

/// What a host can be told of a button.
struct Mirror {
    QString iconName; ///< in the icon theme; empty when it has none
    QList<QImage> images; ///< the icon, at every size that panels use
    QString toolTip;

    bool operator==(const Mirror &) const = default;
};

Mirror mirrorOf(const QAbstractButton &view)
{
    Mirror mirror{.iconName = view.icon().name(), .images = {}, .toolTip = view.toolTip()};
    for (const int side : {16, 22, 24, 32, 48, 64})
        mirror.images.append(view.icon().pixmap(QSize(side, side), 1.0).toImage());
    return mirror;
}

/// Draws the images of a mirror, and tells their name.
class MirrorEngine final : public QIconEngine {
public:
    explicit MirrorEngine(const Mirror &mirror)
        : m_name(mirror.iconName)
    {
        for (const QImage &image : mirror.images)
            m_images.addPixmap(QPixmap::fromImage(image));
    }

    QString iconName() override { return m_name; }
    QIconEngine *clone() const override { return new MirrorEngine(*this); }

    QList<QSize> availableSizes(QIcon::Mode mode, QIcon::State state) override
    {
        return m_images.availableSizes(mode, state);
    }

    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override
    {
        return m_images.pixmap(size, 1.0, mode, state);
    }

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state) override
    {
        m_images.paint(painter, rect, Qt::AlignCenter, mode, state);
    }

private:
    QString m_name;
    QIcon m_images;
};

/// One icon in the host's bar, which shows a mirror. The host is told only of what differs from before.
class MirroredIcon {
public:
    /// @param menu  outlives the icon; may be null
    MirroredIcon(const Mirror &mirror, QMenu *menu);
    MirroredIcon(const MirroredIcon &) = delete;
    MirroredIcon &operator=(const MirroredIcon &) = delete;

    QSystemTrayIcon &trayIcon() { return m_icon; }
    void apply(const Mirror &mirror);

private:
    Mirror m_mirror;
    QSystemTrayIcon m_icon;
};

MirroredIcon::MirroredIcon(const Mirror &mirror, QMenu *menu)
{
    apply(mirror);
    m_icon.setContextMenu(menu);
    m_icon.show();
}

void MirroredIcon::apply(const Mirror &mirror)
{
    // The host gets pixels beside the name: its theme need not be ours.
    if (mirror.images != m_mirror.images || mirror.iconName != m_mirror.iconName)
        m_icon.setIcon(QIcon(new MirrorEngine(mirror)));
    if (mirror.toolTip != m_mirror.toolTip)
        m_icon.setToolTip(mirror.toolTip);
    m_mirror = mirror;
}

} // namespace

class NotifierStatusBar::Item final : public StatusItem {
public:
    explicit Item(NotifierStatusBar &bar);
    ~Item() override;
    Item(const Item &) = delete;
    Item &operator=(const Item &) = delete;

    void setView(QAbstractButton *view) override;
    void setMenu(QMenu *menu) override { m_menu = menu; }
    void viewChanged() override;
    void setTitle(const QString &) override { }
    std::optional<QRect> frame() const override { return std::nullopt; }

    void barChanged();

private:
    void activated(QSystemTrayIcon::ActivationReason reason);

    NotifierStatusBar &m_bar;
    QPointer<QAbstractButton> m_view;
    QMenu *m_menu = nullptr;
    std::unique_ptr<MirroredIcon> m_icon;
};

NotifierStatusBar::Item::Item(NotifierStatusBar &bar)
    : m_bar(bar)
{
    m_bar.m_items.push_back(this);
}

NotifierStatusBar::Item::~Item()
{
    std::erase(m_bar.m_items, this);
}

void NotifierStatusBar::Item::setView(QAbstractButton *view)
{
    m_view = view;
    barChanged();
}

void NotifierStatusBar::Item::viewChanged()
{
    if (m_icon && m_view)
        m_icon->apply(mirrorOf(*m_view));
}

void NotifierStatusBar::Item::barChanged()
{
    if (!m_view || !m_bar.m_shown) {
        m_icon.reset();
        return;
    }
    if (m_icon)
        return viewChanged();
    m_icon = std::make_unique<MirroredIcon>(mirrorOf(*m_view), m_menu);
    QObject::connect(&m_icon->trayIcon(), &QSystemTrayIcon::activated, m_view,
                     [this](QSystemTrayIcon::ActivationReason reason) { activated(reason); });
}

void NotifierStatusBar::Item::activated(QSystemTrayIcon::ActivationReason reason)
{
    if (m_view && reason == QSystemTrayIcon::Trigger)
        m_view->click();
}

NotifierStatusBar::NotifierStatusBar() = default;

NotifierStatusBar::~NotifierStatusBar() = default;

std::unique_ptr<StatusItem> NotifierStatusBar::createItem(double)
{
    return std::make_unique<Item>(*this);
}

bool NotifierStatusBar::reachesHosts()
{
    return QDBusConnection::sessionBus().isConnected();
}

void NotifierStatusBar::show()
{
    m_shown = true;
    for (Item *item : m_items)
        item->barChanged();
}

void NotifierStatusBar::hide()
{
    m_shown = false;
    for (Item *item : m_items)
        item->barChanged();
}

} // namespace tarvo
