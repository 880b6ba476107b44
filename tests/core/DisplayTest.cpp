#include "Display.h"

#include <gtest/gtest.h>

#include <cstdlib>

namespace tunedex {
namespace {

TEST(Display, UsesTheVariablesThatAreSetAndNotEmpty) {
    for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) {
        unsetenv(name);
    }
    EXPECT_TRUE(DisplayVariables().empty());
    setenv("DISPLAY", "", 1);
    setenv("QT_QPA_PLATFORM", "xcb", 1);
    setenv("WAYLAND_DISPLAY", "wayland-0", 1);
    const std::vector<DisplayVariable> variables = DisplayVariables();
    ASSERT_EQ(variables.size(), 2U);
    EXPECT_EQ(variables[0].name + "=" + variables[0].value, "WAYLAND_DISPLAY=wayland-0");
    EXPECT_EQ(variables[1].name + "=" + variables[1].value, "QT_QPA_PLATFORM=xcb");
}

TEST(Display, ReportsAnUnusableDisplayWithTheCommandToRunWithoutIt) {
    EXPECT_EQ(UnusableDisplayText({{"DISPLAY", ":9"}}), "Tunedex could not open the display.\n"
                                                        "DISPLAY is \":9\".\n"
                                                        "To make the list without a display: "
                                                        "env -u DISPLAY tunedex /AUTO\n");
    EXPECT_EQ(UnusableDisplayText({{"WAYLAND_DISPLAY", "w"}, {"QT_QPA_PLATFORM", "\x1b[2J\n"}}),
              "Tunedex could not open the display.\n"
              "WAYLAND_DISPLAY is \"w\".\n"
              "QT_QPA_PLATFORM is \"?[2J?\".\n"
              "To make the list without a display: "
              "env -u WAYLAND_DISPLAY -u QT_QPA_PLATFORM tunedex /AUTO\n");
}

} // namespace
} // namespace tunedex
