#pragma once

#include <QString>

#include <optional>

namespace tarvo {

/// The page that opens by itself.
enum class StartUpPage {
    None,
    Home, ///< the configured home page, if there is one
    HomeOrModem, ///< the configured home page, else the modem's own server
};

/// What a start-up state of the modem asks for.
struct StartUpAction {
    StartUpPage page = StartUpPage::None; ///< to be opened now
    bool opened = false; ///< the modem's pages count as opened from now on

    bool operator==(const StartUpAction &) const = default;
};

/// @param mainState  the value of `modem_main_state`; nil asks for nothing
/// @param counter    the controller's `m_counter`
StartUpAction startUpAction(const std::optional<QString> &mainState, int counter);

} // namespace tarvo
