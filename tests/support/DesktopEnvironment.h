#pragma once

#include "tests/support/VirtualDesktop.h"

#include <gtest/gtest.h>

#include <optional>

namespace tarvo {

/// The desktop of all tests of a program.
class DesktopEnvironment final : public testing::Environment {
public:
    void SetUp() override { m_desktop.emplace(); }
    void TearDown() override { m_desktop.reset(); }

private:
    std::optional<VirtualDesktop> m_desktop;
};

} // namespace tarvo
