#pragma once

#include "platform/StatusBar.h"

#include <vector>

namespace tarvo {

class SimulatedStatusBar;

/// An item that is in no real bar.
class SimulatedStatusItem final : public StatusItem {
public:
    /// @param bar  outlives the item
    SimulatedStatusItem(SimulatedStatusBar &bar, double length);
    ~SimulatedStatusItem() override;
    SimulatedStatusItem(const SimulatedStatusItem &) = delete;
    SimulatedStatusItem &operator=(const SimulatedStatusItem &) = delete;

    void setView(QAbstractButton *view) override;
    void setMenu(QMenu *menu) override { m_menu = menu; }
    void viewChanged() override { ++m_viewChanges; }
    void setTitle(const QString &title) override { m_title = title; }
    std::optional<QRect> frame() const override;

    // What the item was last given; the view is the giver's, and null for none.
    double length() const { return m_length; }
    QAbstractButton *view() const { return m_view; }
    QMenu *menu() const { return m_menu; }
    const QString &title() const { return m_title; }
    /// @return how often the item was told that its view changed
    int viewChanges() const { return m_viewChanges; }

private:
    SimulatedStatusBar &m_bar;
    double m_length;
    QAbstractButton *m_view = nullptr;
    QMenu *m_menu = nullptr;
    QString m_title;
    int m_viewChanges = 0;
};

/// A status bar in memory. It outlives its items.
class SimulatedStatusBar final : public StatusBar {
public:
    std::unique_ptr<StatusItem> createItem(double length) override;

    /// @return the items that exist, the oldest first
    const std::vector<SimulatedStatusItem *> &items() const { return m_items; }
    /// @return the oldest item that has a view; null when there is none
    SimulatedStatusItem *itemWithView() const;
    /// @return how many items were ever created
    int itemsCreated() const { return m_itemsCreated; }

    /// Says where the items with a view are; nil hides them. They are hidden at first.
    void setFrame(const std::optional<QRect> &frame) { m_frame = frame; }

private:
    friend class SimulatedStatusItem;

    std::vector<SimulatedStatusItem *> m_items;
    int m_itemsCreated = 0;
    std::optional<QRect> m_frame;
};

} // namespace tarvo
