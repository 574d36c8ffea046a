#!/usr/bin/env python3
"""The Python host's session: a text in memory, failures as exceptions, several sessions.

    sesion.py ANFITRIONES EJEMPLOS VOCABULARIES TABLES
"""

import _ctypes
import pathlib
import sys
import unittest

anfitriones, ejemplos, vocabularios, tablas = map(pathlib.Path, sys.argv[1:])
sys.dont_write_bytecode = True
sys.path.insert(0, str(anfitriones))
import analizador  # noqa: E402


class Sesion(unittest.TestCase):
    def test_un_texto_en_memoria(self):
        texto = (ejemplos / "testamento.txt").read_text(encoding="utf-8")
        with analizador.Sesion(vocabularios, tablas) as sesion:
            self.assertIsNone(sesion.hechos())
            sesion.analiza_texto(texto, {"EMPLEADO": "ÑANDÚ"}, ["FINCA_7"])
            hechos = sesion.hechos()
            self.assertEqual(hechos["Empleado"], "ÑANDÚ")
            self.assertEqual(hechos["Fincas"], ["7"])
            sesion.analiza_fichero(ejemplos / "testamento.docx")
            self.assertEqual(sesion.hechos()["Otorgantes"], hechos["Otorgantes"])
            self.assertEqual(sesion.cuenta("/Otorgantes"), len(hechos["Otorgantes"]))

    def test_los_fallos_son_excepciones_con_su_motivo(self):
        with analizador.Sesion(vocabularios, tablas) as sesion:
            with self.assertRaises(analizador.ErrorAnalizador) as fallo:
                sesion.analiza_fichero(ejemplos / "año.docx")
            self.assertEqual(fallo.exception.codigo, 5)
            self.assertEqual(str(fallo.exception), f"{ejemplos / 'año.docx'}: el fichero no existe")
            with self.assertRaises(analizador.ErrorAnalizador) as fallo:
                analizador.Sesion(ejemplos / "no", tablas)
            self.assertEqual(fallo.exception.codigo, 4)

    def test_dos_sesiones(self):
        with analizador.Sesion(vocabularios, tablas) as una, analizador.Sesion() as otra:
            una.analiza_fichero(ejemplos / "testament.docx")
            otra.analiza_fichero(ejemplos / "testamento.docx")
            self.assertEqual((una.texto("/idioma"), otra.texto("/idioma")), ("catalan", "castellano"))

    def test_cargada_de_nuevo_sigue_siendo_la_misma(self):
        with analizador.Sesion(vocabularios, tablas) as una:
            otra = analizador.carga()
            self.assertEqual(otra.analizador_interfaz(), analizador.VERSION_INTERFAZ)
            with self.assertRaises(analizador.ErrorAnalizador) as fallo:
                analizador.Sesion(tablas, tablas)
            self.assertEqual(fallo.exception.codigo, 4)
            una.analiza_fichero(ejemplos / "testament.docx")

    def test_descargada_se_puede_cargar_de_nuevo(self):
        for _ in range(3):
            sesion = analizador.Sesion(vocabularios, tablas)
            sesion.analiza_fichero(ejemplos / "testament.docx")
            self.assertEqual(sesion.texto("/idioma"), "catalan")
            sesion.cierra()
            _ctypes.dlclose(sesion._b._handle)


unittest.main(argv=sys.argv[:1])
