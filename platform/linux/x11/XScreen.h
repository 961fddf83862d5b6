#pragma once

#include <QByteArray>
#include <QList>
#include <QRect>

#include <xcb/xcb.h>

#include <array>
#include <cstdlib>
#include <memory>
#include <optional>

namespace tarvo {

/// Gives back what libxcb allocated.
struct FreeReply {
    void operator()(void *reply) const { std::free(reply); }
};

/// What libxcb allocated for the answer to a request; null when the request failed.
template <typename T>
using XReply = std::unique_ptr<T, FreeReply>;

/// The X screen that the application's windows are on, seen through the application's own connection.
struct XScreen {
    xcb_connection_t *connection = nullptr; ///< Qt's, which lives as long as the application
    xcb_window_t root = XCB_WINDOW_NONE; ///< the screen's root window
    int number = 0; ///< of the screen on its server

    /// @return nil where the application's windows are no X windows
    static std::optional<XScreen> ofApplication();

    /// @return the atom called @p name, made when there was none; none when the server cannot
    xcb_atom_t atom(const QByteArray &name) const;
    /// @return the selection that is called @p name with the screen's number
    xcb_atom_t selection(const QByteArray &name) const { return atom(name + QByteArray::number(number)); }
    /// @return the window that owns @p selection; none when there is none
    xcb_window_t ownerOf(xcb_atom_t selection) const;
    /// @return the first item of a 32-bit property of @p window; nil when it has no such property
    std::optional<quint32> property(xcb_window_t window, xcb_atom_t name, xcb_atom_t type) const;
    /// Adds @p events to those that the application gets of @p window. @return false when there is no such window
    bool addEvents(xcb_window_t window, quint32 events) const;
    /// @return where @p window is on the screen, in the screen's pixels; nil when nobody can see it
    std::optional<QRect> visibleFrame(xcb_window_t window) const;
    /// @return the process on this machine that created @p window; 0 when it is not known
    quint32 processOf(xcb_window_t window) const;

    /// Sends @p window a client message of 32-bit items, by way of those that listen to @p events of it; its own creator
    /// when that is none. Nothing comes of it when there is no such window
    void sendMessage(xcb_window_t window, xcb_atom_t type, const std::array<quint32, 5> &items, quint32 events) const;

    /// Forgets how a request ends, so that its failure is reported nowhere.
    void ignoreOutcome(xcb_void_cookie_t request) const;
};

/// One monitor: its place in the application's coordinates, and how many of the screen's pixels make one of them.
struct ScaledScreen {
    QRect geometry; ///< in the application's coordinates
    double ratio = 1; ///< pixels of the screen to one of them
};

/// Turns a rectangle of the screen's pixels into the application's coordinates. A monitor's top left corner is the
/// same in both.
/// @return @p native as it is when its centre is on no monitor
QRect toApplicationCoordinates(const QRect &native, const QList<ScaledScreen> &screens);

} // namespace tarvo
