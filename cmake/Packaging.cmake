# What a desktop has to know of an installed program, and the packages that CPack makes of it.
include(GNUInstallDirs)

set(packaging ${CMAKE_CURRENT_SOURCE_DIR}/packaging)
set(icons ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable)
install(FILES ${packaging}/tagwrighter.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES ${packaging}/example.harbline.tagwrighter.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
install(FILES ${packaging}/tagwrighter-mime.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/mime/packages
    RENAME tagwrighter.xml)
install(FILES ${packaging}/tagwrighter.bash-completion RENAME tagwrighter
    DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions)
install(FILES data/icons/tagwrighter.svg DESTINATION ${icons}/apps)
install(DIRECTORY ${packaging}/icons/ DESTINATION ${icons}/mimetypes)
install(FILES ${packaging}/copyright data/LICENSE-codes DESTINATION ${CMAKE_INSTALL_DOCDIR})

# The manual page is installed as Debian wants it, packed by a gzip that writes no time of its own.
find_program(GZIP_PROGRAM gzip)
if(GZIP_PROGRAM)
    set(page ${CMAKE_CURRENT_BINARY_DIR}/tagwrighter.1.gz)
    add_custom_command(OUTPUT ${page} DEPENDS ${packaging}/tagwrighter.1
        COMMAND ${GZIP_PROGRAM} -9n -c ${packaging}/tagwrighter.1 > ${page} VERBATIM)
    add_custom_target(tagwrighter_manual ALL DEPENDS ${page})
    install(FILES ${page} DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
else()
    install(FILES ${packaging}/tagwrighter.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
endif()

set(CPACK_PACKAGE_NAME tagwrighter)
set(CPACK_PACKAGE_VENDOR Harbline)
set(CPACK_PACKAGE_CONTACT "Tagwrighter maintainers <maintainers@harbline.example>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "editor of web pages for those who write HTML by hand")
set(CPACK_PACKAGE_DESCRIPTION "Tagwrighter colours the source as it is typed, shows the elements of a page as a tree,
completes tags from all of HTML and CSS, writes elements from dialogs, and shows
the page as a browser does. Projects keep the files of a site together, with a
drawn map of their links.")
set(CPACK_PACKAGE_HOMEPAGE_URL ${TAGWRIGHTER_MAKER_SITE})
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_GENERATOR DEB)
set(CPACK_SOURCE_GENERATOR TGZ)
set(CPACK_SOURCE_IGNORE_FILES "/build/" "/\\.git/" "__pycache__")
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION web)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# What is loaded by need, so that no tool sees it: pictures beyond PNG and JPEG, windows of a Wayland desktop.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "qt6-image-formats-plugins, qt6-wayland")
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
include(CPack)
