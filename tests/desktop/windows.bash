# SPDX-FileCopyrightText: 2026 The Velmora Installer authors
# SPDX-License-Identifier: Apache-2.0
#
# For scripts that look at a program from outside: they run on the desktop of tests/desktop/session,
# press keys, and take pictures.

windowTimeout=60 # seconds

# awaitWindow TITLE: waits for a window whose title begins so, and leaves its number in `window`.
awaitWindow() {
    local deadline=$((SECONDS + windowTimeout))
    until window=$(xdotool search --onlyvisible --name "^$1" 2>/dev/null | tail -n 1) &&
        [[ -n $window ]]; do
        if ((SECONDS >= deadline)); then
            printf 'No window "%s" appeared.\n' "$1" >&2
            return 1
        fi
        sleep 0.05
    done
}

# Prints what stands for the whole screen as it looks now.
screenNow() {
    import -silent -window root rgb:- | sha256sum
}

# awaitPicture FILE: waits until the screen has changed since the last picture and stands still,
# which it does not while something moves on it. Then writes it to the file.
awaitPicture() {
    local deadline=$((SECONDS + windowTimeout)) picture previous='' still=0
    while ((still < 3)); do
        sleep 0.08
        picture=$(screenNow)
        if [[ $picture == "$previous" && $picture != "${lastPicture:-}" ]]; then
            ((still += 1))
        else
            still=0
        fi
        previous=$picture
        if ((SECONDS >= deadline)); then
            printf 'The screen did not come to rest for %s.\n' "$1" >&2
            import -silent -window root "$1"
            return 1
        fi
    done
    lastPicture=$picture
    import -silent -window root "$1"
}

# awaitChange: waits until the screen differs from the last picture, moving or not.
awaitChange() {
    local deadline=$((SECONDS + windowTimeout))
    while [[ $(screenNow) == "$lastPicture" ]] && ((SECONDS < deadline)); do
        sleep 0.02
    done
}

# paintDesktop: in place of the X server's black.
paintDesktop() {
    xsetroot -solid '#5b6f80'
}

# pressKey KEY...: as a person would, on the window that has the focus.
pressKey() {
    xdotool windowactivate --sync "$window" key "$@"
}

# startWatched COMMAND...: starts it in the background, so that awaitEnd can wait for it and for
# all that it starts, also when they go their own way.
startWatched() {
    local pipe both writer
    pipe=$(mktemp -u)
    mkfifo "$pipe"
    # Opened both ways first: neither end waits for the other then.
    exec {both}<>"$pipe"
    exec {watchEnd}<"$pipe" {writer}>"$pipe" {both}>&-
    rm "$pipe"
    # What is started inherits the writer; when nobody has it any more, the pipe ends.
    "$@" {watchEnd}<&- &
    exec {writer}>&-
}

# awaitEnd [SECONDS]: waits until everything has ended that startWatched started.
awaitEnd() {
    local status=0
    read -r ${1:+-t "$1"} -u "$watchEnd" || status=$?
    exec {watchEnd}<&-
    # 1 is the end of the pipe, more is a timeout.
    ((status == 1))
}
