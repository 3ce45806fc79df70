#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The Velmora Installer authors
# SPDX-License-Identifier: Apache-2.0
"""Tests of the pages about the library's headers. Usage: api_pages_test.py CLASS.TEST..."""

import html
import os
import re
import shutil
import subprocess
import tempfile
import unittest
from pathlib import Path

from run import run

TOP = Path(__file__).resolve().parents[2]


def make_pages(folder, further_settings=""):
    """Makes the pages into the folder; answers whether it went without a warning, and all said."""
    done = subprocess.run(
        ["doxygen", "-"],
        input=(TOP / "docs/Doxyfile").read_text() + further_settings,
        cwd=TOP,
        env={**os.environ, "VELMORA_VERSION": "0", "VELMORA_API_PAGES": str(folder)},
        stdout=subprocess.PIPE,
        stderr=subprocess.STDOUT,
        text=True,
        check=False,
    )
    return done.returncode == 0, done.stdout


def text_of(page):
    return re.sub(r"\s+", " ", html.unescape(re.sub(r"<[^>]*>", "", page.read_text())))


@unittest.skipUnless(shutil.which("doxygen"), "doxygen is not installed")
class ApiPagesTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name)

    def theyAreMadeWithoutAWarning(self):
        succeeded, said = make_pages(self.folder)
        self.assertEqual(said, "")
        self.assertTrue(succeeded)

    def contractsStandOnThem(self):
        make_pages(self.folder)
        for page, text in (
            ("index.html", "A small desktop installer"),  # the README comes first
            ("classZTUtilities.html", "Orders two versions. Each is split at its first letter"),
            ("classzt_1_1InterruptionHold.html", "While it lives, what can be held off is."),
            ("FileSystems_8h.html", "The file systems of the volumes that files lie on."),
            # A group, and a free function.
            ("namespaceZTViewExtensions.html", "Scrolling"),
            ("namespaceZTViewExtensions.html", "Answers whether it scrolled"),
        ):
            self.assertIn(text, text_of(self.folder / "html" / page), page)

    def aMistakeIsAWarning(self):
        document = self.folder / "Mistake.md"
        document.write_text("# Mistake\n\n@ref nothingOfThisName\n")
        succeeded, said = make_pages(self.folder, f"\nINPUT = {document}\n")
        self.assertFalse(succeeded)
        self.assertIn("nothingOfThisName", said)


class CommentsTest(unittest.TestCase):
    maxDiff = None

    def everyKindOfCommentIsTurnedIntoItsOwn(self):
        done = subprocess.run(
            ["awk", "-f", TOP / "docs/comments_for_doxygen.awk"],
            input=self.HEADER,
            stdout=subprocess.PIPE,
            text=True,
            check=True,
        )
        self.assertEqual(done.stdout, self.AS_DOXYGEN_READS_IT)

    HEADER = """\
#pragma once

// SPDX-FileCopyrightText: somebody

// What the file is for,
// in two lines.

#include <signal.h> // kill

namespace zt {

// A class. 100 % plain: a < b, #1, `a < b`.
class Sample {
public:
    // Looking. Thread: any.

    // Looks:
    //     assert(*look() == 1);
    int *look();

    // Waiting.

    void wait();

private:
    int m_count = 0; // of looks
};

// Free ones.

int look();

} // namespace zt
"""
    AS_DOXYGEN_READS_IT = """\
#pragma once


/// @file
/// What the file is for,
/// in two lines.

#include <signal.h> // kill

namespace zt {

/// A class. 100 \\% plain: a \\< b, \\#1, `a < b`.
class Sample {
public:
    ///@name Looking
    /// Thread: any.
    ///@{

    /// Looks:
    ///     assert(*look() == 1);
    int *look();

    ///@}
    ///@name Waiting
    ///@{

    void wait();

    ///@}
private:
    int m_count = 0; ///< of looks
};

///@name Free ones
///@{

int look();

///@}
} // namespace zt
"""


if __name__ == "__main__":
    run()
