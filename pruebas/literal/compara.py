#!/usr/bin/env python3
"""Runs two programs with the same arguments and fails when what they write of some deed differs.

    compara.py [--baraja N] ONE OTHER CUANTAS CARPETA ARGUMENT...

CUANTAS is how many deeds they must write of, each after a line that begins with "==== ". CARPETA holds CONFIG and TABLAS.
With --baraja the vocabularies are other ones: the entries of each section shuffled, some lost, empty, cut or copied from
another section, the counts and the sections not always right; each number gives others.
"""

import argparse
import contextlib
import difflib
import pathlib
import random
import subprocess
import sys
import tempfile

JUEGO = "cp1252"


def secciones(fichero):
    """Pairs of a section's name and its entries as they are written."""
    leidas = []
    for linea in fichero.read_text(JUEGO).splitlines():
        if linea.startswith("["):
            leidas.append((linea, []))
        elif "=" in linea and not linea.startswith((";", "NumPalabras")):
            leidas[-1][1].append(linea.split("=", 1)[1])
    return leidas


def barajada(entradas, todas, azar):
    entradas = azar.sample(entradas, len(entradas))
    for i, entrada in enumerate(entradas):
        entradas[i] = azar.choice([entrada] * 16 + ["", entrada[: len(entrada) // 2], azar.choice(todas), entrada.lower()])
    return entradas[azar.randrange(3) :]


def escribe_barajado(origen, destino, azar):
    leidas = secciones(origen)
    todas = [entrada for _, entradas in leidas for entrada in entradas]
    lineas = []
    for nombre, entradas in leidas + azar.sample(leidas, 3):  # of two equal sections the first counts
        entradas = barajada(entradas, todas, azar)
        cuenta = max(0, len(entradas) + azar.choice([0] * 8 + [-1, 3]))
        claves = [f"{i}={entrada}" for i, entrada in enumerate(entradas, 1) if azar.randrange(40)]
        lineas += [azar.choice([nombre, nombre.lower()]), *azar.sample(claves, len(claves)), f"NumPalabras={cuenta}"]
    destino.write_bytes("\r\n".join(lineas).encode(JUEGO))


@contextlib.contextmanager
def carpeta_barajada(carpeta, semilla):
    with tempfile.TemporaryDirectory() as temporal:
        otra = pathlib.Path(temporal)
        (otra / "CONFIG").mkdir()
        (otra / "TABLAS").symlink_to((carpeta / "TABLAS").resolve())
        azar = random.Random(semilla)
        for nombre in ("CASTELLANO.INI", "CATALAN.INI"):
            escribe_barajado(carpeta / "CONFIG" / nombre, otra / "CONFIG" / nombre, azar)
        yield otra


def escrituras(programa, carpeta, argumentos):
    orden = [programa, "--carpeta", carpeta, *argumentos]
    salida = subprocess.run(orden, stdout=subprocess.PIPE, check=True).stdout
    partes = ("\n" + salida.decode("utf-8")).split("\n==== ")[1:]
    return {parte.split("\n", 1)[0]: parte for parte in partes}


def compara(opciones, carpeta):
    """How many deeds differ; tells where."""
    de_uno = escrituras(opciones.uno, carpeta, opciones.argumentos)
    de_otro = escrituras(opciones.otro, carpeta, opciones.argumentos)
    if len(de_uno) != opciones.cuantas or de_uno.keys() != de_otro.keys():
        sys.exit(f"{len(de_uno)} and {len(de_otro)} deeds instead of {opciones.cuantas}")
    distintas = [nombre for nombre in de_uno if de_uno[nombre] != de_otro[nombre]]
    for nombre in distintas:
        lineas = de_uno[nombre].split("\n"), de_otro[nombre].split("\n")
        print(f"==== {nombre}", *difflib.unified_diff(*lineas, opciones.uno, opciones.otro, "", "", 2, ""), sep="\n")
    return len(distintas)


def main():
    argumentos = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    argumentos.add_argument("--baraja", type=int, metavar="N")
    argumentos.add_argument("uno")
    argumentos.add_argument("otro")
    argumentos.add_argument("cuantas", type=int)
    argumentos.add_argument("carpeta", type=pathlib.Path)
    argumentos.add_argument("argumentos", nargs=argparse.REMAINDER)
    opciones = argumentos.parse_args()
    if opciones.baraja is None:
        distintas = compara(opciones, opciones.carpeta)
    else:
        with carpeta_barajada(opciones.carpeta, opciones.baraja) as carpeta:
            distintas = compara(opciones, carpeta)
    sys.exit(f"{distintas} of {opciones.cuantas} deeds differ" if distintas else 0)


main()
