"""The analysis of notarial deeds for Python: ctypes over the shared library, nothing to install.

    with Sesion(vocabularios="CONFIG", tablas="TABLAS") as sesion:
        sesion.analiza_fichero("deed.docx")
        print(sesion.texto("/Cabecera/Notario"), sesion.cuenta("/Otorgantes"))
        hechos = sesion.hechos()  # everything, as dictionaries and lists
"""

import ctypes
import ctypes.util
import json
import os

VERSION_INTERFAZ = 2
CON_REVISION, CON_ORIGEN, FORZAR = 1, 2, 4

_TEXTO, _SESION = ctypes.c_char_p, ctypes.c_void_p
_FUNCIONES = {
    "analizador_version": (_TEXTO, []),
    "analizador_interfaz": (ctypes.c_int, []),
    "analizador_comprueba": (ctypes.c_int, [ctypes.c_int]),
    "analizador_abre": (ctypes.c_int, [ctypes.c_int, _TEXTO, _TEXTO, ctypes.POINTER(_SESION)]),
    "analizador_cierra": (None, [_SESION]),
    "analizador_error": (_TEXTO, [_SESION]),
    "analizador_analiza_fichero": (ctypes.c_int, [_SESION, _TEXTO, ctypes.c_uint]),
    "analizador_analiza_texto": (ctypes.c_int, [_SESION, _TEXTO, ctypes.c_uint]),
    "analizador_analiza_word": (ctypes.c_int, [_SESION, ctypes.c_void_p, ctypes.c_uint]),
    "analizador_pon_variable": (ctypes.c_int, [_SESION, _TEXTO, _TEXTO]),
    "analizador_pon_marcador": (ctypes.c_int, [_SESION, _TEXTO]),
    "analizador_texto": (_TEXTO, [_SESION, _TEXTO]),
    "analizador_cuenta": (ctypes.c_int, [_SESION, _TEXTO]),
    "analizador_aceptada": (ctypes.c_int, [_SESION]),
    "analizador_guarda": (ctypes.c_int, [_SESION, _TEXTO, ctypes.c_uint]),
}


class ErrorAnalizador(Exception):
    """A call that failed: `codigo` is the library's, the text its reason."""

    def __init__(self, codigo, motivo):
        super().__init__(motivo)
        self.codigo = codigo


def carga(fichero=None):
    """The library: the file given, else that of the environment's ANALIZADOR_BIBLIOTECA, else the system's."""
    nombre = fichero or os.environ.get("ANALIZADOR_BIBLIOTECA") or ctypes.util.find_library("analizador")
    biblioteca = ctypes.CDLL(nombre or "analizador")
    for funcion, (resultado, argumentos) in _FUNCIONES.items():
        getattr(biblioteca, funcion).restype = resultado
        getattr(biblioteca, funcion).argtypes = argumentos
    return biblioteca


def _utf8(texto):
    return None if texto is None else os.fspath(texto).encode("utf-8")


class Sesion:
    def __init__(self, vocabularios=None, tablas=None, biblioteca=None):
        self._sesion = None
        self._b = carga(biblioteca)
        sesion = _SESION()
        codigo = self._b.analizador_abre(VERSION_INTERFAZ, _utf8(vocabularios), _utf8(tablas), ctypes.byref(sesion))
        self._comprueba(codigo)
        self._sesion = sesion

    def _comprueba(self, codigo):
        if codigo != 0:
            raise ErrorAnalizador(codigo, self._b.analizador_error(self._sesion).decode("utf-8"))

    def cierra(self):
        self._b.analizador_cierra(self._sesion)
        self._sesion = None

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.cierra()

    def analiza_fichero(self, fichero, opciones=0):
        self._comprueba(self._b.analizador_analiza_fichero(self._sesion, _utf8(fichero), opciones))

    def analiza_texto(self, texto, variables=None, marcadores=(), opciones=0):
        for nombre, valor in (variables or {}).items():
            self._comprueba(self._b.analizador_pon_variable(self._sesion, _utf8(nombre), _utf8(valor)))
        for nombre in marcadores:
            self._comprueba(self._b.analizador_pon_marcador(self._sesion, _utf8(nombre)))
        self._comprueba(self._b.analizador_analiza_texto(self._sesion, _utf8(texto), opciones))

    def analiza_word(self, opciones=0):
        """Windows: the deed that is active in the Word that is running."""
        self._comprueba(self._b.analizador_analiza_word(self._sesion, None, opciones))

    def texto(self, donde):
        """The fact at a JSON pointer; None when there is none."""
        texto = self._b.analizador_texto(self._sesion, _utf8(donde))
        return None if texto is None else texto.decode("utf-8")

    def cuenta(self, donde):
        """The elements of a list; -1 when there is none."""
        return self._b.analizador_cuenta(self._sesion, _utf8(donde))

    def hechos(self):
        """All the facts; None before the first analysis."""
        texto = self.texto("")
        return None if texto is None else json.loads(texto)

    def guarda(self, destino=None, opciones=0):
        self._comprueba(self._b.analizador_guarda(self._sesion, _utf8(destino), opciones))
