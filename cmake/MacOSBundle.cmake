# The installer's bundle as macOS wants it: the program in Contents/MacOS, the frameworks that it
# needs beside it, and an information dictionary that is localized.

set(bundle "${PROJECT_BINARY_DIR}/VelmoraInstaller.app")
set_target_properties(VelmoraInstaller PROPERTIES
    RUNTIME_OUTPUT_DIRECTORY "${bundle}/Contents/MacOS"
    BUILD_RPATH "@executable_path/../Frameworks"
    BUILD_WITH_INSTALL_RPATH ON
    INSTALL_RPATH "@executable_path/../Frameworks")

# What only this system reads stands in a file of its own, before the end of the dictionary.
set(dictionary "${bundle}/Contents/Info.plist")
file(READ "${dictionary}" information)
file(READ "${PROJECT_SOURCE_DIR}/Installer/macos/Info-additions.plist.in" additions)
string(REPLACE "VelmoraInstaller.svg" "VelmoraInstaller.icns" information "${information}")
string(REPLACE "</dict>\n</plist>" "${additions}</dict>\n</plist>" information "${information}")
file(CONFIGURE OUTPUT "${dictionary}" CONTENT "${information}" @ONLY)

# Names and questions in the user's language.
foreach(language en de)
    configure_file("${PROJECT_SOURCE_DIR}/Installer/macos/${language}.lproj/InfoPlist.strings"
        "${bundle}/Contents/Resources/${language}.lproj/InfoPlist.strings" COPYONLY)
endforeach()

# The icon in the form that the Finder shows.
add_executable(make_icon "${PROJECT_SOURCE_DIR}/examples/SampleProduct/Icon/MakeIcon.cpp")
target_link_libraries(make_icon PRIVATE Qt6::Gui)
velmora_target_options(make_icon)
set(icon "${bundle}/Contents/Resources/VelmoraInstaller.icns")
add_custom_command(OUTPUT "${icon}"
    COMMAND make_icon "${PROJECT_SOURCE_DIR}/Installer/Resources/VelmoraInstaller.svg" "${icon}"
    DEPENDS make_icon "${PROJECT_SOURCE_DIR}/Installer/Resources/VelmoraInstaller.svg"
    COMMENT "Drawing VelmoraInstaller.icns"
    VERBATIM)
add_custom_target(installer_icon DEPENDS "${icon}")
add_dependencies(VelmoraInstaller installer_icon)

# Qt's own tool copies its frameworks and plugins into the bundle, once the program is there. It is
# not part of each build, because it takes long and hides which libraries are used.
get_target_property(qmake Qt6::qmake IMPORTED_LOCATION)
get_filename_component(qtPrograms "${qmake}" DIRECTORY)
find_program(MACDEPLOYQT_PROGRAM macdeployqt HINTS "${qtPrograms}")
add_custom_target(VelmoraInstallerFrameworks
    COMMAND "${MACDEPLOYQT_PROGRAM}" "${bundle}"
    COMMENT "Putting frameworks into VelmoraInstaller.app"
    VERBATIM)
add_dependencies(VelmoraInstallerFrameworks VelmoraInstaller train)

install(DIRECTORY "${bundle}" DESTINATION . USE_SOURCE_PERMISSIONS)
