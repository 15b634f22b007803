# Shared by ./run, ./test and the tools: installs what is missing and builds. Sourced, never run.

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

# Configures (when needed) and builds the preset of the first argument, with the targets of the others.
build_preset() {
    local preset=$1
    shift
    say "Building ($preset)"
    [ -f "build/$preset/build.ninja" ] || cmake --preset "$preset" >/dev/null
    cmake --build "build/$preset" ${1:+--target "$@"} -- --quiet
}
