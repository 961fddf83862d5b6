#include "simulator/surroundings/SimulatedStatusBar.h"

#include <algorithm>

namespace tarvo {

SimulatedStatusItem::SimulatedStatusItem(SimulatedStatusBar &bar, double length)
    : m_bar(bar)
    , m_length(length)
{
    m_bar.m_items.push_back(this);
    ++m_bar.m_itemsCreated;
}

SimulatedStatusItem::~SimulatedStatusItem()
{
    std::erase(m_bar.m_items, this);
}

void SimulatedStatusItem::setView(QAbstractButton *view)
{
    m_view = view;
}

std::optional<QRect> SimulatedStatusItem::frame() const
{
    return m_view ? m_bar.m_frame : std::nullopt;
}

std::unique_ptr<StatusItem> SimulatedStatusBar::createItem(double length)
{
    return std::make_unique<SimulatedStatusItem>(*this, length);
}

SimulatedStatusItem *SimulatedStatusBar::itemWithView() const
{
    const auto found =
        std::ranges::find_if(m_items, [](const SimulatedStatusItem *item) { return item->view() != nullptr; });
    return found == m_items.end() ? nullptr : *found;
}

} // namespace tarvo
