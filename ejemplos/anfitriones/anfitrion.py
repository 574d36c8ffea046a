#!/usr/bin/env python3
"""A host program in Python: prints the report of a deed, its language and its amounts, or the JSON of its facts.

    ANALIZADOR_BIBLIOTECA=/path/libanalizador.so ./anfitrion.py [--json] VOCABULARIES TABLES DEED.docx
"""

import sys

import analizador


def informe(sesion):
    cuantias = [sesion.texto(f"/Cuantias/{i}") for i in range(sesion.cuenta("/Cuantias"))]
    return (
        sesion.texto("/Pizarra").replace("\r", "")
        + f"\nIDIOMA       : {sesion.texto('/idioma').upper()}"
        + "\nCUANTIAS     : "
        + "\n               ".join(cuantias)
        + "\n"
    )


def main():
    argumentos = sys.argv[1:]
    con_json = argumentos[:1] == ["--json"]
    if len(argumentos) != 3 + con_json:
        sys.exit("anfitrion.py [--json] VOCABULARIES TABLES DEED")
    vocabularios, tablas, escritura = argumentos[con_json:]
    sys.stdout.reconfigure(encoding="utf-8", newline="\n")
    try:
        with analizador.Sesion(vocabularios, tablas) as sesion:
            sesion.analiza_fichero(escritura)
            print(sesion.texto("") + "\n" if con_json else informe(sesion), end="")
    except analizador.ErrorAnalizador as error:
        sys.exit(str(error))


if __name__ == "__main__":
    main()
