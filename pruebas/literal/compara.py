#!/usr/bin/env python3
"""Runs two programs with the same arguments and fails when what they write of some deed differs.

    compara.py ONE OTHER CUANTAS ARGUMENT...

CUANTAS is how many deeds they must write of, each after a line that begins with "==== ".
"""

import difflib
import subprocess
import sys


def escrituras(programa, argumentos):
    salida = subprocess.run([programa, *argumentos], stdout=subprocess.PIPE, check=True).stdout
    partes = ("\n" + salida.decode("utf-8")).split("\n==== ")[1:]
    return {parte.split("\n", 1)[0]: parte for parte in partes}


def main():
    uno, otro, cuantas, *argumentos = sys.argv[1:]
    de_uno, de_otro = escrituras(uno, argumentos), escrituras(otro, argumentos)
    if len(de_uno) != int(cuantas) or de_uno.keys() != de_otro.keys():
        sys.exit(f"{len(de_uno)} and {len(de_otro)} deeds instead of {cuantas}")
    distintas = [nombre for nombre in de_uno if de_uno[nombre] != de_otro[nombre]]
    for nombre in distintas:
        lineas = difflib.unified_diff(de_uno[nombre].split("\n"), de_otro[nombre].split("\n"), uno, otro, "", "", 2, "")
        print(f"==== {nombre}", *lineas, sep="\n")
    sys.exit(f"{len(distintas)} of {cuantas} deeds differ" if distintas else 0)


main()
