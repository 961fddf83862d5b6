#pragma once

#include <QRect>
#include <QString>

#include <memory>
#include <optional>

class QAbstractButton;
class QMenu;

namespace tarvo {

/// Lengths a status item may have, beside a fixed number of pixels.
inline constexpr double variableStatusItemLength = -1.0; ///< as long as icon and title take
inline constexpr double squareStatusItemLength = -2.0; ///< as long as the bar is high

/// One item in the desktop's status bar; it is taken out of the bar when it is destroyed.
///
/// What the item shows is its view: the button's icon and tool tip are the item's, a click on the item is a click on the
/// button. Where the bar can hold a foreign window, the button itself sits there and sees the pointer; elsewhere the item
/// mirrors it. An item without a view takes no room.
class StatusItem {
public:
    virtual ~StatusItem() = default;

    /// Shows @p view, which stays the caller's and must outlive the item or be replaced first; null shows nothing.
    virtual void setView(QAbstractButton *view) = 0;

    /// Makes @p menu the item's context menu; it stays the caller's and must outlive the item. To be set before the
    /// view. Null, as at first, is no menu.
    virtual void setMenu(QMenu *menu) = 0;

    /// To be called when the view's icon or tool tip changed.
    virtual void viewChanged() = 0;

    /// A text beside the icon, where the bar can show one. Dormant: no bar of today can.
    virtual void setTitle(const QString &title) = 0;

    /// @return where the item is, in global coordinates with y downwards; nil when it is not shown or the bar does
    ///         not tell
    virtual std::optional<QRect> frame() const = 0;
};

/// The desktop's status bar. Used on the main thread only. It may come late, go and come back: items outlive that.
class StatusBar {
public:
    virtual ~StatusBar() = default;

    /// @param length pixels, or one of the two constants above
    /// @return a new item, the caller's, which takes no room yet; the bar outlives it
    virtual std::unique_ptr<StatusItem> createItem(double length) = 0;
};

} // namespace tarvo
