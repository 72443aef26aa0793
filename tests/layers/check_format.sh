#!/usr/bin/env bash
# Asks whether the code is formatted. Exits 77, for a test that was not run, where that cannot be
# told: clang-format is too large to be installed for it.
#
# usage: check_format.sh ROOT
set -euo pipefail
cd "$1"
if [ "$(dpkg-query -W -f '${db:Status-Status}' clang-format-14 2>/dev/null)" != installed ]; then
    echo "clang-format-14 is not installed: run scripts/format --check elsewhere."
    exit 77
fi
if ! git ls-files --error-unmatch scripts/format >/dev/null 2>&1; then
    echo "This is no checkout of git, which tells what is to be formatted."
    exit 77
fi
exec scripts/format --check
