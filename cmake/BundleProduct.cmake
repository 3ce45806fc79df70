# Products as bundles that carry their installer inside.

# velmora_bundle_product(<target> NAME <name> [<option of scripts/make-product>...])
# Makes "<name>.app" of an executable target at the top of the build folder, as scripts/make-product
# makes any product. The bundle is the target <target>Bundle, part of the default build. It is made
# anew in every build, so that nothing stays in it that was taken out.
function(velmora_bundle_product target)
    cmake_parse_arguments(arg "" "NAME" "" ${ARGN})
    add_custom_target(${target}Bundle ALL
        COMMAND "${PROJECT_SOURCE_DIR}/scripts/make-product" "$<TARGET_FILE:${target}>"
            --name "${arg_NAME}" --installer "${CMAKE_BINARY_DIR}/VelmoraInstaller.app"
            --output "${CMAKE_BINARY_DIR}" --replace --quiet ${arg_UNPARSED_ARGUMENTS}
        COMMENT "Assembling ${arg_NAME}.app"
        VERBATIM)
    add_dependencies(${target}Bundle ${target} VelmoraInstaller)
endfunction()
