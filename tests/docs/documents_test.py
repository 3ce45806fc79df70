#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The Velmora Installer authors
# SPDX-License-Identifier: Apache-2.0
"""Tests of the documents. Usage: documents_test.py CLASS.TEST..., with the build folder in
VELMORA_BUILD."""

import os
import re
import unittest
from pathlib import Path

from command_table import TABLE, Looked, Run
from reading import anchors_of, commands_of, commands_of_manual, links_of, named_commands_of
from run import run
from world import TOP, World

DOCUMENTS = sorted([*TOP.glob("*.md"), *(TOP / "docs").rglob("*.md")])
MANUALS = sorted((TOP / "docs/man").iterdir())
BUILD = Path(os.environ["VELMORA_BUILD"])


def fitting_row(command, table=TABLE):
    """The row of the table for the command, and how its pattern fits; None where there is none."""
    for row in table:
        match = re.fullmatch(row.pattern, command)
        if match:
            return row, match
    return None


def why_unknown(command):
    """Why a command that is not run cannot be right; None when it may be."""
    program, *arguments = command.split()
    script = TOP / program
    if "/" not in program:
        return None
    if not os.access(script, os.X_OK):
        return f"{command}\n  there is no program {program}"
    text = script.read_text()
    unknown = [word for word in arguments if word.startswith("--") and word not in text]
    return f"{command}\n  {program} does not know {unknown[0]}" if unknown else None


def problems_with(commands, run_command, table=TABLE):
    """What is wrong with the commands of a document, one text for each problem."""
    problems = []
    for command in commands:
        found = fitting_row(command, table)
        if not found:
            problems.append(f"{command}\n  no row of tests/docs/command_table.py fits")
            continue
        instead = found[0].instead(found[1])
        problem = why_unknown(command) if instead is None else run_command(instead)
        if problem:
            problems.append(problem)
    return problems


def missing_targets(text, folder):
    """The links of a text, in a document in the folder, that lead nowhere."""
    missing = []
    for target in links_of(text):
        path, _, anchor = target.partition("#")
        file = folder / path if path else None
        if file and not file.exists():
            missing.append(target)
        elif anchor and anchor not in anchors_of(file.read_text() if file else text):
            missing.append(target)
    return missing


class DocumentsTest(unittest.TestCase):
    def everyLinkAndPictureIsThere(self):
        for document in DOCUMENTS:
            with self.subTest(document.relative_to(TOP)):
                self.assertEqual(missing_targets(document.read_text(), document.parent), [])

    def everyFileThatIsNamedIsThere(self):
        for document in DOCUMENTS:
            for command in named_commands_of(document.read_text()):
                with self.subTest(document.relative_to(TOP), command=command):
                    self.assertTrue((TOP / command.split()[0]).exists())
                    if " " in command:
                        self.assertIsNone(why_unknown(command))

    def everyPageIsReachedFromTheReadMe(self):
        reached, waiting = set(), [TOP / "README.md"]
        while waiting:
            document = waiting.pop()
            if document in reached or document.suffix != ".md":
                continue
            reached.add(document)
            waiting += [
                (document.parent / target.partition("#")[0]).resolve()
                for target in links_of(document.read_text())
            ]
        self.assertEqual([str(page) for page in DOCUMENTS if page not in reached], [])


@unittest.skipUnless((BUILD / "VelmoraInstaller.app").exists(), "the installer has not been built")
class CommandsTest(unittest.TestCase):
    maxDiff = None

    def everyCommandWorks(self):
        world = World(BUILD)
        self.addCleanup(world.close)
        for document in DOCUMENTS:
            commands = commands_of(document.read_text())
            if not commands:
                continue
            world.prepare()
            with self.subTest(document.relative_to(TOP)):
                self.assertEqual("\n".join(problems_with(commands, world.run)), "")
        # What the examples of a manual page find on their medium.
        self.assertIsNone(
            world.run(
                'scripts/make-product --version 2.1 --name Notes --identifier org.example.Notes'
                ' --output "$WORLD/medium" build/notes'
            )
        )
        for manual in MANUALS:
            with self.subTest(manual.relative_to(TOP)):
                self.assertEqual(
                    "\n".join(
                        problems_with(
                            commands_of_manual(manual.read_text()),
                            lambda command: world.run(
                                command.replace("/media/notes", str(world.medium))
                            ),
                        )
                    ),
                    "",
                )

    def aCommandThatFailsInTheWorldIsTold(self):
        world = World(BUILD)
        self.addCleanup(world.close)
        self.assertIsNone(world.run("test -x scripts/make-product && cd ~/Applications"))
        self.assertIn("ended with 3:\nwhy\n", world.run("echo why; exit 3"))
        self.assertIn("ended with 1:", world.run("false | true"))

    def everyEntryOfTheTableIsUsed(self):
        commands = []
        for pages, commands_in in ((DOCUMENTS, commands_of), (MANUALS, commands_of_manual)):
            for page in pages:
                commands += commands_in(page.read_text())
        used = {found[0] for found in map(fitting_row, commands) if found}
        self.assertEqual([row.pattern for row in TABLE if row not in used], [])


class DocumentReadingTest(unittest.TestCase):
    """The tests above can fail."""

    def commandsAreFoundInBlocksAndExamples(self):
        text = (
            "Text.\n\n    first  # why\n    second --long \\\n        --option\n\nMore:\n\n"
            "```sh\nthird 'a # b'\n```\n\n```cpp\nno(command);\n```\n\n- a list\n  goes on\n"
        )
        self.assertEqual(commands_of(text)[:2], ["first", "second --long --option"])
        self.assertEqual(len(commands_of(text)), 3)
        manual = (
            ".Sh EXAMPLES\n.Bd -literal\none \\e\n    more\n.Ed\n"
            ".Sh SEE ALSO\n.Bd -literal\nno example\n.Ed\n"
        )
        self.assertEqual(commands_of_manual(manual), ["one more"])
        self.assertTrue(any(commands_of_manual(manual.read_text()) for manual in MANUALS))

    def whatIsMissingIsTold(self):
        text = (
            "# A heading, `coded`\n\n[web](https://example.org) [here](#a-heading-coded) "
            "[nowhere](#b) [lost](lost.md) ![lost](lost.png) [there](README.md#no-such-heading) "
            "`[code](code.md)`\n"
        )
        self.assertEqual(
            missing_targets(text, TOP), ["#b", "lost.md", "lost.png", "README.md#no-such-heading"]
        )
        self.assertEqual(
            named_commands_of("`scripts/absent --help` and `tests/NAME` and `other/file`"),
            ["scripts/absent --help"],
        )

    def aCommandThatFailsOrIsUnknownIsTold(self):
        table = (Run("true|false"), Looked("scripts/.*", "a reason"))
        answers = {"true": None, "false": "false failed"}
        problems = problems_with(
            ["true", "false", "other", "scripts/absent", "scripts/check --absent", "scripts/check"],
            answers.get,
            table,
        )
        self.assertEqual(
            [problem.splitlines()[-1].strip() for problem in problems],
            [
                "false failed",
                "no row of tests/docs/command_table.py fits",
                "there is no program scripts/absent",
                "scripts/check does not know --absent",
            ],
        )


if __name__ == "__main__":
    run()
