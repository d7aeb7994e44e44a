# What `cmake --install` puts where, the files a build places beside the program so that it runs
# from the build folder as it does installed, and the Debian package (`make package`).
include(GNUInstallDirs)

set(RECVIEW_DATA ${PROJECT_SOURCE_DIR}/data)

# The icon: the SVG, and PNG sizes rendered from it into icons/hicolor/ beside the program.
find_program(RSVG_CONVERT rsvg-convert REQUIRED)
set(recview_icon_sizes 16 24 32 48 64 128 256)
set(recview_icon_pngs)
foreach(size IN LISTS recview_icon_sizes)
    set(png ${PROJECT_BINARY_DIR}/icons/hicolor/${size}x${size}/apps/recview.png)
    add_custom_command(OUTPUT ${png}
        COMMAND ${CMAKE_COMMAND} -E make_directory ${PROJECT_BINARY_DIR}/icons/hicolor/${size}x${size}/apps
        COMMAND ${RSVG_CONVERT} --width ${size} --height ${size} --format png
                --output ${png} ${RECVIEW_DATA}/icons/recview.svg
        DEPENDS ${RECVIEW_DATA}/icons/recview.svg
        COMMENT "Rendering the ${size} px icon" VERBATIM)
    list(APPEND recview_icon_pngs ${png})
    install(FILES ${png} DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/${size}x${size}/apps)
endforeach()
add_custom_target(recview_icons ALL DEPENDS ${recview_icon_pngs})

# The manual beside the program, where a build looks for it first.
file(GLOB_RECURSE recview_help_sources CONFIGURE_DEPENDS ${RECVIEW_DATA}/help/*)
set(recview_help_copies)
foreach(source IN LISTS recview_help_sources)
    file(RELATIVE_PATH name ${RECVIEW_DATA} ${source})
    add_custom_command(OUTPUT ${PROJECT_BINARY_DIR}/${name}
        COMMAND ${CMAKE_COMMAND} -E copy_if_different ${source} ${PROJECT_BINARY_DIR}/${name}
        DEPENDS ${source} VERBATIM)
    list(APPEND recview_help_copies ${PROJECT_BINARY_DIR}/${name})
endforeach()
add_custom_target(recview_help ALL DEPENDS ${recview_help_copies})

# Files of the Debian conventions, compressed as Debian wants them.
set(recview_gzipped)
foreach(pair "packaging/changelog.Debian;changelog.Debian.gz" "recview.1;recview.1.gz")
    list(GET pair 0 source)
    list(GET pair 1 target)
    add_custom_command(OUTPUT ${PROJECT_BINARY_DIR}/packaging/${target}
        COMMAND ${CMAKE_COMMAND} -E make_directory ${PROJECT_BINARY_DIR}/packaging
        COMMAND sh -c "gzip -9n < \"$0\" > \"$1\"" ${RECVIEW_DATA}/${source}
                ${PROJECT_BINARY_DIR}/packaging/${target}
        DEPENDS ${RECVIEW_DATA}/${source} VERBATIM)
    list(APPEND recview_gzipped ${PROJECT_BINARY_DIR}/packaging/${target})
endforeach()
add_custom_target(recview_packaging_files ALL DEPENDS ${recview_gzipped})

# The program and its read-only shipped files. GSmode.ini and zh-CN.ini are never installed:
# an administrator places them beside the program to choose the edition or the language.
install(TARGETS recview RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
install(FILES ${RECVIEW_DATA}/langVX.txt DESTINATION ${CMAKE_INSTALL_DATADIR}/recview)
install(DIRECTORY ${RECVIEW_DATA}/help/ DESTINATION ${CMAKE_INSTALL_DATADIR}/recview/help)
install(FILES ${RECVIEW_DATA}/recview.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES ${RECVIEW_DATA}/recview-mime.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/mime/packages
        RENAME recview.xml)
install(FILES ${RECVIEW_DATA}/icons/recview.svg
        DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)
install(FILES ${PROJECT_BINARY_DIR}/packaging/recview.1.gz DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
install(FILES ${RECVIEW_DATA}/packaging/copyright ${PROJECT_BINARY_DIR}/packaging/changelog.Debian.gz
        DESTINATION ${CMAKE_INSTALL_DOCDIR})

# The Debian package.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME recview)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_CONTACT "recview developers <recview@example.org>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "viewer and analyser for graphic recorder data files")
set(CPACK_PACKAGE_DESCRIPTION
    "recview opens the binary data files of several families of industrial\n"
    "graphic recorders, joins consecutive files into one view and shows them as\n"
    "a trend graph with time axis, zoom, cursors and alarm marks. Recordings can\n"
    "also be summarised, dumped and rendered from the command line without a\n"
    "display.")
string(JOIN "" CPACK_PACKAGE_DESCRIPTION ${CPACK_PACKAGE_DESCRIPTION})
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_SECTION science)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# dpkg-shlibdeps adds what the program links with its versions (libc6, Qt Core, Gui, Widgets,
# Network, ...); named here are the packages it needs beyond those: the platform plugins, and
# the libraries of printing, FTP and export.
set(CPACK_DEBIAN_PACKAGE_DEPENDS
    "qt6-qpa-plugins, libqt6printsupport6 (>= 6.4), libcurl4, libzip4, libxlsxwriter4")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "fonts-noto-cjk, xdg-utils")
set(CPACK_SOURCE_GENERATOR "")
include(CPack)
