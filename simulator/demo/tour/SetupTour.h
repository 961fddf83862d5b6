#pragma once

#include <QString>

namespace tarvo {

class DemoWorld;
class SetupWindow;
class TourReport;

/// The part of the tour in which a modem that the settings do not know is set up.
class SetupTour {
public:
    /// @param world, report  outlive the tour
    SetupTour(DemoWorld &world, TourReport &report);

    /// Plugs the modem in, and leaves the companion with settings that name it.
    void run();

private:
    void meetUnknownModem();
    void useModem(SetupWindow &window);
    void seeChain(SetupWindow &window);

    DemoWorld &m_world;
    TourReport &m_report;
};

} // namespace tarvo
