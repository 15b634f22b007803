# Shared by ./run, ./test and the tools: installs what is missing and builds. Run by itself only to install what is there
# on wish:
#   tools/setup.sh --dwg    the converter by which drawings in DWG can be opened

# What the window is built with; everything else is built without.
qt_packages=(qt6-base-dev qt6-svg-dev qt6-qpa-plugins)
# What ./test needs.
test_packages=(g++ cmake ninja-build libedit-dev python3 libgtest-dev python3-ezdxf "${qt_packages[@]}")

say() { printf '== %s\n' "$*"; }

# Installs the Debian packages of the arguments that aren't there yet.
need_packages() {
    local missing=() package
    for package in "$@"; do
        if [ "$(dpkg-query -W -f='${Status}' "$package" 2>/dev/null)" != "install ok installed" ]; then
            missing+=("$package")
        fi
    done
    [ ${#missing[@]} -eq 0 ] && return 0

    local sudo=()
    if [ "$(id -u)" -ne 0 ]; then
        command -v sudo >/dev/null || {
            echo "Missing packages: ${missing[*]}. Install them as root: apt-get install ${missing[*]}" >&2
            return 1
        }
        sudo=(sudo)
    fi
    say "Installing ${missing[*]}"
    "${sudo[@]}" apt-get update -qq
    "${sudo[@]}" env DEBIAN_FRONTEND=noninteractive \
        apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
}

# A compiler cache serves all builds of a machine, where there is one.
if command -v ccache >/dev/null; then
    export CMAKE_CXX_COMPILER_LAUNCHER=${CMAKE_CXX_COMPILER_LAUNCHER-ccache}
    export CCACHE_SLOPPINESS=${CCACHE_SLOPPINESS-pch_defines,time_macros,include_file_mtime,include_file_ctime}
    export CCACHE_BASEDIR=${CCACHE_BASEDIR-$PWD} CCACHE_NOHASHDIR=1
fi

# Configures (when needed) and builds the preset of the first argument, with the targets of the others.
build_preset() {
    local preset=$1
    shift
    say "Building ($preset)"
    [ -f "build/$preset/build.ninja" ] || cmake --preset "$preset" >/dev/null
    cmake --build "build/$preset" ${1:+--target "$@"} -- --quiet
}

# Configures the preset of the argument anew where it was configured before Qt was installed.
reconfigure_for_qt() {
    if grep -qs 'Qt6_DIR:PATH=.*NOTFOUND' "build/$1/CMakeCache.txt"; then
        rm "build/$1/CMakeCache.txt" && cmake --preset "$1" >/dev/null
    fi
}

# The converter of tools/dwg, in the versions of its lock file.
install_dwg() {
    command -v npm >/dev/null || need_packages nodejs npm
    say "Installing the DWG converter"
    npm --prefix "$(dirname "${BASH_SOURCE[0]}")/dwg" ci --ignore-scripts --no-audit --no-fund --silent
}

if [ "${BASH_SOURCE[0]}" = "$0" ]; then
    set -euo pipefail
    case ${1:-} in
        --dwg) install_dwg ;;
        *) echo "Usage: tools/setup.sh --dwg" >&2; exit 2 ;;
    esac
fi
