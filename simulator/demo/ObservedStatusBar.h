#pragma once

#include "platform/StatusBar.h"

#include <vector>

namespace tarvo {

class CustomView;

/// Hands everything on to another status bar, and lets the demo see what the icon shows.
class ObservedStatusBar final : public StatusBar {
public:
    /// @param bar  outlives this object, which outlives its items
    explicit ObservedStatusBar(StatusBar &bar);

    std::unique_ptr<StatusItem> createItem(double length) override;

    /// @return the icon that is in the bar; null when there is none
    CustomView *icon() const;
    /// @return its menu; null when there is none
    QMenu *menu() const;
    /// @return where the icon is on the screen; nil when the bar does not tell
    std::optional<QRect> iconFrame() const;

private:
    class Item;

    const Item *itemWithIcon() const;

    StatusBar &m_bar;
    std::vector<const Item *> m_items;
};

} // namespace tarvo
