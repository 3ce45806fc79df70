#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The Velmora Installer authors
# SPDX-License-Identifier: Apache-2.0

"""Runs a program again and again and collects its output, as the utilities do.

Usage: run_with_subprocess.py COUNT EXPECTED PROGRAM [ARGUMENT...]. Prints the microseconds of each
run. A run that does not print what is expected ends the program.
"""

import subprocess
import sys
import time

expected = sys.argv[2]
program = sys.argv[3:]
for _ in range(int(sys.argv[1])):
    start = time.perf_counter_ns()
    output = subprocess.run(
        program,
        stdin=subprocess.DEVNULL,
        stdout=subprocess.PIPE,
        stderr=subprocess.STDOUT,
        text=True,
        check=False,
    ).stdout
    end = time.perf_counter_ns()
    if output.strip() != expected:
        sys.exit(1)
    print((end - start) / 1000)
