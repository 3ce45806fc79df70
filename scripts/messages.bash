# SPDX-FileCopyrightText: 2026 The Velmora Installer authors
# SPDX-License-Identifier: Apache-2.0
#
# How the scripts of this folder talk, and where they work: in the project's top folder.

cd -- "$(dirname -- "$(readlink -f -- "${BASH_SOURCE[0]}")")/.."

bold= plain=
# shellcheck disable=SC2034 # for those who build
ninjaOptions=(--quiet)
if [[ -t 1 ]]; then
    bold=$'\e[1m' plain=$'\e[0m'
    # One line that changes shows a person that the build goes on.
    ninjaOptions=()
fi

# say TEXT: what is being done now.
say() {
    printf '%s==> %s%s\n' "$bold" "$*" "$plain"
}

# fail LINE...: why the script cannot go on; it ends.
fail() {
    printf '%s: ' "${0##*/}" >&2
    printf '%s\n' "$@" >&2
    exit 1
}
