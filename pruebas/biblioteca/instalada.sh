#!/usr/bin/env bash
# Installs the library alone in a folder, builds the C host as an integrator would, and compares what it prints.
#   instalada.sh BUILD EXAMPLES COMPILER CMAKE -- COMPARISON...
# COMPARISON: the command that compares, to which the host and its arguments are added.
set -euo pipefail
construccion=$1 ejemplos=$2 compilador=$3 cmake=$4
shift 5

carpeta=$(mktemp -d)
trap 'rm -rf "$carpeta"' EXIT
"$cmake" --install "$construccion" --prefix "$carpeta/antes" --component biblioteca >/dev/null
# It must not matter where it was installed first.
mv "$carpeta/antes" "$carpeta/despues"
pc=$(dirname "$(find "$carpeta/despues" -name analizador.pc)")
export PKG_CONFIG_PATH=$pc
read -ra opciones <<<"$(pkg-config --cflags --libs analizador)"
"$compilador" -std=c99 -pedantic -Werror "$ejemplos/anfitriones/anfitrion.c" "${opciones[@]}" -o "$carpeta/anfitrion"
LD_LIBRARY_PATH=$(pkg-config --variable=libdir analizador)
export LD_LIBRARY_PATH
"${@/ANFITRION/$carpeta/anfitrion}"
