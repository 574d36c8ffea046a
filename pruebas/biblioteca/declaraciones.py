#!/usr/bin/env python3
"""Checks that the library shows exactly the functions of its header, and that what is said of them in the other
languages is so.

    declaraciones.py HEADER LIBRARY ANFITRIONES [--nm PROGRAM]
"""

import argparse
import pathlib
import re
import subprocess
import sys

opciones = argparse.ArgumentParser()
opciones.add_argument("cabecera", type=pathlib.Path)
opciones.add_argument("biblioteca")
opciones.add_argument("anfitriones", type=pathlib.Path)
opciones.add_argument("--nm", default="nm")
opciones = opciones.parse_args()

faltas = []


def parametros(lista):
    """How many a declaration has; Pascal joins those of one type."""
    return sum(len(grupo.split(",")) for grupo in lista.split(";")) if lista.strip() else 0


cabecera = re.sub(r"/\*.*?\*/", "", opciones.cabecera.read_text(encoding="utf-8"), flags=re.S)
funciones = {}
for nombre, lista in re.findall(r"^ANALIZADOR_API [^;(]*?\b(analizador_\w+)\(([^)]*)\);", cabecera, flags=re.M):
    funciones[nombre] = 0 if lista.strip() == "void" else len(lista.split(","))
constantes = {n: int(v) for n, v in re.findall(r"\b(ANALIZADOR_[A-Z_]+) = (\d+)", cabecera)}
constantes["ANALIZADOR_VERSION_INTERFAZ"] = int(re.search(r"ANALIZADOR_VERSION_INTERFAZ (\d+)", cabecera)[1])
if len(funciones) < 20 or len(constantes) < 14:
    sys.exit(f"only {len(funciones)} functions and {len(constantes)} constants read in {opciones.cabecera}")

salida = subprocess.run(
    [opciones.nm, "-D", "--defined-only", "--format=posix", opciones.biblioteca],
    stdout=subprocess.PIPE, text=True, check=True).stdout
visibles = {linea.split()[0].split("@")[0] for linea in salida.splitlines()}
if visibles != set(funciones):
    faltas.append(f"exported and not declared: {sorted(visibles - set(funciones))}")
    faltas.append(f"declared and not exported: {sorted(set(funciones) - visibles)}")


def comprueba(fichero, declaradas, dichas, minimo):
    if len(declaradas) < minimo:
        faltas.append(f"{fichero}: only {len(declaradas)} functions read")
    for nombre, cuantos in declaradas.items():
        if funciones.get(nombre) != cuantos:
            faltas.append(f"{fichero}: {nombre} has {cuantos} parameters, the header says {funciones.get(nombre)}")
    for nombre, valor in dichas.items():
        if constantes.get(nombre) != valor:
            faltas.append(f"{fichero}: {nombre} is {valor}, the header says {constantes.get(nombre)}")


def lee(nombre):
    return (opciones.anfitriones / nombre).read_text(encoding="utf-8")


pascal = lee("analizador.pas")
comprueba(
    "analizador.pas",
    {n: parametros(p) for n, p in
     re.findall(r"^(?:function|procedure) (analizador_\w+)(?:\(([^)]*)\))?[^;]*; cdecl;", pascal, flags=re.M)},
    {n: int(v) for n, v in re.findall(r"^  (ANALIZADOR_[A-Z_]+) = (\d+);", pascal, flags=re.M)},
    12)

cs = lee("Analizador.cs")
comprueba(
    "Analizador.cs",
    {n: len(p.split(",")) if p else 0 for n, p in re.findall(r"static extern \w+ (analizador_\w+)\(([^)]*)\);", cs)},
    {"ANALIZADOR_VERSION_INTERFAZ": int(re.search(r"VersionInterfaz = (\d+)", cs)[1]),
     **{"ANALIZADOR_" + re.sub(r"(?<=[a-z])(?=[A-Z])", "_", n).upper(): int(v)
        for n, v in re.findall(r"\b(Con[A-Z]\w+|Forzar) = (\d+)", cs)}},
    11)

sys.path.insert(0, str(opciones.anfitriones))
sys.dont_write_bytecode = True
import analizador  # noqa: E402

comprueba(
    "analizador.py",
    {nombre: len(argumentos) for nombre, (_, argumentos) in analizador._FUNCIONES.items()},
    {"ANALIZADOR_" + n: getattr(analizador, n) for n in ("VERSION_INTERFAZ", "CON_REVISION", "CON_ORIGEN", "FORZAR")},
    14)

print("\n".join(faltas) or f"{len(funciones)} functions, {len(constantes)} constants")
sys.exit(1 if faltas else 0)
