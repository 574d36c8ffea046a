#!/usr/bin/env python3
"""Makes a street map of made-up streets in the published format, to measure an import.

callejero_de_prueba.py CARPETA [TRAMOS]    (1500000 stretches unless told)
"""
import random
import sys
from pathlib import Path

TIPOS = ["CALLE"] * 14 + ["PLAZA", "AVDA", "CMNO", "URB", "TRVA", "PASEO"]
ARTICULOS = ["", "", "", "", "LA ", "LOS ", "LAS ", "EL "]


def palabra(azar):
    return "".join(azar.choice("BCDFGLMNPRSTV") + azar.choice("AEIOU") for _ in range(azar.randint(2, 4)))


def control(fecha="20251231"):
    return " " * 3 + fecha + " "


def main():
    carpeta = Path(sys.argv[1])
    total = int(sys.argv[2]) if len(sys.argv) > 2 else 1_500_000
    carpeta.mkdir(parents=True, exist_ok=True)
    azar = random.Random(1)
    nombres = [azar.choice(ARTICULOS) + palabra(azar) + " " + palabra(azar) for _ in range(120_000)]
    municipios = [(p, m) for p in range(1, 53) for m in range(1, 157)]

    def fichero(nombre):
        return open(carpeta / f"{nombre}.D251231.G260303", "w", encoding="latin-1", newline="\r\n")

    with fichero("UP") as up, fichero("VIAS") as vias, fichero("PSEU"), fichero("TRAM") as tramos:
        hechos = 0
        for i, (p, m) in enumerate(municipios):
            codigo = f"{p:02}{m:03}"
            up.write(codigo + "0000000" + control() + " " * 70 + f"{palabra(azar)} {i}".ljust(50) + " " * 460 + "\n")
            codigos = [p * 1000 + azar.randint(1, 999) for _ in range(1 if azar.random() < 0.3 else 20)]
            quedan = (total - hechos) // (len(municipios) - i)
            via = 0
            while quedan > 0:
                via += 1
                nombre = azar.choice(nombres)
                cv = f"{via:05}"
                vias.write(codigo + cv + nombre[:25].ljust(25) + control() + cv + azar.choice(TIPOS).ljust(5)
                           + nombre.ljust(50) + nombre[:25].ljust(25) + "\n")
                for lado in (1, 2):
                    desde = lado
                    for _ in range(azar.randint(1, 2)):
                        hasta = desde + 2 * azar.randint(1, 30)
                        cp = f"{azar.choice(codigos):05}"
                        clave = f"{cp}{lado}{desde:04} {hasta:04} "
                        seccion = "01001" + " " * 3
                        tramos.write(codigo + seccion + "0000101" + cv + "00000" + " " * 12 + clave + control() + seccion
                                     + "0000101" + " " * 75 + cv + nombre[:25].ljust(25) + "00000" + " " * 62 + clave + "\n")
                        desde = hasta + 2
                        quedan -= 1
                        hechos += 1
        print(hechos, "tramos")


if __name__ == "__main__":
    main()
