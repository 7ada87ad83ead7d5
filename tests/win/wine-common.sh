# Sourced (bash) by wine-run.sh, the end-to-end harness and scripts/run.sh: one place that knows how
# the Wine prefixes and the headless X servers of this project are made.
#
# A template prefix is built once (wineboot takes seconds) and cached; every user of Wine here gets a
# copy of it (well under a second). The template is keyed by the Wine version and by the code that
# makes it, so a change to either builds a new one. The Japanese locale is compiled into a private
# folder, so no system-wide locale change is needed.

lookout_wine_cache=${LOOKOUT_WINE_CACHE:-${XDG_CACHE_HOME:-${HOME:-/tmp}/.cache}/veskar_lookout}

lookout_die() {
    echo "error: $*" >&2
    exit 1
}

# Exports what every Wine call needs: quiet log, no Mono/Gecko prompts, no menu entries on the host,
# and a Japanese locale so that GetACP() is 932 and the UI fonts are the Japanese ones.
lookout_wine_environment() {
    mkdir -p "$lookout_wine_cache" || lookout_die "cannot create $lookout_wine_cache"
    local locale_dir=$lookout_wine_cache/locale
    if [[ ! -e $locale_dir/ja_JP.UTF-8/LC_CTYPE ]]; then
        (
            flock 9
            if [[ ! -e $locale_dir/ja_JP.UTF-8/LC_CTYPE ]]; then
                mkdir -p "$locale_dir"
                # localedef exits 1 on mere warnings; the compiled files are what counts.
                localedef -i ja_JP -f UTF-8 "$locale_dir/ja_JP.UTF-8" >/dev/null 2>&1 || true
                [[ -e $locale_dir/ja_JP.UTF-8/LC_CTYPE ]] || lookout_die "localedef could not build ja_JP.UTF-8"
            fi
        ) 9>"$lookout_wine_cache/locale.lock" || exit 1
    fi
    export LOCPATH=$locale_dir
    unset LANGUAGE
    # bash itself cannot see LOCPATH and would warn that it cannot switch; only Wine needs the locale.
    export LANG=ja_JP.UTF-8 LC_ALL=ja_JP.UTF-8 2>/dev/null
    export WINEDEBUG=-all
    export WINEDLLOVERRIDES="mscoree,mshtml=;winemenubuilder.exe="
    unset WINEARCH
}

# The registry settings every prefix gets: Japanese UI font names replaced by the IPA fonts, and a
# virtual desktop with its taskbar (title bars and the tray on screenshots, stable window positions).
# regedit reads Japanese names only from a UTF-16 file.
lookout_write_registry_file() {
    local file=$1
    {
        printf '\xff\xfe'
        sed 's/$/\r/' <<'REG' | iconv -f UTF-8 -t UTF-16LE
Windows Registry Editor Version 5.00

[HKEY_CURRENT_USER\Software\Wine\Fonts\Replacements]
"MS UI Gothic"="IPAPGothic"
"MS Gothic"="IPAGothic"
"MS PGothic"="IPAPGothic"
"Meiryo"="IPAPGothic"
"Meiryo UI"="IPAPGothic"
"MS Mincho"="IPAMincho"
"MS PMincho"="IPAPMincho"
"ＭＳ ゴシック"="IPAGothic"
"ＭＳ Ｐゴシック"="IPAPGothic"
"メイリオ"="IPAPGothic"
"ＭＳ 明朝"="IPAMincho"
"ＭＳ Ｐ明朝"="IPAPMincho"

[HKEY_CURRENT_USER\Software\Wine\Explorer]
"Desktop"="Default"

[HKEY_CURRENT_USER\Software\Wine\Explorer\Desktops]
"Default"="1280x1024"

[HKEY_CURRENT_USER\Software\Wine\Explorer\Desktops\Default]
"EnableShell"=dword:00000001

REG
    } >"$file"
}

