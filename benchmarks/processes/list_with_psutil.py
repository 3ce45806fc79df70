#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The Velmora Installer authors
# SPDX-License-Identifier: Apache-2.0

"""Lists the applications of this user with name, path and version, as the process object does.

Prints the milliseconds of the first listing, the least of those of the later ones, and how many
applications were listed. The dictionary of a bundle is read once, however many processes run from
it and however often they are listed.
"""

import os
import plistlib
import sys
import time

import psutil

dictionaries = {}


def bundle_of(program):
    folder = program
    while folder not in ("/", ""):
        if folder.endswith(".app") and os.path.exists(folder + "/Contents/Info.plist"):
            return folder
        folder = os.path.dirname(folder)
    return None


def dictionary_of(bundle):
    if bundle not in dictionaries:
        with open(bundle + "/Contents/Info.plist", "rb") as file:
            dictionaries[bundle] = plistlib.load(file)
    return dictionaries[bundle]


def applications():
    found = []
    user = os.geteuid()
    for process in psutil.process_iter():
        try:
            program = process.exe()
            bundle = bundle_of(program) if program else None
            if bundle is None or process.uids().effective != user:
                continue
            dictionary = dictionary_of(bundle)
            name = dictionary.get("CFBundleName") or process.name()
            version = dictionary.get("CFBundleShortVersionString", "1.0")
            found.append((process.create_time(), process.pid, name, bundle, version))
        except psutil.Error:
            continue
    found.sort()
    return found


def listing_time():
    start = time.perf_counter()
    count = len(applications())
    return (time.perf_counter() - start) * 1000, count


first, count = listing_time()
later = [listing_time()[0] for _ in range(int(sys.argv[1]))]
print(first, min(later), count)
