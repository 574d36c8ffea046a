#pragma once

// What Word answers when it does not do what it is asked.

#include <windows.h>
// The others need the first.
#include <oleauto.h>

#include <string_view>

#include "plataforma/VrkWord.h"

namespace analizador {

// Word's own numbers of errors, in the low half of its codes.
inline constexpr int FALLO_SIN_DOCUMENTO = 4248;
inline constexpr int FALLO_OBJETO_BORRADO = 5825;
inline constexpr int FALLO_NO_EXISTE = 5941;

// A call that failed. The text says what was asked, never with what, and what Word says of it.
class TFalloWord : public ErrorWord {
  public:
    TFalloWord(const std::string& texto, HRESULT codigo) : ErrorWord(texto), FCodigo(codigo) {}

    // True when it is Word's own error of this number.
    [[nodiscard]] bool Es(int numero) const {
        return HRESULT_FACILITY(FCodigo) == FACILITY_CONTROL && HRESULT_CODE(FCodigo) == numero;
    }
    // True when this Word has no such member.
    [[nodiscard]] bool EsMiembroDesconocido() const {
        return FCodigo == DISP_E_UNKNOWNNAME || FCodigo == DISP_E_MEMBERNOTFOUND;
    }

  private:
    HRESULT FCodigo;
};

// Whether Word was too busy to begin with the call, so that it can be made again.
[[nodiscard]] bool EstaOcupado(HRESULT resultado);

// Throws the TFalloWord of a failed call. `pedido`: the class and the member, "Find.Execute". `detalle`: what
// Word filled in; its texts are freed.
[[noreturn]] void LanzaFallo(std::string_view pedido, HRESULT resultado, EXCEPINFO& detalle);

}  // namespace analizador
