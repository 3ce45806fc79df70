# SPDX-FileCopyrightText: 2026 The Velmora Installer authors
# SPDX-License-Identifier: Apache-2.0
"""A world in which the commands of the documents can be run: a copy of the project, a home folder,
and what a reader has, who wants to ship a program called Notes."""

import os
import re
import shutil
import subprocess
import tempfile
from pathlib import Path

TOP = Path(__file__).resolve().parents[2]
PROGRAM = '#!/bin/sh\necho "Notes: $*"\n'
ICON = '<svg xmlns="http://www.w3.org/2000/svg" width="16" height="16"/>\n'
ENTRY = "[Desktop Entry]\nType=Application\nName=Notes\nIcon=notes\nExec=notes %U\n"


class World:
    def __init__(self, build):
        self._folder = tempfile.TemporaryDirectory(prefix="velmora-docs-")
        self.top = Path(self._folder.name)
        self.project = self.top / "project"
        self.medium = self.top / "medium"
        for name in ("home/Applications", "Applications", "medium", "bin"):
            (self.top / name).mkdir(parents=True)
        left_out = shutil.ignore_patterns(".git", "build", "__pycache__")
        shutil.copytree(TOP, self.project, symlinks=True, ignore=left_out)
        self._take_installer(build)
        self._own = set(os.listdir(self.project)) | {"build"}
        kept = {
            name: value
            for name, value in os.environ.items()
            if not re.match(r"(XDG|QT|GTK|DBUS)_|DISPLAY$|WAYLAND_DISPLAY$", name)
        }
        self._environment = kept | {
            "HOME": str(self.top / "home"),
            "PATH": f"{self.top / 'bin'}:{os.environ['PATH']}",
            "LC_ALL": "C.UTF-8",
            "VELMORA_BUILD": str(build),
            "WORLD": str(self.top),
        }
        self.prepare()

    def close(self):
        self._folder.cleanup()

    def _take_installer(self, build):
        """As the release preset would have built it: without what only debuggers need."""
        bundle = self.project / "build/release/VelmoraInstaller.app"
        shutil.copytree(build / bundle.name, bundle, symlinks=True)
        program = bundle / "Contents/Linux/VelmoraInstaller"
        subprocess.run(["strip", program, bundle / "Contents/Resources/train"], check=True)
        (self.top / "bin/VelmoraInstaller").symlink_to(program)

    def prepare(self):
        """What one document has made is gone before the next; what the reader has is there."""
        for name in set(os.listdir(self.project)) - self._own:
            item = self.project / name
            shutil.rmtree(item) if item.is_dir() else item.unlink()
        for folder, names in (
            ("build/notes", ("notes",)),
            ("Notes.AppDir", ("AppRun", "org.example.notes.desktop", "notes.svg")),
            (".", ("notes.svg", "ReadMe.rtf")),
        ):
            (self.project / folder).mkdir(parents=True, exist_ok=True)
            for name in names:
                file = self.project / folder / name
                contents = {".svg": ICON, ".desktop": ENTRY, ".rtf": r"{\rtf1 Notes}"}
                file.write_text(contents.get(file.suffix, PROGRAM))
                file.chmod(0o644 if file.suffix else 0o755)

    def run(self, command):
        """Has the shell run the command; answers why it failed, else None."""
        try:
            done = subprocess.run(
                ["bash", "-euo", "pipefail", "-c", command],
                cwd=self.project,
                env=self._environment,
                stdin=subprocess.DEVNULL,
                stdout=subprocess.PIPE,
                stderr=subprocess.STDOUT,
                text=True,
                timeout=120,
                check=False,
            )
        except subprocess.TimeoutExpired:
            return f"{command}\n  does not end"
        if done.returncode == 0:
            return None
        return f"{command}\n  ended with {done.returncode}:\n{done.stdout}"
