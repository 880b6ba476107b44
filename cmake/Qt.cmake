# TUNEDEX_HAS_QT: whether the windows and the program are built. AUTO builds them where Qt is found; the floors below
# them are built in any case.
set(TUNEDEX_WITH_QT AUTO CACHE STRING "Build the windows and the program: ON, OFF or AUTO")
set_property(CACHE TUNEDEX_WITH_QT PROPERTY STRINGS AUTO ON OFF)
if(TUNEDEX_WITH_QT STREQUAL "OFF")
    set(TUNEDEX_HAS_QT FALSE)
elseif(TUNEDEX_WITH_QT STREQUAL "ON")
    find_package(Qt6 6.4 REQUIRED COMPONENTS Core Gui Widgets Test)
    set(TUNEDEX_HAS_QT TRUE)
else()
    find_package(Qt6 6.4 QUIET COMPONENTS Core Gui Widgets Test)
    set(TUNEDEX_HAS_QT ${Qt6_FOUND})
endif()
