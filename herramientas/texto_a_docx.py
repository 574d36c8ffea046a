#!/usr/bin/env python3
"""Makes a word processor document of each text given: one paragraph a line, UTF-8.

    herramientas/texto_a_docx.py ejemplos/compraventa.txt ...

The document is written beside its text, as .docx, and is the same on every run. Its text is cut into runs at odd
places, as the word processors leave it after years of editing, and a page header stands outside the main text.

A file documentos.ini beside the texts says what else a document holds, in a section named after it:

    [compraventa]
    variable.EMPLEADO = MGR               a document variable
    marcador.FINCA_1 = URBANA.- CASA      a bookmark over the one paragraph that begins so
    encabezado = NOTARÍA DE ...           the page header

With --comprueba nothing is written: the exit code is 1 when a document differs from what would be written.
"""

import argparse
import configparser
import pathlib
import sys
import zipfile
import zlib
from xml.sax.saxutils import escape, quoteattr

ESPACIO_W = "http://schemas.openxmlformats.org/wordprocessingml/2006/main"
RELACIONES = "http://schemas.openxmlformats.org/officeDocument/2006/relationships"
DECLARACION = '<?xml version="1.0" encoding="UTF-8" standalone="yes"?>\n'
TIPO = "application/vnd.openxmlformats-officedocument.wordprocessingml."

TIPOS = (
    '<Types xmlns="http://schemas.openxmlformats.org/package/2006/content-types">'
    '<Default Extension="rels" ContentType="application/vnd.openxmlformats-package.relationships+xml"/>'
    '<Default Extension="xml" ContentType="application/xml"/>'
    f'<Override PartName="/word/document.xml" ContentType="{TIPO}document.main+xml"/>'
    f'<Override PartName="/word/styles.xml" ContentType="{TIPO}styles+xml"/>'
    f'<Override PartName="/word/settings.xml" ContentType="{TIPO}settings+xml"/>'
    f'<Override PartName="/word/header1.xml" ContentType="{TIPO}header+xml"/>'
    "</Types>"
)
RELACIONES_PAQUETE = (
    '<Relationships xmlns="http://schemas.openxmlformats.org/package/2006/relationships">'
    f'<Relationship Id="rId1" Type="{RELACIONES}/officeDocument" Target="word/document.xml"/>'
    "</Relationships>"
)
RELACIONES_DOCUMENTO = (
    '<Relationships xmlns="http://schemas.openxmlformats.org/package/2006/relationships">'
    f'<Relationship Id="rId1" Type="{RELACIONES}/styles" Target="styles.xml"/>'
    f'<Relationship Id="rId2" Type="{RELACIONES}/settings" Target="settings.xml"/>'
    f'<Relationship Id="rId3" Type="{RELACIONES}/header" Target="header1.xml"/>'
    "</Relationships>"
)
ESTILOS = (
    f'<w:styles xmlns:w="{ESPACIO_W}"><w:docDefaults><w:rPrDefault><w:rPr>'
    '<w:rFonts w:ascii="Courier New" w:hAnsi="Courier New" w:cs="Courier New"/><w:sz w:val="24"/>'
    "</w:rPr></w:rPrDefault></w:docDefaults>"
    '<w:style w:type="paragraph" w:default="1" w:styleId="Normal"><w:name w:val="Normal"/>'
    '<w:pPr><w:spacing w:line="480" w:lineRule="auto"/><w:jc w:val="both"/></w:pPr></w:style></w:styles>'
)


def tramos(texto):
    """The text cut into runs, some of one letter; the same cuts for the same text."""
    azar = zlib.crc32(texto.encode("utf-8"))
    while texto:
        azar = (azar * 1103515245 + 12345) % 2**31
        largo = 1 + (azar >> 16) % 90
        yield texto[:largo], (azar >> 8) % 5
        texto = texto[largo:]


def tramo_xml(texto, variante):
    propiedades = {0: "<w:rPr><w:b/></w:rPr>", 1: '<w:rPr><w:lang w:val="es-ES"/></w:rPr>'}.get(variante, "")
    trozos = [f'<w:t xml:space="preserve">{escape(trozo)}</w:t>' if trozo else "" for trozo in texto.split("\t")]
    ruido = '<w:proofErr w:type="spellStart"/>' if variante == 2 else ""
    return f"{ruido}<w:r>{propiedades}{'<w:tab/>'.join(trozos)}</w:r>"


def parrafo_xml(texto, numero, marcadores):
    """`marcadores`: (id, name) of the bookmarks over this paragraph."""
    principio = "".join(f'<w:bookmarkStart w:id="{id_}" w:name={quoteattr(nombre)}/>' for id_, nombre in marcadores)
    fin = "".join(f'<w:bookmarkEnd w:id="{id_}"/>' for id_, _ in marcadores)
    cuerpo = "".join(tramo_xml(tramo, variante) for tramo, variante in tramos(texto))
    return f'<w:p w:rsidR="{0x00A10000 + numero:08X}">{principio}{cuerpo}{fin}</w:p>'


