# SPDX-FileCopyrightText: 2026 The Velmora Installer authors
# SPDX-License-Identifier: Apache-2.0
"""What is done with each command of the documents. A command that no row fits is a mistake."""

from dataclasses import dataclass


@dataclass(frozen=True)
class Row:
    pattern: str  # that fits the whole command

    def instead(self, match):
        """What the shell runs in place of the command; None for nothing."""
        return match[0]


@dataclass(frozen=True)
class Run(Row):
    """Run as it stands."""


@dataclass(frozen=True)
class Replaced(Row):
    """Run in another way, with the groups of the pattern as \\1 and so on."""

    command: str
    reason: str

    def instead(self, match):
        return match.expand(self.command)


@dataclass(frozen=True)
class Looked(Row):
    """Not run; the program has to be there, and a script has to know each of its options."""

    reason: str

    def instead(self, _match):
        return None


SHOWS_WINDOW = (
    r"tests/desktop/session -- bash -c 'source tests/desktop/windows.bash;"
    r' "$@" & awaitWindow "Install Notes" && kill $!'
    r"' - \1"
)

TABLE = (
    # Setting up, building and testing.
    Run(r"scripts/setup"),
    Run(r"cmake --preset (dev|release)"),
    Replaced(
        r"(cmake --build --preset (?:dev|release)(?: --target [\w ]+)?)",
        r"\1 -- -n",
        "takes minutes; what is to be built is found out all the same",
    ),
    Replaced(
        r"cmake --preset dev && cmake --build --preset dev",
        r"cmake --preset dev && cmake --build --preset dev -- -n",
        "likewise",
    ),
    Replaced(
        r"ctest --preset dev (.*)",
        r"""ctest --test-dir "$VELMORA_BUILD" --show-only \1 | tail -n 1 | tee /dev/stderr |"""
        r""" grep --quiet "Total Tests: [1-9]" """,
        "these tests are running just now; that there are such tests is looked at",
    ),
    Looked(r"scripts/check( --\w+)?", "runs this test"),
    Looked(r"scripts/lint( \w+)*", "scripts/check runs it"),
    Run(r"clang-format-14 -i [\w/.]+"),
    Looked(r"clang-tidy-14 -p build/asan [\w/.]+", "scripts/check --slow runs it, for minutes"),
    # Showing and measuring.
    Looked(r"scripts/demo( --no-screen)?", "scripts/check --slow runs it"),
    Looked(r"scripts/screenshots .*", "takes minutes"),
    Replaced(r"scripts/bench (\w+)", r"test -d benchmarks/\1", "measures for minutes"),
    Looked(r"scripts/package", "PackagesTest runs it"),
    Run(r"tests/desktop/session -- xdpyinfo"),
    # Shipping and installing.
    Replaced(
        r"(scripts/make-product .*)",
        r"\1 --replace",
        "a reader follows one of the ways to make the product, the test all of them",
    ),
    Run(r"mkdir -p ~/try"),
    Run(r"Notes\.app/Contents/Resources/install -(unattended|check) .*"),
    Replaced(
        r"(Notes\.app/Contents/Resources/install -destinationPath \S+)",
        SHOWS_WINDOW,
        "shows a window, on a desktop of its own",
    ),
    # The examples of the manual page.
    Run(r"/media/notes/Notes\.app/\S+ -unattended YES -destinationPath ~/Applications/Notes\.app"),
    Replaced(
        r"sudo (VelmoraInstaller .*) -destinationPath /Applications/Notes\.app",
        r"\1 -destinationPath $WORLD/Applications/Notes.app",
        "nothing is installed for all users of this machine",
    ),
    Run(r"VelmoraInstaller -check JSON .* \| jq \.bytesNeeded"),
    # Another system's.
    Looked(
        r"(export CXX=|cmake -S \. -B build/macos|cmake --build build/macos|open ).*",
        "only for a Mac",
    ),
)
