#!/usr/bin/env bash
# Installs the build into a folder of its own and uses it as a stranger would: docs/example is
# built against it by way of the CMake package and by way of pkg-config, and has to do its work.
#
# usage: check_package.sh CMAKE BUILD_DIR SOURCE_DIR CXX
set -euo pipefail

cmake=$1 build=$2 source=$3 cxx=$4
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
prefix=$work/prefix
export QT_QPA_PLATFORM=offscreen

fail() {
    echo "FAIL: $*" >&2
    exit 1
}

"$cmake" --install "$build" --prefix "$prefix" >"$work/install.log"

# What must be there, and what must not.
for file in include/zorv/zorv.h include/zorv/code/codedoc/codedocument.h bin/zorv \
    bin/zorv-player \
    share/man/man1/zorv.1 share/man/man1/zorv-player.1 share/doc/zorv/LICENSE share/zorv/samples/README.md \
    share/zorv/snippets/Attack.xml 'share/zorv/templates/character/fighter/{name}.character'; do
    [ -f "$prefix/$file" ] || fail "$file is not installed"
done
stray=$(cd "$prefix/include" && find . -type f \
    \( -name '*_p.h' -o -name 'moc_*' -o -name '*.moc' -o -name 'ui_*' -o ! -name '*.h' \))
[ -z "$stray" ] || fail "not for others, but installed: $stray"
(cd "$source/src" && find . -name '*.h' ! -name '*_p.h' | sort) >"$work/expected"
(cd "$prefix/include/zorv" && find . -name '*.h' ! -path ./zorv.h | sort) >"$work/installed"
diff "$work/expected" "$work/installed" >&2 || fail "the installed headers are not the public ones"

library=$(find "$prefix" -name 'libzorv.so.1')
[ -n "$library" ] || fail "there is no libzorv.so.1"
readelf -d "$library" | grep -q 'SONAME.*\[libzorv\.so\.1\]' || fail "the soname is not libzorv.so.1"
nm -D --defined-only "$library" | grep -q ' T setGlobalInterface$' ||
    fail "setGlobalInterface has no plain name"
libdir=$(dirname "$library")

# Setting one value has to change one line and keep its comment.
check_program() {
    local program=$1
    printf '# first\r\n[video]\r\nwidth = 640  # pixels\r\nheight = 480\r\n' >"$work/settings.txt"
    LD_LIBRARY_PATH=$libdir "$program" "$work/settings.txt" video width 800
    printf '# first\r\n[video]\r\nwidth = 800  # pixels\r\nheight = 480\r\n' >"$work/expected.txt"
    cmp "$work/expected.txt" "$work/settings.txt" >&2 || fail "$program wrote the wrong text"
    if LD_LIBRARY_PATH=$libdir "$program" "$work/settings.txt" video depth 8 2>/dev/null; then
        fail "$program set a value that is not there"
    fi
}

"$cmake" -S "$source/docs/example" -B "$work/by-cmake" -DCMAKE_PREFIX_PATH="$prefix" \
    -DCMAKE_CXX_COMPILER="$cxx" -G Ninja >"$work/configure.log" || { cat "$work/configure.log"; exit 1; }
"$cmake" --build "$work/by-cmake" >"$work/build.log" || { cat "$work/build.log"; exit 1; }
check_program "$work/by-cmake/settings"

export PKG_CONFIG_PATH=$libdir/pkgconfig
mkdir "$work/by-pkgconfig"
# shellcheck disable=SC2046 # the flags are words
"$cxx" -std=c++17 "$source/docs/example/main.cpp" -o "$work/by-pkgconfig/settings" \
    $(pkg-config --cflags --libs zorv)
check_program "$work/by-pkgconfig/settings"

# The program finds its library in whatever prefix it was put.
mv "$prefix" "$work/moved"
env -u LD_LIBRARY_PATH "$work/moved/bin/zorv" check "$work/moved/share/zorv/samples/arena" ||
    fail "the installed program does not work"

printf '60 F B\n' >"$work/script.txt"
env -u LD_LIBRARY_PATH "$work/moved/bin/zorv-player" "$work/moved/share/zorv/samples/arena" \
    --script "$work/script.txt" --json >"$work/ticks.json" || fail "the installed player does not work"
[ "$(wc -l <"$work/ticks.json")" -eq 60 ] || fail "the installed player plays other ticks"

# The guide shows parts of the example: each of them has to stand in it.
awk -v RS='```' 'NR % 2 == 0 && sub(/^cpp\n/, "")' "$source/docs/host-guide.md" |
    while IFS= read -r line; do
        [ -z "$line" ] || grep -qxF -- "$line" "$source/docs/example/main.cpp" ||
            fail "docs/host-guide.md shows a line that docs/example/main.cpp lacks: $line"
    done
echo "The installed package works by way of CMake and of pkg-config."
