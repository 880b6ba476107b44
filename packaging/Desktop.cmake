# What a desktop needs of a program with windows: help, menu entry, entry of the software centre, file types, icons.

# The program looks for its help in ../share/tunedex relative to itself; the page expects its pictures next to it.
install(FILES "${DATA}/Help.html" DESTINATION "${SHARE}")
install(DIRECTORY "${DATA}/help" DESTINATION "${SHARE}" FILES_MATCHING PATTERN "*.png")

# One name for the component, its menu entry, its icon and its file types; windows say that they belong to it
# (setDesktopFileName).
set(COMPONENT example.tunedex.tunedex)
install(FILES "${DATA}/tunedex.desktop" DESTINATION "${CMAKE_INSTALL_DATADIR}/applications"
        RENAME ${COMPONENT}.desktop)
install(FILES "${DATA}/tunedex.metainfo.xml" DESTINATION "${CMAKE_INSTALL_DATADIR}/metainfo"
        RENAME ${COMPONENT}.metainfo.xml)
install(FILES "${DATA}/tunedex.mime.xml" DESTINATION "${CMAKE_INSTALL_DATADIR}/mime/packages"
        RENAME ${COMPONENT}.xml)

# icons/tunedex.svg, and icons/tunedex-48.png and the like
set(HICOLOR "${CMAKE_INSTALL_DATADIR}/icons/hicolor")
file(GLOB ICONS CONFIGURE_DEPENDS "${DATA}/icons/tunedex.svg" "${DATA}/icons/tunedex-*.png")
foreach(ICON IN LISTS ICONS)
    if(ICON MATCHES "\\.svg$")
        install(FILES "${ICON}" DESTINATION "${HICOLOR}/scalable/apps" RENAME ${COMPONENT}.svg)
    elseif(ICON MATCHES "-([0-9]+)\\.png$")
        install(FILES "${ICON}" DESTINATION "${HICOLOR}/${CMAKE_MATCH_1}x${CMAKE_MATCH_1}/apps"
                RENAME ${COMPONENT}.png)
    endif()
endforeach()
