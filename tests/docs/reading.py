# SPDX-FileCopyrightText: 2026 The Velmora Installer authors
# SPDX-License-Identifier: Apache-2.0
"""Reads documents: what they say to do, and what they point to. Takes text, touches no files."""

import re

FENCE = re.compile(r"^ {0,3}```(\w*)\s*$")
COMMAND_LANGUAGES = ("", "sh")
LINK = re.compile(r"!?\[(?:[^\[\]]|\[[^\]]*\])*\]\(([^()\s]+)\)")
# What begins like a folder of the project is meant to be there; it may be a command.
NAMED_FILE = re.compile(
    r"`((?:\.ci|Installer|Platform|ZTStuff|benchmarks|cmake|docs|examples|scripts|tests)/[^`]*)`"
)


def split_blocks(text):
    """Answers the blocks of code, each as its language and its lines, and the text around them.

    The language of an indented block is "sh".
    """
    blocks, prose, language, previous = [], [], None, ""
    for line in text.splitlines():
        fence = FENCE.match(line)
        indented = language is None and line.startswith("    ")
        if fence and language is None:
            language = fence[1]
            blocks.append((language, []))
        elif fence:
            language = None
        elif language is not None:
            blocks[-1][1].append(line)
        elif indented and (previous == "" or previous.startswith("    ")):
            if previous == "":
                blocks.append(("sh", []))
            blocks[-1][1].append(line[4:])
        else:
            prose.append(line)
        previous = line
    return blocks, "\n".join(prose)


def join_lines(lines):
    """One command for each line; those that end with a backslash go on. Comments are left out."""
    joined = re.sub(r"\s*\\\n\s*", " ", "\n".join(lines))
    commands = (re.sub(r"(^|\s+)#\s.*$", "", line).strip() for line in joined.splitlines())
    return [command for command in commands if command]


def commands_of(text):
    blocks, _ = split_blocks(text)
    return [
        command
        for language, lines in blocks
        if language in COMMAND_LANGUAGES
        for command in join_lines(lines)
    ]


def commands_of_manual(text):
    """The commands among the examples of a manual page."""
    examples = re.search(r"^\.Sh EXAMPLES\n(.*?)^\.Sh", text, re.S | re.M)
    text = examples[1] if examples else ""
    return [
        command
        for display in re.findall(r"^\.Bd -literal.*?\n(.*?)^\.Ed", text, re.S | re.M)
        for command in join_lines(display.replace("\\e", "\\").splitlines())
    ]


def links_of(text):
    """The targets of links and pictures, those on the web left out."""
    _, prose = split_blocks(text)
    targets = LINK.findall(re.sub(r"`[^`]*`", "", prose))
    return [target for target in targets if not re.match(r"[a-z]+:", target)]


def named_commands_of(text):
    """What the text names within its sentences of the project's files, each with what follows it.

    Files with placeholders in their names are left out.
    """
    _, prose = split_blocks(text)
    commands = (" ".join(command.split()) for command in NAMED_FILE.findall(prose))
    return [
        command
        for command in commands
        if not re.search(r"[…*<>{}]|[A-Z]{4}", command.split()[0])
    ]


def anchors_of(text):
    """What a link can lead to within the text: its headings, as web sites name them."""
    _, prose = split_blocks(text)
    headings = re.findall(r"^#+ (.*)$", prose, re.M)
    return [re.sub(r"[^\w\- ]", "", heading.lower()).replace(" ", "-") for heading in headings]
