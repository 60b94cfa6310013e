# shellcheck shell=bash disable=SC2034
# Builds the release, and says what it is: sourced by the scripts that pack it, at the root of the sources. Sets version,
# and SOURCE_DATE_EPOCH to the date of the last change, so that equal sources give equal bytes.
export CCACHE_BASEDIR=$PWD CCACHE_NOHASHDIR=1 LC_ALL=C.UTF-8 TZ=UTC
packaging/install.sh build package
version=$(sed -n 's/^project(Zembrolix VERSION \([0-9.]*\).*/\1/p' CMakeLists.txt)
if [ -z "${SOURCE_DATE_EPOCH:-}" ]; then
    SOURCE_DATE_EPOCH=$(git log -1 --format=%ct 2>/dev/null || stat -c %Y CHANGELOG.md)
    export SOURCE_DATE_EPOCH
fi
mkdir -p build
cmake --preset release >build/configure.log 2>&1 || { cat build/configure.log >&2; exit 1; }
cmake --build --preset release >build/build.log 2>&1 || { cat build/build.log >&2; exit 1; }