# Prints the path of the template prefix, building it first if needed (safe when several builds race).
lookout_wine_template() {
    lookout_wine_environment
    local key
    # Only what goes into the template counts, so other edits to this file keep the cache.
    key=$( { wine --version 2>/dev/null; declare -f lookout_write_registry_file lookout_wine_template; } |
        sha1sum | cut -c1-12)
    local template=$lookout_wine_cache/template-$key
    if [[ ! -e $template/.lookout-ready ]]; then
        (
            flock 9
            if [[ ! -e $template/.lookout-ready ]]; then
                echo "Preparing the Wine template prefix (once): $template" >&2
                rm -rf "$lookout_wine_cache"/template-* 2>/dev/null
                local building=$template.building
                rm -rf "$building"
                mkdir -p "$building"
                lookout_write_registry_file "$lookout_wine_cache/prefix.reg"
                (
                    export WINEPREFIX=$building
                    unset DISPLAY WAYLAND_DISPLAY
                    wineboot -i >/dev/null 2>&1 || lookout_die "wineboot -i failed for $building"
                    wine regedit /S "$(winepath -w "$lookout_wine_cache/prefix.reg")" >/dev/null 2>&1 ||
                        lookout_die "regedit could not import the prefix settings"
                    cp /usr/share/wine/fonts/*.ttf "$building/drive_c/windows/Fonts/" ||
                        lookout_die "cannot copy Wine's fonts into the prefix"
                    # The registry reaches disk when the server ends.
                    wineserver -w
                ) || exit 1
                grep -q 'IPAPGothic' "$building/user.reg" || lookout_die "font replacements missing from the template"
                touch "$building/.lookout-ready"
                mv "$building" "$template"
            fi
        ) 9>"$lookout_wine_cache/template.lock" || exit 1
    fi
    printf '%s\n' "$template"
}

# Makes DEST a fresh copy of the template prefix.
lookout_wine_prefix_copy() {
    local dest=$1 template
    template=$(lookout_wine_template) || exit 1
    rm -rf "$dest"
    mkdir -p "$(dirname "$dest")"
    # Shared lock: a newer template being built must not delete this one mid-copy.
    (
        flock -s 9
        cp -a "$template" "$dest" || lookout_die "cannot copy the Wine template to $dest"
    ) 9>"$lookout_wine_cache/template.lock" || exit 1
}

# Makes sure PREFIX exists as a copy of the current template. An existing one is kept (it holds the
# state of earlier runs) unless it was copied from an older template.
lookout_wine_prefix_ensure() {
    local prefix=$1 template
    template=$(lookout_wine_template) || exit 1
    [[ $(cat "$prefix/.lookout-template" 2>/dev/null) == "$template" ]] && return 0
    mkdir -p "$(dirname "$prefix")"
    (
        flock 9
        if [[ $(cat "$prefix/.lookout-template" 2>/dev/null) != "$template" ]]; then
            lookout_wine_prefix_copy "$prefix"
            printf '%s\n' "$template" >"$prefix/.lookout-template"
        fi
    ) 9>"$prefix.lock" || exit 1
}

# Stops every Wine process of the current WINEPREFIX and waits for its server to end.
lookout_wine_stop() {
    [[ -n ${WINEPREFIX:-} && -d $WINEPREFIX ]] || return 0
    wineserver -k >/dev/null 2>&1 || true # fails when no server runs
    wineserver -w >/dev/null 2>&1 || true
    return 0
}

# Starts a private X server on a free display (Xvfb picks it and reports it on fd 3) with openbox as
# window manager: without one, Wine waits about 2 s on every window it hides. Exports DISPLAY and
# sets lookout_xvfb_pid / lookout_openbox_pid for lookout_stop_x.
lookout_start_x() {
    local report
    report=$(mktemp) || lookout_die "mktemp failed"
    Xvfb -displayfd 3 -screen 0 1280x1024x24 -nolisten tcp 3>"$report" >/dev/null 2>&1 &
    lookout_xvfb_pid=$!
    local tries=0
    until [[ -s $report ]]; do
        kill -0 "$lookout_xvfb_pid" 2>/dev/null || { rm -f "$report"; lookout_die "Xvfb did not start"; }
        ((++tries < 200)) || { rm -f "$report"; lookout_die "Xvfb reported no display within 10 s"; }
        sleep 0.05
    done
    export DISPLAY=:$(head -n 1 "$report")
    rm -f "$report"
    openbox --sm-disable >/dev/null 2>&1 &
    lookout_openbox_pid=$!
}

lookout_stop_x() {
    local pid
    for pid in ${lookout_openbox_pid:-} ${lookout_xvfb_pid:-}; do
        { kill "$pid" && wait "$pid"; } 2>/dev/null || true # wait reports the signal that ended it
    done
    lookout_openbox_pid= lookout_xvfb_pid=
    return 0
}
