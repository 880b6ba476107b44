# TUNEDEX_WINDOWS: whether the program has windows. Without them it needs Qt Core alone: settings, collation. Fails where
# Qt is missing, because there would be no program to install.
option(TUNEDEX_WINDOWS "Build the windows; without them the program runs in the terminal only" ON)

set(QT_COMPONENTS Core)
if(TUNEDEX_WINDOWS)
    list(APPEND QT_COMPONENTS Gui Widgets DBus LinguistTools)
endif()
if(TUNEDEX_TESTS OR TUNEDEX_WINDOWS) # tools/screenshots needs it, too
    list(APPEND QT_COMPONENTS Test)
endif()
find_package(Qt6 6.4 QUIET COMPONENTS ${QT_COMPONENTS})
if(NOT Qt6_FOUND)
    set(ADVICE "")
    if(TUNEDEX_WINDOWS)
        set(ADVICE " -DTUNEDEX_WINDOWS=OFF builds the program without windows; it needs Qt Core only.")
    endif()
    list(JOIN QT_COMPONENTS ", " QT_COMPONENTS)
    message(FATAL_ERROR "Qt 6.4 or newer is missing (${QT_COMPONENTS}), so there would be no program to install. "
                        "Debian's packages are qt6-base-dev and, for the windows, qt6-tools-dev and qt6-l10n-tools.${ADVICE}\n${Qt6_NOT_FOUND_MESSAGE}")
endif()
