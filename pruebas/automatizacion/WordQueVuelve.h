#pragma once

#include <functional>
#include <memory>
#include <utility>

#include "pruebas/word/servidor/ObjetoServidor.h"

namespace analizador::pruebas {

// The Application object of a Word without documents. Asked for the active one it first runs `accion`, as the
// procedure of an event would that comes in while an analysis waits for Word.
[[nodiscard]] inline TPuntero<TObjetoServidor> WordQueVuelve(std::function<void()> accion) {
    constexpr int SIN_DOCUMENTO = 4248;
    TPuntero<TObjetoServidor> word(new TObjetoServidor(std::make_shared<TLibros>()));
    word->Anade(L"ActiveDocument", [accion = std::move(accion)](const TArgumentos&) -> TVariante {
        accion();
        throw TErrorDeWord{SIN_DOCUMENTO, u"This command is not available because no document is open."};
    });
    return word;
}

}  // namespace analizador::pruebas
