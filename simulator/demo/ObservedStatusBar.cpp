#include "simulator/demo/ObservedStatusBar.h"

#include "ui/icon/CustomView.h"

#include <algorithm>
#include <utility>

namespace tarvo {

class ObservedStatusBar::Item final : public StatusItem {
public:
    Item(ObservedStatusBar &owner, std::unique_ptr<StatusItem> item)
        : m_owner(owner)
        , m_item(std::move(item))
    {
        m_owner.m_items.push_back(this);
    }

    ~Item() override { std::erase(m_owner.m_items, this); }

    Item(const Item &) = delete;
    Item &operator=(const Item &) = delete;

    void setView(QAbstractButton *view) override
    {
        m_view = view;
        m_item->setView(view);
    }

    void setMenu(QMenu *menu) override
    {
        m_menu = menu;
        m_item->setMenu(menu);
    }

    void viewChanged() override { m_item->viewChanged(); }
    void setTitle(const QString &title) override { m_item->setTitle(title); }
    std::optional<QRect> frame() const override { return m_item->frame(); }

    QMenu *menu() const { return m_menu; }
    CustomView *icon() const { return qobject_cast<CustomView *>(m_view); }

private:
    ObservedStatusBar &m_owner;
    std::unique_ptr<StatusItem> m_item;
    QAbstractButton *m_view = nullptr;
    QMenu *m_menu = nullptr;
};

ObservedStatusBar::ObservedStatusBar(StatusBar &bar)
    : m_bar(bar)
{
}

std::unique_ptr<StatusItem> ObservedStatusBar::createItem(double length)
{
    return std::make_unique<Item>(*this, m_bar.createItem(length));
}

CustomView *ObservedStatusBar::icon() const
{
    const Item *item = itemWithIcon();
    return item ? item->icon() : nullptr;
}

QMenu *ObservedStatusBar::menu() const
{
    const Item *item = itemWithIcon();
    return item ? item->menu() : nullptr;
}

std::optional<QRect> ObservedStatusBar::iconFrame() const
{
    const Item *item = itemWithIcon();
    return item ? item->frame() : std::nullopt;
}

const ObservedStatusBar::Item *ObservedStatusBar::itemWithIcon() const
{
    const auto found = std::ranges::find_if(m_items, [](const Item *item) { return item->icon() != nullptr; });
    return found == m_items.end() ? nullptr : *found;
}

} // namespace tarvo
