# What "cmake --install" puts in place. The component "installer": its bundle, what the password
# dialog says for it, its command and manual page. The component "library": the utility library with
# its headers and its helper, and the files through which find_package(ZTStuff) finds it.

include(CMakePackageConfigHelpers)

install(DIRECTORY "${PROJECT_BINARY_DIR}/VelmoraInstaller.app"
    DESTINATION ${CMAKE_INSTALL_LIBDIR}/velmora-installer
    USE_SOURCE_PERMISSIONS
    COMPONENT installer)

# The command of that name, and its manual page.
file(RELATIVE_PATH installerFromCommand "/${CMAKE_INSTALL_BINDIR}"
    "/${CMAKE_INSTALL_LIBDIR}/velmora-installer/VelmoraInstaller.app/Contents/Linux/VelmoraInstaller")
set(installerCommand "${PROJECT_BINARY_DIR}/installed-command/VelmoraInstaller")
file(MAKE_DIRECTORY "${PROJECT_BINARY_DIR}/installed-command")
file(CREATE_LINK "${installerFromCommand}" "${installerCommand}" SYMBOLIC)
install(FILES "${installerCommand}" DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT installer)
install(FILES docs/man/VelmoraInstaller.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1
    COMPONENT installer)

# The helper that a program which uses ZTUtilities::launchMicro() keeps among its resources.
install(DIRECTORY "${PROJECT_BINARY_DIR}/Micro.app"
    DESTINATION ${CMAKE_INSTALL_LIBDIR}/ztstuff
    USE_SOURCE_PERMISSIONS
    COMPONENT library)

# What the password dialog says. It names the tool by its path, which is known only now; an
# administrator's system finds it when the prefix is /usr.
set(policyName com.velmora.VelmoraInstaller.policy)
set(trainInPrefix
    ${CMAKE_INSTALL_LIBDIR}/velmora-installer/VelmoraInstaller.app/Contents/Resources/train)
install(CODE "
    set(trainPath \"\${CMAKE_INSTALL_PREFIX}/${trainInPrefix}\")
    configure_file(\"${PROJECT_SOURCE_DIR}/Installer/Resources/${policyName}.in\"
        \"${PROJECT_BINARY_DIR}/${policyName}\" @ONLY)"
    COMPONENT installer)
install(FILES "${PROJECT_BINARY_DIR}/${policyName}"
    DESTINATION ${CMAKE_INSTALL_DATADIR}/polkit-1/actions
    COMPONENT installer)

set(headerFolder ${CMAKE_INSTALL_INCLUDEDIR}/ztstuff)
set(packageFolder ${CMAKE_INSTALL_LIBDIR}/cmake/ZTStuff)
# The headers of the back ends and of the system calls below them are no interface.
install(DIRECTORY ZTStuff Platform
    DESTINATION ${headerFolder}
    COMPONENT library
    FILES_MATCHING PATTERN "*.h" PATTERN "Platform/linux" EXCLUDE PATTERN "Platform/macos" EXCLUDE
        PATTERN "Platform/portable" EXCLUDE PATTERN "Platform/posix" EXCLUDE)

# velmora_collect_libraries(<variable> <library>)
# Adds to the list in the variable the library and all libraries of this project that it links.
function(velmora_collect_libraries variable library)
    set(collected ${${variable}})
    if(library IN_LIST collected)
        return()
    endif()
    list(APPEND collected ${library})
    get_target_property(linked ${library} LINK_LIBRARIES)
    foreach(other IN LISTS linked)
        if(TARGET ${other})
            get_target_property(imported ${other} IMPORTED)
            if(NOT imported)
                velmora_collect_libraries(collected ${other})
            endif()
        endif()
    endforeach()
    set(${variable} ${collected} PARENT_SCOPE)
endfunction()

# velmora_install_component(<component> <library> [<excluded>...])
# Installs the library as ZTStuff::<component>, together with the libraries that it links and that
# are not among the excluded.
function(velmora_install_component component library)
    set(libraries "")
    velmora_collect_libraries(libraries ${library})
    list(REMOVE_ITEM libraries ${ARGN} "")
    set_target_properties(${library} PROPERTIES EXPORT_NAME ${component})
    foreach(installed IN LISTS libraries)
        target_compile_features(${installed} INTERFACE cxx_std_20)
    endforeach()
    install(TARGETS ${libraries} EXPORT ZTStuff-${component}
        ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR}/ztstuff COMPONENT library
        INCLUDES DESTINATION ${headerFolder})
    install(EXPORT ZTStuff-${component} NAMESPACE ZTStuff:: DESTINATION ${packageFolder}
        COMPONENT library)
    set(${component}Libraries ${libraries} PARENT_SCOPE)
endfunction()

velmora_install_component(core ztstuff_core)
velmora_install_component(gui ztstuff_gui ${coreLibraries})

configure_package_config_file(cmake/ZTStuffConfig.cmake.in
    "${PROJECT_BINARY_DIR}/ZTStuffConfig.cmake"
    INSTALL_DESTINATION ${packageFolder}
    NO_SET_AND_CHECK_MACRO)
write_basic_package_version_file("${PROJECT_BINARY_DIR}/ZTStuffConfigVersion.cmake"
    COMPATIBILITY SameMajorVersion)
install(FILES
    "${PROJECT_BINARY_DIR}/ZTStuffConfig.cmake"
    "${PROJECT_BINARY_DIR}/ZTStuffConfigVersion.cmake"
    DESTINATION ${packageFolder}
    COMPONENT library)
