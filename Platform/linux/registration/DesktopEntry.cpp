// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/linux/registration/DesktopEntry.h"

#include <string_view>

namespace zt {

namespace {

// A value of the type "string": backslashes and what would end the line.
std::string escapedValue(std::string_view text) {
    std::string escaped;
    for (const char c : text) {
        switch (c) {
        case '\\':
            escaped += "\\\\";
            break;
        case '\n':
            escaped += "\\n";
            break;
        case '\t':
            escaped += "\\t";
            break;
        case '\r':
            escaped += "\\r";
            break;
        case ' ':
            escaped += escaped.empty() ? "\\s" : " "; // leading blanks would be dropped
            break;
        default:
            escaped += c;
        }
    }
    return escaped;
}

// An argument of the "Exec" key: in quotes, in which some characters keep a meaning; a percent
// sign begins a field code everywhere.
std::string quotedArgument(std::string_view text) {
    std::string quoted = "\"";
    for (const char c : text) {
        if (c == '"' || c == '`' || c == '$' || c == '\\')
            quoted += '\\';
        if (c == '%')
            quoted += '%';
        quoted += c;
    }
    return quoted + '"';
}

// Items of a list, each ended by a semicolon. None of them has one in it.
std::string listOf(const std::vector<std::string> &items) {
    std::string list;
    for (const std::string &item : items)
        list += item + ';';
    return list;
}

std::string escapedMarkup(std::string_view text) {
    std::string escaped;
    for (const char c : text) {
        switch (c) {
        case '&':
            escaped += "&amp;";
            break;
        case '<':
            escaped += "&lt;";
            break;
        case '>':
            escaped += "&gt;";
            break;
        case '"':
            escaped += "&quot;";
            break;
        default:
            escaped += c;
        }
    }
    return escaped;
}

const char *fieldCode(const ApplicationRecord &record) {
    bool takesAddresses = false;
    for (const std::string &type : record.mimeTypes)
        takesAddresses = takesAddresses || type.starts_with("x-scheme-handler/");
    if (takesAddresses)
        return " %U";
    return record.mimeTypes.empty() ? "" : " %F";
}

} // namespace

std::string desktopEntryText(const ApplicationRecord &record) {
    const std::string program = record.bundlePath + '/' + record.executable;
    std::string text = "[Desktop Entry]\nType=Application\nVersion=1.0\n";
    for (const auto &name : record.names) {
        text += name.locale.empty() ? std::string("Name") : "Name[" + name.locale + ']';
        text += '=' + escapedValue(name.text) + '\n';
    }
    text += "Exec=" + escapedValue(quotedArgument(program) + fieldCode(record)) + '\n';
    text += "TryExec=" + escapedValue(program) + '\n';
    text += "Icon=" +
            (record.icons.empty() ? std::string("application-x-executable") : record.identifier) +
            '\n';
    text += "Terminal=false\n";
    if (!record.categories.empty())
        text += "Categories=" + listOf(record.categories) + '\n';
    if (!record.mimeTypes.empty())
        text += "MimeType=" + listOf(record.mimeTypes) + '\n';
    if (record.isBackgroundOnly)
        text += "NoDisplay=true\n";
    return text;
}

std::string mimePackageText(const ApplicationRecord &record) {
    std::string text = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                       "<mime-info xmlns=\"http://www.freedesktop.org/standards/"
                       "shared-mime-info\">\n";
    for (const auto &type : record.newFileTypes) {
        text += "  <mime-type type=\"" + escapedMarkup(type.mimeType) + "\">\n";
        if (!type.description.empty())
            text += "    <comment>" + escapedMarkup(type.description) + "</comment>\n";
        for (const std::string &suffix : type.suffixes)
            text += "    <glob pattern=\"*." + escapedMarkup(suffix) + "\"/>\n";
        text += "  </mime-type>\n";
    }
    return text + "</mime-info>\n";
}

} // namespace zt
