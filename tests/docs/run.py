# SPDX-FileCopyrightText: 2026 The Velmora Installer authors
# SPDX-License-Identifier: Apache-2.0
"""How the tests of this folder are run: CLASS.TEST... as arguments."""

import sys
import unittest


def run():
    """Runs the tests that are named; ends with 77 when one was skipped, as CTest is told."""
    result = unittest.main(module="__main__", verbosity=2, exit=False).result
    if not result.wasSuccessful() or result.testsRun == 0:
        sys.exit(1)
    sys.exit(77 if result.skipped else 0)
