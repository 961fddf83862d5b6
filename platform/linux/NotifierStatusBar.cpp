#include "platform/linux/NotifierStatusBar.h"

#include <QAbstractButton>
#include <QDBusConnection>
#include <QIcon>
#include <QImage>
#include <QMenu>
#include <QPixmap>
#include <QPointer>
#include <QSystemTrayIcon>

namespace tarvo {

namespace {

/// What a host can be told of a button.
struct Mirror {
    QList<QImage> images; ///< the icon, at every size that panels use
    QString toolTip;

    bool operator==(const Mirror &) const = default;
};

Mirror mirrorOf(const QAbstractButton &view)
{
    Mirror mirror{.images = {}, .toolTip = view.toolTip()};
    for (const int side : {16, 22, 24, 32, 48, 64})
        mirror.images.append(view.icon().pixmap(QSize(side, side), 1.0).toImage());
    return mirror;
}

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
    void setImages(const QList<QImage> &images);

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
    if (mirror.images != m_mirror.images)
        setImages(mirror.images);
    if (mirror.toolTip != m_mirror.toolTip)
        m_icon.setToolTip(mirror.toolTip);
    m_mirror = mirror;
}

void MirroredIcon::setImages(const QList<QImage> &images)
{
    // The host gets pixels, not a name: its theme need not be ours.
    QIcon icon;
    for (const QImage &image : images)
        icon.addPixmap(QPixmap::fromImage(image));
    m_icon.setIcon(icon);
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
