#include "adaptadores/word/FalloWord.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <string>
#include <utility>

#include "plataforma/Ansi.h"

namespace analizador {

namespace {

constexpr bool EsDe(HRESULT resultado, std::initializer_list<HRESULT> codigos) {
    return std::find(codigos.begin(), codigos.end(), resultado) != codigos.end();
}

bool EstaCerrado(HRESULT resultado) {
    return EsDe(resultado,
                {RPC_E_DISCONNECTED, CO_E_OBJNOTCONNECTED, RPC_E_SERVER_DIED, RPC_E_SERVER_DIED_DNE,
                 HRESULT_FROM_WIN32(RPC_S_SERVER_UNAVAILABLE), HRESULT_FROM_WIN32(RPC_S_CALL_FAILED),
                 HRESULT_FROM_WIN32(RPC_S_CALL_FAILED_DNE)});
}

// Takes over the text; in one line.
std::string TextoDe(BSTR& texto) {
    const BSTR propio = std::exchange(texto, nullptr);
    std::string linea = AnsiDeUtf16(std::u16string(propio, propio + SysStringLen(propio)));
    SysFreeString(propio);
    std::replace_if(
        linea.begin(), linea.end(), [](char c) { return c == '\r' || c == '\n'; }, ' ');
    return linea;
}

std::string Hexadecimal(HRESULT codigo) {
    std::array<char, 8> cifras{};
    const auto fin = std::to_chars(cifras.begin(), cifras.end(), static_cast<std::uint32_t>(codigo), 16).ptr;
    return "0x" + std::string(cifras.begin(), fin);
}

std::string_view Causa(HRESULT codigo) {
    if (EstaCerrado(codigo)) return "Word se ha cerrado";
    if (EstaOcupado(codigo))
        return "Word está ocupado: cierre sus cuadros de diálogo y repita el análisis"_ansi;
    if (TFalloWord({}, codigo).Es(FALLO_OBJETO_BORRADO))
        return "El documento ya no está abierto en Word"_ansi;
    return "Word no ha podido hacer lo que se le pide";
}

}  // namespace

bool EstaOcupado(HRESULT resultado) {
    return EsDe(resultado, {RPC_E_CALL_REJECTED, RPC_E_SERVERCALL_RETRYLATER});
}

void LanzaFallo(std::string_view pedido, HRESULT resultado, EXCEPINFO& detalle) {
    if (resultado == DISP_E_EXCEPTION && detalle.pfnDeferredFillIn != nullptr)
        detalle.pfnDeferredFillIn(&detalle);
    const std::string fuente = TextoDe(detalle.bstrSource);
    const std::string descripcion = TextoDe(detalle.bstrDescription);
    SysFreeString(std::exchange(detalle.bstrHelpFile, nullptr));
    const HRESULT codigo = resultado == DISP_E_EXCEPTION && detalle.scode != 0 ? detalle.scode : resultado;

    std::string texto(Causa(codigo));
    texto.append(" (").append(pedido).append(", ").append(Hexadecimal(codigo)).append(")");
    if (!descripcion.empty()) texto.append(": ").append(descripcion);
    if (!fuente.empty()) texto.append(" [").append(fuente).append("]");
    throw TFalloWord(texto, codigo);
}

}  // namespace analizador
