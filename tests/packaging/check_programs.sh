#!/usr/bin/env bash
# Sees to it that scripts/test installs what tests/programs.txt has programs of.
#
# usage: check_programs.sh SOURCE_DIR PACKAGE...
set -euo pipefail

source "$1/scripts/lib/packages.sh"
for package in "${@:2}"; do
    [ "$package" = essential ] && continue
    [[ " ${packages_test[*]} " == *" $package "* ]] || {
        echo "FAIL: tests/programs.txt has programs of $package, which packages_test lacks" >&2
        exit 1
    }
done
