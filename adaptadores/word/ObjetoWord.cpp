#include "adaptadores/word/ObjetoWord.h"

#include <algorithm>
#include <chrono>
#include <thread>
#include <vector>

#include "adaptadores/word/FalloWord.h"
#include "plataforma/Ansi.h"

namespace analizador {

namespace {

// Makes the call until Word is not too busy to take it or patience ends.
template <class TLlamada>
HRESULT Insiste(std::chrono::milliseconds paciencia, TLlamada llamada) {
    constexpr std::chrono::milliseconds TURNO(100);
    HRESULT resultado = llamada();
    for (auto espera = TURNO; EstaOcupado(resultado) && espera <= paciencia; espera += TURNO) {
        std::this_thread::sleep_for(TURNO);
        resultado = llamada();
    }
    return resultado;
}

}  // namespace

TVariante TObjetoWord::Invoca(std::string_view miembro, int como,
                              std::span<const TVariante> argumentos) const {
    const DISPID numero = Numero(miembro);
    std::vector<VARIANT> alReves(argumentos.size());  // borrowed, not copied
    std::transform(argumentos.rbegin(), argumentos.rend(), alReves.begin(),
                   [](const TVariante& argumento) { return argumento.Valor(); });
    DISPID valorNuevo = DISPID_PROPERTYPUT;
    const bool pone = como == DISPATCH_PROPERTYPUT;
    DISPPARAMS parametros = {alReves.data(), pone ? &valorNuevo : nullptr, static_cast<UINT>(alReves.size()),
                             pone ? 1U : 0U};
    TVariante resultado;
    EXCEPINFO detalle{};
    const HRESULT codigo = Insiste(FConexion->Paciencia, [&] {
        return FObjeto->Invoke(numero, IID_NULL, LOCALE_USER_DEFAULT, static_cast<WORD>(como), &parametros,
                               pone ? nullptr : resultado.Recibe(), &detalle, nullptr);
    });
    if (FAILED(codigo)) LanzaFallo(Pedido(miembro), codigo, detalle);
    return resultado;
}

DISPID TObjetoWord::Numero(std::string_view miembro) const {
    const auto clave = std::pair(std::string(FClase), std::string(miembro));
    const auto sabido = FConexion->Miembros.find(clave);
    if (sabido != FConexion->Miembros.end()) return sabido->second;
    std::wstring nombre(miembro.begin(), miembro.end());
    LPOLESTR puntero = nombre.data();
    DISPID numero = DISPID_UNKNOWN;
    const HRESULT codigo = Insiste(FConexion->Paciencia, [&] {
        return FObjeto->GetIDsOfNames(IID_NULL, &puntero, 1, LOCALE_USER_DEFAULT, &numero);
    });
    EXCEPINFO sinDetalle{};
    if (FAILED(codigo)) LanzaFallo(Pedido(miembro), codigo, sinDetalle);
    FConexion->Miembros.emplace(clave, numero);
    return numero;
}

std::string TObjetoWord::Pedido(std::string_view miembro) const {
    return std::string(FClase).append(".").append(miembro);
}

void TObjetoWord::NoEsLoEsperado(std::string_view miembro) const {
    EXCEPINFO sinDetalle{};
    LanzaFallo(Pedido(miembro), DISP_E_TYPEMISMATCH, sinDetalle);
}

}  // namespace analizador
