#pragma once

#include "platform/StatusBar.h"
#include "platform/linux/x11/XTrayWatcher.h"

#include <optional>
#include <vector>

namespace tarvo {

/// Status items that sit as windows in a system tray of the X desktop. It outlives its items.
class XEmbedStatusBar final : public StatusBar {
public:
    /// Its items are in no tray until one is set.
    explicit XEmbedStatusBar(const XScreen &screen);
    ~XEmbedStatusBar() override;

    std::unique_ptr<StatusItem> createItem(double length) override;

    /// Moves all items with a view into @p tray; nil takes them out of the tray they are in.
    void setTray(const std::optional<XTray> &tray);

private:
    class Item;

    XScreen m_screen;
    std::optional<XTray> m_tray;
    std::vector<Item *> m_items;
};

} // namespace tarvo
