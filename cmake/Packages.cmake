# What scripts/package makes of the installed files: Debian packages of the installer and of the
# library, and archives of everything and of the sources.

# velmora_packages_of(<variable> <group> <pattern>)
# The packages of the group in scripts/packages whose names match, as Debian lists them.
function(velmora_packages_of variable group pattern)
    file(STRINGS "${PROJECT_SOURCE_DIR}/scripts/packages" lines REGEX "^${group} ")
    set(names "")
    foreach(line IN LISTS lines)
        string(REGEX REPLACE "^${group} +([^ ]+) .*" "\\1" name "${line}")
        if(name MATCHES "${pattern}")
            list(APPEND names "${name}")
        endif()
    endforeach()
    list(JOIN names ", " names)
    set(${variable} "${names}" PARENT_SCOPE)
endfunction()

foreach(component velmora-installer:installer libztstuff-dev:library)
    string(REGEX MATCH "^([^:]+):(.+)$" _ "${component}")
    install(FILES LICENSE DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/${CMAKE_MATCH_1}
        RENAME copyright COMPONENT ${CMAKE_MATCH_2})
endforeach()

set(CPACK_PACKAGE_NAME velmora-installer)
set(CPACK_PACKAGE_VENDOR "The Velmora Installer authors")
set(CPACK_PACKAGE_CONTACT "The Velmora Installer authors <maintainers@velmora.example>")
set(CPACK_PACKAGE_HOMEPAGE_URL "https://www.velmora.example/")
set(CPACK_PACKAGE_CHECKSUM SHA256)
set(CPACK_RESOURCE_FILE_LICENSE "${PROJECT_SOURCE_DIR}/LICENSE")
set(CPACK_VERBATIM_VARIABLES ON)
# Paths that are written into files are those that the files will have.
set(CPACK_SET_DESTDIR ON)

set(CPACK_ARCHIVE_COMPONENT_INSTALL OFF)
set(CPACK_PACKAGE_FILE_NAME
    "velmora-installer-${PROJECT_VERSION}-${CMAKE_SYSTEM_NAME}-${CMAKE_SYSTEM_PROCESSOR}")
set(CPACK_SOURCE_PACKAGE_FILE_NAME "velmora-installer-${PROJECT_VERSION}")
set(CPACK_SOURCE_GENERATOR TGZ)
set(CPACK_SOURCE_IGNORE_FILES
    "^${PROJECT_SOURCE_DIR}/build/;^${PROJECT_SOURCE_DIR}/\\.git;^${PROJECT_SOURCE_DIR}/\\.cache/")

set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "") # each package has a line of its own
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_ALL installer library)
set(CPACK_COMPONENTS_GROUPING IGNORE)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)

set(CPACK_DEBIAN_INSTALLER_PACKAGE_NAME velmora-installer)
set(CPACK_DEBIAN_INSTALLER_PACKAGE_SECTION admin)
set(CPACK_COMPONENT_INSTALLER_DESCRIPTION
    "desktop installer for products that come as bundles
Installs a self-contained bundle: quits running copies, moves an earlier copy
to the Trash, copies the product whole or not at all, and makes it known to the
desktop; with a window, or unattended.")
velmora_packages_of(CPACK_DEBIAN_INSTALLER_PACKAGE_RECOMMENDS run ".")

set(CPACK_DEBIAN_LIBRARY_PACKAGE_NAME libztstuff-dev)
set(CPACK_DEBIAN_LIBRARY_PACKAGE_SECTION libdevel)
set(CPACK_COMPONENT_LIBRARY_DESCRIPTION
    "utility library for desktop programs, with its headers
Processes, versions, texts, sounds, colours and views, with C++20 and Qt 6.
CMake's find_package(ZTStuff) finds it.")
# Whoever links the library links what it uses.
velmora_packages_of(CPACK_DEBIAN_LIBRARY_PACKAGE_DEPENDS build "^(lib|qt).*-dev$")

include(CPack)
