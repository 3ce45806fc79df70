// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/linux/ProcScript.h"

#include "Platform/posix/SystemCalls.h"

#include <algorithm>
#include <array>
#include <cstdlib> // realpath
#include <memory>

namespace zt {

namespace {

constexpr std::string_view interpreters[] = {
    "ash",   "bash",        "busybox", "csh",   "dash", "deno",   "electron", "fish",
    "gjs",   "gjs-console", "java",    "guile", "ksh",  "lua",    "mksh",     "mono",
    "node",  "nodejs",      "perl",    "php",   "pypy", "python", "ruby",     "sh",
    "tclsh", "tcsh",        "wish",    "yash",  "zsh"};

std::string_view fileNameOf(std::string_view path) {
    return path.substr(path.rfind('/') + 1); // npos + 1 is 0
}

bool isBlank(char character) {
    return character == ' ' || character == '\t';
}

// Whether the option says that the program text stands in the arguments, or names a module.
bool bringsProgram(std::string_view interpreterName, std::string_view option) {
    if (option == "--eval" || option == "--print")
        return true;
    if (option.size() < 2 || option.front() != '-' || option[1] == '-')
        return false;
    // Options of one letter may be written as one: "sh -ec", "perl -ne".
    if (interpreterName == "busybox" || interpreterName.find("sh") != std::string_view::npos)
        return option.find('c') != std::string_view::npos;
    if (interpreterName == "java")
        return false;
    constexpr std::string_view programLetters = "ceEmp";
    return programLetters.find(option.back()) != std::string_view::npos;
}

std::string_view takeWord(std::string_view &text) {
    text.remove_prefix(
        static_cast<std::size_t>(std::ranges::find_if_not(text, isBlank) - text.begin()));
    const auto length =
        static_cast<std::size_t>(std::ranges::find_if(text, isBlank) - text.begin());
    const std::string_view word = text.substr(0, length);
    text.remove_prefix(length);
    return word;
}

bool isRegularFile(const std::string &path) {
    struct stat status = {};
    return ::stat(path.c_str(), &status) == 0 && S_ISREG(status.st_mode);
}

std::string realPath(const std::string &path) {
    const std::unique_ptr<char, decltype(&std::free)> real(::realpath(path.c_str(), nullptr),
                                                           &std::free);
    return real ? std::string(real.get()) : std::string();
}

// Whether the script itself says that it is to be run by that program.
bool namesInterpreter(const std::string &scriptPath, const std::string &programPath) {
    const UniqueFd file = openAt(AT_FDCWD, scriptPath.c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY);
    if (!file)
        return false;
    std::array<char, 256> buffer; // the kernel reads no more of it either
    const ssize_t count = readFully(file.get(), buffer.data(), buffer.size());
    if (count <= 0)
        return false;
    const std::string named(interpreterOfScript({buffer.data(), static_cast<std::size_t>(count)}));
    if (named.empty())
        return false;
    if (named.front() == '/')
        return realPath(named) == programPath;
    // What "env" found on the search path may be a link to a name with a version behind.
    return fileNameOf(programPath).starts_with(named);
}

} // namespace

bool isInterpreterName(std::string_view fileName) {
    constexpr std::string_view versionCharacters = "0123456789.-";
    const std::size_t last = fileName.find_last_not_of(versionCharacters);
    if (last == std::string_view::npos)
        return false;
    return std::ranges::find(interpreters, fileName.substr(0, last + 1)) != std::end(interpreters);
}

std::vector<std::string> possibleScripts(std::string_view interpreterName,
                                         const std::vector<std::string> &arguments) {
    std::vector<std::string> scripts;
    for (std::size_t index = 1; index < arguments.size(); ++index) {
        const std::string &argument = arguments[index];
        if (bringsProgram(interpreterName, argument))
            break;
        if (!argument.empty() && argument.front() != '-')
            scripts.push_back(argument);
    }
    return scripts;
}

std::string_view interpreterOfScript(std::string_view content) {
    if (!content.starts_with("#!"))
        return {};
    std::string_view line = content.substr(2, content.find('\n') - 2);
    const std::string_view program = takeWord(line);
    if (fileNameOf(program) != "env")
        return program;
    std::string_view word = takeWord(line);
    while (word.starts_with('-') || word.find('=') != std::string_view::npos)
        word = takeWord(line);
    return word;
}

BundledScript bundledScriptOf(const ProcFs &procFs, std::int32_t pid,
                              const std::string &programPath) {
    const std::string_view programName = fileNameOf(programPath);
    const std::vector<std::string> arguments = procFs.commandLine(pid);
    const BundledScript none = {.path = {}, .isFinal = !arguments.empty()};
    std::optional<std::string> folder;
    for (std::string script : possibleScripts(programName, arguments)) {
        if (script.front() != '/') {
            if (!folder)
                folder = procFs.workingFolder(pid).value_or(std::string());
            script = *folder + '/' + script;
        }
        if (!isRegularFile(script))
            continue;
        script = realPath(script);
        if (innermostBundlePath(script).empty())
            return none;
        if (!isInterpreterName(programName) && !namesInterpreter(script, programPath))
            return none;
        return {.path = script, .isFinal = true};
    }
    return none;
}

} // namespace zt
