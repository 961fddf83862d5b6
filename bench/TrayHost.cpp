// Stands in for a panel: owns the X server's system tray, and prints when an icon asks to be docked, in nanoseconds of
// CLOCK_MONOTONIC (freedesktop.org, "System Tray Protocol").
#include "platform/linux/x11/XScreen.h"

#include <cstdio>
#include <ctime>

namespace {

void printTime()
{
    timespec now{};
    clock_gettime(CLOCK_MONOTONIC, &now);
    std::printf("%lld\n", static_cast<long long>(now.tv_sec) * 1'000'000'000 + now.tv_nsec);
    std::fflush(stdout);
}

} // namespace

int main()
{
    xcb_connection_t *const connection = xcb_connect(nullptr, nullptr);
    if (xcb_connection_has_error(connection))
        return 1;
    const xcb_screen_t *const first = xcb_setup_roots_iterator(xcb_get_setup(connection)).data;
    const tarvo::XScreen screen{connection, first->root};
    const xcb_window_t window = xcb_generate_id(connection);
    xcb_create_window(connection, XCB_COPY_FROM_PARENT, window, screen.root, 0, 0, 24, 24, 0,
                      XCB_WINDOW_CLASS_INPUT_OUTPUT, first->root_visual, 0, nullptr);
    const xcb_atom_t selection = screen.atom("_NET_SYSTEM_TRAY_S0");
    const xcb_atom_t opcode = screen.atom("_NET_SYSTEM_TRAY_OPCODE");
    xcb_set_selection_owner(connection, window, selection, XCB_CURRENT_TIME);
    screen.sendMessage(screen.root, screen.atom("MANAGER"), {XCB_CURRENT_TIME, selection, window},
                       XCB_EVENT_MASK_STRUCTURE_NOTIFY);
    std::puts("ready");
    std::fflush(stdout);

    while (const tarvo::XReply<xcb_generic_event_t> event{xcb_wait_for_event(connection)}) {
        const auto *const message = reinterpret_cast<const xcb_client_message_event_t *>(event.get());
        if ((event->response_type & 0x7f) == XCB_CLIENT_MESSAGE && message->type == opcode
            && message->data.data32[1] == 0) // SYSTEM_TRAY_REQUEST_DOCK
            printTime();
    }
    return 0;
}
