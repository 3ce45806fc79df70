# Looks at the action file POLICY, installed below PREFIX, as any reader of XML sees it.
find_program(XMLLINT xmllint)
if(NOT XMLLINT)
    message(STATUS "xmllint is not installed")
    return()
endif()

# ask(<variable> <XPath>): the value in the file; fails when the file is not well-formed.
function(ask variable path)
    execute_process(COMMAND "${XMLLINT}" --nonet --xpath "string(${path})" "${POLICY}"
        OUTPUT_VARIABLE answer OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
    set(${variable} "${answer}" PARENT_SCOPE)
endfunction()

set(action "/policyconfig/action[@id='com.velmora.VelmoraInstaller.install']")
ask(tool "${action}/annotate[@key='org.freedesktop.policykit.exec.path']")
if(NOT tool MATCHES "^${PREFIX}/.*/VelmoraInstaller\\.app/Contents/Resources/train$")
    message(FATAL_ERROR "The action is for '${tool}'.")
endif()
execute_process(COMMAND "${tool}" --version OUTPUT_VARIABLE version COMMAND_ERROR_IS_FATAL ANY)
if(NOT version MATCHES "^train [0-9.]+\n$")
    message(FATAL_ERROR "The tool answers '${version}'.")
endif()
ask(message "${action}/message")
if(NOT message MATCHES "install a product for all users")
    message(FATAL_ERROR "The dialog does not say what the password is for: '${message}'")
endif()
# Whoever is asked has to be an administrator, each time.
foreach(case allow_any allow_inactive allow_active)
    ask(allowed "${action}/defaults/${case}")
    if(NOT allowed STREQUAL "auth_admin")
        message(FATAL_ERROR "${case} is '${allowed}'.")
    endif()
endforeach()
