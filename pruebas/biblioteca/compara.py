#!/usr/bin/env python3
"""Runs a host program on an example and compares what it prints with the reviewed result, byte for byte.

    compara.py EJEMPLOS NAME.txt|NAME.json PROGRAM ARGUMENT...

It runs in the folder EJEMPLOS, with --json before the arguments for a .json (indented before it is compared) and
NAME.docx after them.
"""

import difflib
import json
import pathlib
import subprocess
import sys

carpeta, resultado, programa, *argumentos = sys.argv[1:]
nombre = pathlib.Path(resultado)
es_json = nombre.suffix == ".json"

# A script is run by the Python that runs this one.
orden = [sys.executable, programa] if programa.endswith(".py") else [programa]
orden += (["--json"] if es_json else []) + argumentos + [nombre.stem + ".docx"]
salida = subprocess.run(orden, cwd=carpeta, stdout=subprocess.PIPE, check=True).stdout.decode("utf-8")
if es_json:
    salida = json.dumps(json.loads(salida), indent=4, ensure_ascii=False) + "\n"

esperado = (pathlib.Path(carpeta) / "resultados" / nombre).read_bytes().decode("utf-8")
if salida != esperado:
    sys.stdout.writelines(difflib.unified_diff(esperado.splitlines(True), salida.splitlines(True), resultado, "ahora"))
    sys.exit(1)
