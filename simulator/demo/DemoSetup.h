#pragma once

#include "setup/checks/SetupServices.h"
#include "setup/checks/Survey.h"

#include <memory>

namespace tarvo {

class DemoWorld;
class SetupWindow;

/// The setup program's window, which finds the demo's modem and tells the demo's companion. What it writes is the demo's
/// own file of settings.
class DemoSetup {
public:
    /// @param world  outlives this object
    explicit DemoSetup(DemoWorld &world);
    ~DemoSetup();
    DemoSetup(const DemoSetup &) = delete;
    DemoSetup &operator=(const DemoSetup &) = delete;

    /// Shows the window in front.
    void open();

private:
    SetupServices m_services;
    Survey m_survey;
    std::unique_ptr<SetupWindow> m_window; ///< made when it is first asked for
};

} // namespace tarvo
