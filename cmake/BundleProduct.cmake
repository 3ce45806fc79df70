# Products as bundles that carry their installer inside.

# velmora_bundle_product(<target> NAME <name> INFO_PLIST <template> VERSION <version>
#                        [RESOURCES <file>...])
# Assembles "<name>.app" at the top of the build folder from an executable target: the information
# dictionary (a template in which @version@ stands for the version), the executable, the resources
# and the installer's bundle. The bundle is the target <target>Bundle, part of the default build. It
# is made anew in every build, so that nothing stays in it that was taken out.
function(velmora_bundle_product target)
    cmake_parse_arguments(arg "" "NAME;INFO_PLIST;VERSION" "RESOURCES" ${ARGN})
    set(bundle "${CMAKE_BINARY_DIR}/${arg_NAME}.app")
    set(version "${arg_VERSION}")
    set(informationDictionary "${CMAKE_CURRENT_BINARY_DIR}/${target}-Info.plist")
    configure_file("${arg_INFO_PLIST}" "${informationDictionary}" @ONLY)
    add_custom_target(${target}Bundle ALL
        COMMAND ${CMAKE_COMMAND} -E rm -rf "${bundle}"
        COMMAND ${CMAKE_COMMAND} -E make_directory
            "${bundle}/Contents/Linux" "${bundle}/Contents/Resources"
        COMMAND ${CMAKE_COMMAND} -E copy "${informationDictionary}" "${bundle}/Contents/Info.plist"
        COMMAND ${CMAKE_COMMAND} -E copy "$<TARGET_FILE:${target}>" "${bundle}/Contents/Linux"
        COMMAND ${CMAKE_COMMAND} -E copy ${arg_RESOURCES} "${bundle}/Contents/Resources"
        COMMAND ${CMAKE_COMMAND} -E copy_directory "${CMAKE_BINARY_DIR}/VelmoraInstaller.app"
            "${bundle}/Contents/Resources/VelmoraInstaller.app"
        DEPENDS ${arg_RESOURCES}
        COMMENT "Assembling ${arg_NAME}.app"
        VERBATIM)
    add_dependencies(${target}Bundle ${target} VelmoraInstaller)
endfunction()
