# shellcheck shell=bash disable=SC2034
# Sourced by the scripts: the Debian packages that each of them needs, and their installation.

packages_build=(
    g++ cmake ninja-build ccache pkg-config
    qtbase5-dev qtmultimedia5-dev qttools5-dev qttools5-dev-tools
    libuchardet-dev libgif-dev libsamplerate0-dev
    libebur128-dev libsndfile1-dev
)
packages_display=(xvfb xauth libgl1-mesa-dri fonts-dejavu-core)
packages_run=(
    fonts-droid-fallback   # the sample game has comments in Japanese
    qttranslations5-l10n   # Qt's own texts in the language of the window
    libqt5multimedia5-plugins   # sounds are heard
)
packages_test=(
    python3 qttranslations5-l10n
    lld   # links the many test programs in a sixth of the time
    imagemagick netpbm giflib-tools sox   # make and read the files that tests compare with
    libqt5multimedia5-plugins pulseaudio pulseaudio-utils   # play sounds, and record what is heard
)
packages_bench=(
    libkf5syntaxhighlighting-dev
    # Peers of the codecs and the image operations; the programs here link them, nothing else.
    libisal-dev liblzo2-dev libavfilter-dev libavutil-dev libswscale-dev libimagequant-dev
    ffmpeg imagemagick
)
packages_fuzz=(clang libclang-rt-14-dev)
packages_format=(clang-format-14)
packages_fresh=(debootstrap)

# install_packages NAME... installs those that are missing. With nothing missing it needs neither
# root nor the network.
install_packages() {
    local name missing=() root=()
    if ! command -v dpkg-query >/dev/null || ! command -v apt-get >/dev/null; then
        echo "This is no Debian system: see to it that these are installed: $*" >&2
        return 0
    fi
    for name in "$@"; do
        if [ "$(dpkg-query -W -f '${db:Status-Status}' "$name" 2>/dev/null)" != installed ]; then
            missing+=("$name")
        fi
    done
    if [ ${#missing[@]} -eq 0 ]; then
        return 0
    fi
    if [ "$(id -u)" -ne 0 ]; then
        if ! command -v sudo >/dev/null; then
            echo "Some packages are missing, and there is no sudo. As root, run:" >&2
            echo "    apt-get install ${missing[*]}" >&2
            return 1
        fi
        root=(sudo)
        if [ ! -t 0 ]; then
            root=(sudo -n)
        fi
    fi
    echo "Installing ${missing[*]}"
    root+=(env DEBIAN_FRONTEND=noninteractive)
    # A list that cannot be fetched may be one that is not needed.
    "${root[@]}" apt-get -q update </dev/null || echo "Going on with the old lists" >&2
    if ! "${root[@]}" apt-get -q install -y --no-install-recommends "${missing[@]}" </dev/null; then
        echo "The packages could not be installed: ${missing[*]}" >&2
        return 1
    fi
}

# configure_and_build PRESET [TARGET...]
configure_and_build() {
    local preset=$1
    shift
    cmake --preset "$preset"
    cmake --build "build/$preset" ${1:+--target "$@"}
}
