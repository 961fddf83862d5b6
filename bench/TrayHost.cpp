// Stands in for a panel: owns the X server's system tray, and prints when an icon asks to be docked, in nanoseconds of
// CLOCK_MONOTONIC (freedesktop.org, "System Tray Protocol").
#include <xcb/xcb.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <memory>
#include <string_view>

namespace {

struct Free {
    void operator()(void *memory) const { std::free(memory); }
};

xcb_atom_t atom(xcb_connection_t *connection, std::string_view name)
{
    const auto cookie = xcb_intern_atom(connection, 0, static_cast<std::uint16_t>(name.size()), name.data());
    const std::unique_ptr<xcb_intern_atom_reply_t, Free> reply(xcb_intern_atom_reply(connection, cookie, nullptr));
    return reply ? reply->atom : xcb_atom_t(XCB_ATOM_NONE);
}

void announce(xcb_connection_t *connection, xcb_window_t root, xcb_window_t window, xcb_atom_t selection)
{
    xcb_client_message_event_t event{};
    event.response_type = XCB_CLIENT_MESSAGE;
    event.format = 32;
    event.window = root;
    event.type = atom(connection, "MANAGER");
    event.data.data32[0] = XCB_CURRENT_TIME;
    event.data.data32[1] = selection;
    event.data.data32[2] = window;
    char bytes[32]{};
    std::memcpy(bytes, &event, sizeof(event));
    xcb_send_event(connection, 0, root, XCB_EVENT_MASK_STRUCTURE_NOTIFY, bytes);
}

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
    const xcb_screen_t *const screen = xcb_setup_roots_iterator(xcb_get_setup(connection)).data;
    const xcb_window_t window = xcb_generate_id(connection);
    xcb_create_window(connection, XCB_COPY_FROM_PARENT, window, screen->root, 0, 0, 24, 24, 0,
                      XCB_WINDOW_CLASS_INPUT_OUTPUT, screen->root_visual, 0, nullptr);
    const xcb_atom_t selection = atom(connection, "_NET_SYSTEM_TRAY_S0");
    const xcb_atom_t opcode = atom(connection, "_NET_SYSTEM_TRAY_OPCODE");
    xcb_set_selection_owner(connection, window, selection, XCB_CURRENT_TIME);
    announce(connection, screen->root, window, selection);
    xcb_flush(connection);
    std::puts("ready");
    std::fflush(stdout);

    while (const std::unique_ptr<xcb_generic_event_t, Free> event{xcb_wait_for_event(connection)}) {
        const auto *const message = reinterpret_cast<const xcb_client_message_event_t *>(event.get());
        if ((event->response_type & 0x7f) == XCB_CLIENT_MESSAGE && message->type == opcode
            && message->data.data32[1] == 0) // SYSTEM_TRAY_REQUEST_DOCK
            printTime();
    }
    return 0;
}
