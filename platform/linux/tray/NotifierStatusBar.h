#pragma once

#include "platform/StatusBar.h"

#include <vector>

namespace tarvo {

/// Status items that a StatusNotifierItem host shows, through Qt's tray icon. It outlives its items.
///
/// Qt asks once in a process whether there is a host and keeps to the answer, so nothing of Qt's tray is touched
/// before a host is known.
class NotifierStatusBar final : public StatusBar {
public:
    /// Offers nothing until `show`.
    NotifierStatusBar();
    ~NotifierStatusBar() override;
    NotifierStatusBar(const NotifierStatusBar &) = delete;
    NotifierStatusBar &operator=(const NotifierStatusBar &) = delete;

    std::unique_ptr<StatusItem> createItem(double length) override;

    /// @return whether the bus that Qt connected to when it first asked for one is there, for it keeps to that
    static bool reachesHosts();

    /// Offers all items with a view to the registered host.
    void show();
    /// Takes all items back.
    void hide();

private:
    class Item;

    bool m_shown = false;
    std::vector<Item *> m_items;
};

} // namespace tarvo
