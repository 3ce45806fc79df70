# SPDX-FileCopyrightText: 2026 The Velmora Installer authors
# SPDX-License-Identifier: Apache-2.0
#
# Turns the plain comments of a header into those that Doxygen reads, as it reads the header:
#
#   the first block before the includes       what the file is for
#   a block right before a declaration        what that is
#   a block before an empty line, further on  a group: its first sentence is the group's name
#   a comment behind a member                 what the member is

# The text as it stands, whatever Doxygen would make of it. Code, which is indented or between
# backticks, is left alone.
function plain(text,    parts, count, i, result) {
    if (text ~ /^    /)
        return text
    count = split(text, parts, "`")
    for (i = 1; i <= count; ++i) {
        if (i % 2 == 1 || i == count)
            gsub(/[\\@<>&#%*~]/, "\\\\&", parts[i])
        result = result (i > 1 ? "`" : "") parts[i]
    }
    return result
}

function endGroup() {
    if (isInGroup)
        print groupIndent "///@}"
    isInGroup = 0
    groupIndent = ""
}

# A name and, below it, the rest of the text; what follows belongs to the group.
function beginGroup(    text, i, end) {
    endGroup()
    for (i = 1; i <= blockLines; ++i)
        text = text (i > 1 ? " " : "") block[i]
    end = match(text, /[.:;]( |$)/) ? RSTART : length(text) + 1
    print indent "///@name " plain(substr(text, 1, end - 1))
    if (end + 2 <= length(text))
        print indent "/// " plain(substr(text, end + 2))
    print indent "///@{"
    groupIndent = indent
    isInGroup = 1
}

function printBlock(    i) {
    for (i = 1; i <= blockLines; ++i)
        print indent "/// " plain(block[i])
}

function isLicense() {
    return block[1] ~ /^SPDX-/
}

function endBlock(isBeforeEmptyLine) {
    if (blockLines == 0)
        return
    if (isBeforeEmptyLine && !hasFileText && !hasCode) {
        if (!isLicense()) {
            hasFileText = 1
            print "/// @file"
            printBlock()
        }
    } else if (isBeforeEmptyLine) {
        beginGroup()
    } else {
        printBlock()
    }
    blockLines = 0
}

/^[ \t]*\/\/( |$)/ {
    match($0, /^[ \t]*/)
    indent = substr($0, 1, RLENGTH)
    block[++blockLines] = substr($0, RLENGTH + 4)
    next
}

/^[ \t]*$/ {
    endBlock(1)
    print
    next
}

{
    hasCode = hasCode || !/^#pragma once/
    endBlock(0)
    # A group ends with what it stands in, or where other scopes begin.
    match($0, /^[ \t]*/)
    if (/^[ \t]*(}|public:|private:|protected:)/ && RLENGTH < length(groupIndent))
        endGroup()
    if (/^namespace .*{$/ || /^} \/\/ namespace/)
        endGroup()
    if (/^[ \t]*[^#} \t].*[;,{a-zA-Z0-9] +\/\/ /) {
        at = match($0, /[;,{a-zA-Z0-9] +\/\/ /)
        print substr($0, 1, RSTART) " ///< " plain(substr($0, RSTART + RLENGTH))
        next
    }
    print
}

END {
    endBlock(1)
    endGroup()
}
