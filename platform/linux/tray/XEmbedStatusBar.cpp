#include "platform/linux/tray/XEmbedStatusBar.h"

#include "platform/linux/tray/TrayDock.h"

namespace tarvo {

namespace {

/// How often an item goes back into a tray that put it out. Panels do so when they rebuild themselves; one that never
/// keeps the item shall not be asked for ever.
constexpr int returnsToOneTray = 5;

} // namespace

class XEmbedStatusBar::Item final : public StatusItem {
public:
    Item(XEmbedStatusBar &bar, double length);
    ~Item() override;
    Item(const Item &) = delete;
    Item &operator=(const Item &) = delete;

    void setView(QAbstractButton *view) override;
    void setMenu(QMenu *menu) override { m_menu = menu; }
    void viewChanged() override { }
    void setTitle(const QString &) override { }
    std::optional<QRect> frame() const override;

    void trayChanged();

private:
    void dock();
    void returnToTray();

    XEmbedStatusBar &m_bar;
    int m_width;
    QPointer<QAbstractButton> m_view;
    QMenu *m_menu = nullptr;
    std::unique_ptr<TrayDock> m_dock;
    int m_returnsLeft = returnsToOneTray;
    QObject m_context; ///< what is queued for it ends with the item
};

XEmbedStatusBar::Item::Item(XEmbedStatusBar &bar, double length)
    : m_bar(bar)
    , m_width(static_cast<int>(length))
{
    m_bar.m_items.push_back(this);
}

XEmbedStatusBar::Item::~Item()
{
    std::erase(m_bar.m_items, this);
}

void XEmbedStatusBar::Item::setView(QAbstractButton *view)
{
    if (view == m_view)
        return;
    m_dock.reset();
    m_view = view;
    dock();
}

std::optional<QRect> XEmbedStatusBar::Item::frame() const
{
    return m_dock ? m_dock->frame() : std::nullopt;
}

void XEmbedStatusBar::Item::trayChanged()
{
    m_returnsLeft = returnsToOneTray;
    dock();
}

void XEmbedStatusBar::Item::dock()
{
    m_dock.reset();
    if (!m_view || !m_bar.m_tray)
        return;
    const auto expelled = [this] {
        QMetaObject::invokeMethod(
            &m_context, [this] { returnToTray(); }, Qt::QueuedConnection);
    };
    m_dock = std::make_unique<TrayDock>(m_bar.m_screen, *m_bar.m_tray, TrayDock::Contents{*m_view, m_menu, m_width},
                                        expelled);
}

void XEmbedStatusBar::Item::returnToTray()
{
    m_dock.reset();
    if (m_returnsLeft == 0)
        return;
    --m_returnsLeft;
    dock();
}

XEmbedStatusBar::XEmbedStatusBar(const XScreen &screen)
    : m_screen(screen)
{
}

XEmbedStatusBar::~XEmbedStatusBar() = default;

std::unique_ptr<StatusItem> XEmbedStatusBar::createItem(double length)
{
    return std::make_unique<Item>(*this, length);
}

void XEmbedStatusBar::setTray(const std::optional<XTray> &tray)
{
    m_tray = tray;
    for (Item *item : m_items)
        item->trayChanged();
}

} // namespace tarvo
