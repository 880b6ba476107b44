# What a desktop needs of a program with windows: help, menu entry, entry of the software centre, icons.

# The program looks for its help in ../share/tunedex relative to itself; the page expects its pictures next to it.
install(FILES "${DATA}/Help.html" DESTINATION "${SHARE}")
install(DIRECTORY "${DATA}/help" DESTINATION "${SHARE}" FILES_MATCHING PATTERN "*.png")

install(FILES "${DATA}/tunedex.desktop" DESTINATION "${CMAKE_INSTALL_DATADIR}/applications")
install(FILES "${DATA}/tunedex.metainfo.xml" DESTINATION "${CMAKE_INSTALL_DATADIR}/metainfo"
        RENAME example.tunedex.Tunedex.metainfo.xml)

# icons/tunedex.svg, and icons/tunedex-48.png and the like
set(HICOLOR "${CMAKE_INSTALL_DATADIR}/icons/hicolor")
file(GLOB ICONS CONFIGURE_DEPENDS "${DATA}/icons/tunedex.svg" "${DATA}/icons/tunedex-*.png")
foreach(ICON IN LISTS ICONS)
    if(ICON MATCHES "\\.svg$")
        install(FILES "${ICON}" DESTINATION "${HICOLOR}/scalable/apps")
    elseif(ICON MATCHES "-([0-9]+)\\.png$")
        install(FILES "${ICON}" DESTINATION "${HICOLOR}/${CMAKE_MATCH_1}x${CMAKE_MATCH_1}/apps" RENAME tunedex.png)
    endif()
endforeach()
