#pragma once

#include "tests/support/Program.h"

#include <QApplication>
#include <QImage>
#include <QRect>
#include <QWidget>

#include <functional>
#include <optional>
#include <string>

namespace tarvo {

/// A screen of 1280 x 800 pixels and a session bus that nobody else is on, and the application on them.
///
/// At most one in a process: the session bus of a process cannot be changed. Make it in a test environment:
///
///     const auto *const desktop = testing::AddGlobalTestEnvironment(new DesktopEnvironment);
class VirtualDesktop {
public:
    VirtualDesktop();

private:
    std::optional<Program> m_screen;
    std::optional<Program> m_bus;
    int m_argumentCount = 1;
    std::string m_name = "test";
    char *m_arguments[2] = {m_name.data(), nullptr};
    std::optional<QApplication> m_application;
};

/// @return the pixels of the whole screen, as they are now
QImage screenshot();

/// Moves the pointer to the middle of @p area on the screen and clicks there, as a hand does.
void clickOn(const QRect &area, const std::string &mouseButton = "1");
/// The same for a widget that is on the screen.
void clickOn(const QWidget &widget, const std::string &mouseButton = "1");

/// Runs the event loop until @p condition holds. @return false when it did not within 15 s
bool waitFor(const std::function<bool()> &condition);

} // namespace tarvo
