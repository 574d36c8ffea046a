#include <iostream>

#include "adaptadores/dbase/ProveedorDbase.h"
#include "adaptadores/docx/FicheroDocx.h"
#include "adaptadores/memoria/DocumentoMemoria.h"
#include "analizador/ClaseAnalizadorAbierto.h"
#include "analizador/ConstAnalizador.h"
#include "plataforma/Ansi.h"

int main(int argc, char** argv) {
    using namespace analizador;
    if (argc != 3) return 2;                        // the host's folder, a deed
    PonCarpetaAplicacion(argv[1]);                  // its CONFIG holds the vocabularies
    TProveedorDbase tablas(Rutas().PATH_APLICACION / "TABLAS");
    const InstalaTablas conTablas(tablas);          // installed once, for the whole program
    const TFicheroDocx escritura(argv[2]);
    TAplicacionMemoria word(std::make_unique<TDocumentoMemoria>(escritura.Contenido()));
    TClassAnalizadorAbierto sesion(nullptr, &word);
    const bool aceptado = sesion.Analiza(true);     // true: do not ask for the notary
    std::cout << Utf8DeAnsi(sesion.Pizarra) << (aceptado ? "accepted\n" : "not reviewed\n");
}