def busca_parrafo(parrafos, comienzo):
    encontrados = [i for i, parrafo in enumerate(parrafos) if parrafo.startswith(comienzo)]
    if len(encontrados) != 1:
        raise ValueError(f"{len(encontrados)} paragraphs begin with: {comienzo}")
    return encontrados[0]


def documento_xml(parrafos, marcadores):
    por_parrafo = {}
    for id_, (nombre, comienzo) in enumerate(marcadores):
        por_parrafo.setdefault(busca_parrafo(parrafos, comienzo), []).append((id_, nombre))
    cuerpo = "".join(parrafo_xml(texto, i, por_parrafo.get(i, [])) for i, texto in enumerate(parrafos))
    return (
        f'<w:document xmlns:w="{ESPACIO_W}" xmlns:r="{RELACIONES}"><w:body>{cuerpo}'
        '<w:sectPr><w:headerReference w:type="default" r:id="rId3"/><w:pgSz w:w="11906" w:h="16838"/></w:sectPr>'
        "</w:body></w:document>"
    )


def ajustes_xml(variables):
    lista = "".join(f"<w:docVar w:name={quoteattr(n)} w:val={quoteattr(v)}/>" for n, v in variables)
    return f'<w:settings xmlns:w="{ESPACIO_W}">{f"<w:docVars>{lista}</w:docVars>" if lista else ""}</w:settings>'


def encabezado_xml(texto):
    return f'<w:hdr xmlns:w="{ESPACIO_W}"><w:p><w:r><w:t>{escape(texto)}</w:t></w:r></w:p></w:hdr>'


def con_prefijo(seccion, prefijo):
    return [(clave[len(prefijo) :], valor) for clave, valor in seccion.items() if clave.startswith(prefijo)]


def partes(parrafos, seccion):
    """Each part of the package with its content, in the package's order."""
    return {
        "[Content_Types].xml": TIPOS,
        "_rels/.rels": RELACIONES_PAQUETE,
        "word/document.xml": documento_xml(parrafos, con_prefijo(seccion, "marcador.")),
        "word/_rels/document.xml.rels": RELACIONES_DOCUMENTO,
        "word/styles.xml": ESTILOS,
        "word/settings.xml": ajustes_xml(con_prefijo(seccion, "variable.")),
        "word/header1.xml": encabezado_xml(seccion.get("encabezado", "")),
    }


def lee_extras(texto):
    extras = configparser.ConfigParser(interpolation=None, delimiters=("=",))
    extras.optionxform = str
    extras.read(texto.with_name("documentos.ini"), encoding="utf-8")
    return dict(extras[texto.stem]) if extras.has_section(texto.stem) else {}


def lee_parrafos(texto):
    contenido = texto.read_bytes().decode("utf-8")
    if not contenido.endswith("\n") or "\r" in contenido:
        raise ValueError("every paragraph must end in a line feed alone")
    return contenido[:-1].split("\n")


def escribe(docx, contenido):
    with zipfile.ZipFile(docx, "w") as paquete:
        for nombre, xml in contenido.items():
            entrada = zipfile.ZipInfo(nombre, date_time=(1980, 1, 1, 0, 0, 0))
            entrada.compress_type = zipfile.ZIP_DEFLATED
            entrada.external_attr = 0o644 << 16
            paquete.writestr(entrada, DECLARACION + xml)


def lee(docx):
    with zipfile.ZipFile(docx) as paquete:
        return {nombre: paquete.read(nombre).decode("utf-8") for nombre in paquete.namelist()}


def es_igual(docx, contenido):
    # Not byte by byte: another compressor may pack the same parts otherwise.
    return docx.exists() and lee(docx) == {nombre: DECLARACION + xml for nombre, xml in contenido.items()}


def main():
    argumentos = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    argumentos.add_argument("textos", nargs="+", type=pathlib.Path)
    argumentos.add_argument("--comprueba", action="store_true", help="only tell whether the documents are up to date")
    opciones = argumentos.parse_args()
    codigo = 0
    for texto in opciones.textos:
        docx = texto.with_suffix(".docx")
        try:
            contenido = partes(lee_parrafos(texto), lee_extras(texto))
        except (OSError, ValueError, configparser.Error) as error:
            sys.exit(f"{texto}: {error}")
        if not es_igual(docx, contenido):
            if opciones.comprueba:
                print(f"{docx}: differs from its text: run herramientas/texto_a_docx.py {texto}", file=sys.stderr)
                codigo = 1
            else:
                escribe(docx, contenido)
    sys.exit(codigo)


if __name__ == "__main__":
    main()
