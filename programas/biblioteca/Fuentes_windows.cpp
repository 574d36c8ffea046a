#include <windows.h>

#include "adaptadores/word/AplicacionWord.h"
#include "plataforma/Ansi.h"
#include "programas/biblioteca/ErrorInterfaz.h"
#include "programas/biblioteca/Fuentes.h"
#include "programas/biblioteca/Modulo_windows.h"
#include "programas/biblioteca/Ventanas.h"
#include "programas/biblioteca/analizador.h"

namespace analizador {

namespace {

std::intptr_t VentanaDe(TAplicacionWord& word) {
    try {
        return word.Ventana();
    } catch (const ErrorWord& error) {
        throw ErrorInterfaz(ANALIZADOR_NO_ANALIZADA, Utf8DeAnsi(error.what()));
    }
}

}  // namespace

std::unique_ptr<TAnalisisEscritura> AnalizaWord(void* aplicacion, bool revisa) {
    auto word = aplicacion == nullptr
                    ? std::make_unique<TAplicacionWord>()
                    : std::make_unique<TAplicacionWord>(*static_cast<IDispatch*>(aplicacion));
    const auto ventanas = revisa ? AbreVentanas(VentanaDe(*word)) : nullptr;
    return std::make_unique<TAnalisisEscritura>(std::move(word), revisa);
}

std::intptr_t VentanaDelAnfitrion() {
    return reinterpret_cast<std::intptr_t>(GetActiveWindow());
}

std::optional<std::filesystem::path> CarpetaDeLaBiblioteca() {
    return RutaModulo().parent_path();
}

}  // namespace analizador
