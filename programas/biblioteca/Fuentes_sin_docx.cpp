#include "plataforma/Rficheros.h"
#include "programas/biblioteca/ErrorInterfaz.h"
#include "programas/biblioteca/Fuentes.h"
#include "programas/biblioteca/analizador.h"

namespace analizador {

namespace {

[[noreturn]] void RechazaDocx(const std::filesystem::path& fichero) {
    throw ErrorInterfaz(ANALIZADOR_NO_ANALIZADA,
                        Utf8DeRuta(fichero) + ": esta biblioteca no lee ficheros .docx");
}

}  // namespace

std::unique_ptr<TAnalisisEscritura> AnalizaDocx(const std::filesystem::path& fichero, bool) {
    RechazaDocx(fichero);
}

void GuardaDocx(TAnalisisEscritura&, const std::filesystem::path& destino, bool) {
    RechazaDocx(destino);
}

}  // namespace analizador
