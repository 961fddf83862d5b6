#pragma once

#include <QAccessible>
#include <QAccessibleWidget>

namespace tarvo {

/// @return a new description of @p object for screen readers, with @p role; null when it is no @p Widget
template <typename Widget, QAccessible::Role role>
QAccessibleInterface *describeAs(const QString &, QObject *object)
{
    auto *const widget = dynamic_cast<Widget *>(object);
    return widget ? new QAccessibleWidget(widget, role) : nullptr;
}

/// Has every @p Widget, from now on, that role for screen readers. On the main thread.
template <typename Widget, QAccessible::Role role>
void setAccessibleRole()
{
    [[maybe_unused]] static const bool isSet = (QAccessible::installFactory(describeAs<Widget, role>), true);
}

} // namespace tarvo
