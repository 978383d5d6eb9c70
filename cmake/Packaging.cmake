# What a desktop has to know of an installed program, and the packages that CPack makes of it.
include(GNUInstallDirs)

set(packaging ${CMAKE_CURRENT_SOURCE_DIR}/packaging)
set(documents ${CMAKE_INSTALL_DATAROOTDIR}/doc/tagwrighter) # as the package is named, in small letters
set(icons ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable)
install(FILES ${packaging}/tagwrighter.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES ${packaging}/example.harbline.tagwrighter.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
install(FILES ${packaging}/tagwrighter-mime.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/mime/packages
    RENAME tagwrighter.xml)
install(FILES ${packaging}/tagwrighter.bash-completion RENAME tagwrighter
    DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions)
install(FILES data/icons/tagwrighter.svg DESTINATION ${icons}/apps)
install(DIRECTORY ${packaging}/icons/ DESTINATION ${icons}/mimetypes)

# The notices of others' works stand in the tree once, beside what they are about. A line of a licence is one behind a
# blank there, and an empty one a dot.
function(tagwrighter_licence variable file)
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/${file})
    file(READ ${file} text)
    string(STRIP "${text}" text)
    string(REGEX REPLACE "\n[ \t]*\n" "\n.\n" text "${text}")
    string(REPLACE "\n" "\n " text "${text}")
    set(${variable} " ${text}" PARENT_SCOPE)
endfunction()
tagwrighter_licence(codesLicence data/LICENSE-codes)
tagwrighter_licence(iconsLicence data/icons/LICENSE)
configure_file(${packaging}/copyright.in ${CMAKE_CURRENT_BINARY_DIR}/copyright @ONLY)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/copyright data/LICENSE-codes DESTINATION ${documents})

# tagwrighter_packed(SOURCE NAME FOLDER): installs a file packed, as Debian wants it, by a gzip that writes no time of its
# own; as it is, where there is none.
find_program(GZIP_PROGRAM gzip)
add_custom_target(tagwrighter_packed_files ALL)
function(tagwrighter_packed source name folder)
    if(NOT GZIP_PROGRAM)
        install(FILES ${source} RENAME ${name} DESTINATION ${folder})
        return()
    endif()
    set(packed ${CMAKE_CURRENT_BINARY_DIR}/${name}.gz)
    add_custom_command(OUTPUT ${packed} DEPENDS ${source}
        COMMAND ${GZIP_PROGRAM} -9n -c ${source} > ${packed} VERBATIM)
    add_custom_target(tagwrighter_packed_${name} DEPENDS ${packed})
    add_dependencies(tagwrighter_packed_files tagwrighter_packed_${name})
    install(FILES ${packed} DESTINATION ${folder})
endfunction()
tagwrighter_packed(${packaging}/tagwrighter.1 tagwrighter.1 ${CMAKE_INSTALL_MANDIR}/man1)
tagwrighter_packed(${packaging}/changelog changelog ${documents})

set(CPACK_PACKAGE_NAME tagwrighter)
set(CPACK_PACKAGE_VENDOR Harbline)
set(CPACK_PACKAGE_CONTACT "Tagwrighter maintainers <maintainers@harbline.example>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "editor of web pages for those who write HTML by hand")
set(CPACK_PACKAGE_DESCRIPTION "Tagwrighter colours the source as it is typed, shows the elements of a page
as a tree, completes tags from all of HTML and CSS, writes elements from
dialogs, and shows the page as a browser does. Projects keep the files of a
site together, with a drawn map of their links.")
set(CPACK_PACKAGE_HOMEPAGE_URL ${TAGWRIGHTER_MAKER_SITE})
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
