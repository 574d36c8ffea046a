#include "programas/automatizacion/ObjetoAutomatico.h"

#include <algorithm>
#include <utility>

#include "plataforma/Ansi.h"
#include "programas/biblioteca/Llamada.h"

namespace analizador {

namespace {

constexpr int PRIMER_CODIGO = 0x200;  // those below are the system's own

BSTR Bstr(std::u16string_view texto) {
    VARIANT suelta = {};
    TVariante variante(texto);
    std::swap(*variante.Recibe(), suelta);
    return suelta.bstrVal;
}

HRESULT Cuenta(int codigo, const TMotivo& motivo, EXCEPINFO* detalle) {
    if (detalle != nullptr) {
        *detalle = {};
        detalle->scode = MAKE_HRESULT(SEVERITY_ERROR, FACILITY_ITF, PRIMER_CODIGO + codigo);
        detalle->bstrSource = Bstr(u"Analizador.Escritura");
        detalle->bstrDescription = Bstr(Utf16DeUtf8(motivo.Texto()));
    }
    return DISP_E_EXCEPTION;
}

std::vector<TVariante> Argumentos(const DISPPARAMS& parametros) {
    std::vector<TVariante> argumentos(parametros.cArgs);
    for (std::size_t i = 0; i < argumentos.size(); ++i)  // they come from the last to the first
        if (FAILED(VariantCopyInd(argumentos[i].Recibe(), &parametros.rgvarg[argumentos.size() - 1 - i])))
            throw TLlamadaMala{DISP_E_TYPEMISMATCH};
    return argumentos;
}

// "Otorgantes(1)" arrives as a property with an argument, which is meant for the list.
TVariante MiembroPorDefecto(const TVariante& valor, DISPPARAMS& parametros) {
    const auto objeto = valor.Objeto();
    if (!objeto) throw TLlamadaMala{DISP_E_BADPARAMCOUNT};
    TVariante resultado;
    const HRESULT codigo =
        objeto->Invoke(DISPID_VALUE, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD | DISPATCH_PROPERTYGET,
                       &parametros, resultado.Recibe(), nullptr, nullptr);
    if (FAILED(codigo)) throw TLlamadaMala{codigo};
    return resultado;
}

bool SonElMismo(const std::u16string& nombre, const wchar_t* pedido) {
    constexpr int HASTA_EL_FIN = -1;
    return CompareStringOrdinal(reinterpret_cast<const wchar_t*>(nombre.c_str()), HASTA_EL_FIN, pedido,
                                HASTA_EL_FIN, TRUE) == CSTR_EQUAL;
}

}  // namespace

void TObjetoAutomatico::Anade(DISPID numero, std::u16string nombre, std::size_t argumentos, TAccion accion) {
    FMiembros.push_back({numero, std::move(nombre), argumentos, std::move(accion)});
}

void TObjetoAutomatico::Anade(std::u16string nombre, std::size_t argumentos, TAccion accion) {
    Anade(static_cast<DISPID>(FMiembros.size() + 1), std::move(nombre), argumentos, std::move(accion));
}

HRESULT TObjetoAutomatico::QueryInterface(REFIID interfaz, void** salida) {
    if (salida == nullptr) return E_POINTER;
    *salida = nullptr;
    if (interfaz != IID_IUnknown && interfaz != IID_IDispatch) return E_NOINTERFACE;
    *salida = static_cast<IDispatch*>(this);
    AddRef();
    return S_OK;
}

ULONG TObjetoAutomatico::Release() {
    const ULONG quedan = --FReferencias;
    if (quedan == 0) delete this;  // what counts references ends itself
    return quedan;
}

HRESULT TObjetoAutomatico::GetTypeInfoCount(UINT* cuantas) {
    *cuantas = 0;
    return S_OK;
}

HRESULT TObjetoAutomatico::GetIDsOfNames(REFIID, LPOLESTR* nombres, UINT cuantos, LCID, DISPID* numeros) {
    std::fill_n(numeros, cuantos, DISPID_UNKNOWN);
    const auto miembro = std::find_if(FMiembros.begin(), FMiembros.end(),
                                      [&](const TMiembro& m) { return SonElMismo(m.Nombre, nombres[0]); });
    if (miembro == FMiembros.end()) return DISP_E_UNKNOWNNAME;
    numeros[0] = miembro->Numero;
    return cuantos == 1 ? S_OK : DISP_E_UNKNOWNNAME;
}

TVariante TObjetoAutomatico::Ejecuta(DISPID numero, WORD como, DISPPARAMS& parametros) {
    const auto miembro = std::find_if(FMiembros.begin(), FMiembros.end(),
                                      [&](const TMiembro& m) { return m.Numero == numero; });
    if (miembro == FMiembros.end() || (como & (DISPATCH_METHOD | DISPATCH_PROPERTYGET)) == 0)
        throw TLlamadaMala{DISP_E_MEMBERNOTFOUND};
    if (parametros.cNamedArgs != 0) throw TLlamadaMala{DISP_E_NONAMEDARGS};
    if (parametros.cArgs == miembro->Argumentos) return miembro->Accion(Argumentos(parametros));
    if (miembro->Argumentos != 0) throw TLlamadaMala{DISP_E_BADPARAMCOUNT};
    return MiembroPorDefecto(miembro->Accion({}), parametros);
}

HRESULT TObjetoAutomatico::Invoke(DISPID numero, REFIID, LCID, WORD como, DISPPARAMS* parametros,
                                  VARIANT* resultado, EXCEPINFO* detalle, UINT*) {
    // Kept alive by itself: while Word answers, the macro may let go of the last reference.
    const auto guarda = Comparte(static_cast<IDispatch*>(this));
    TVariante valor;
    HRESULT mala = S_OK;
    TMotivo motivo;
    const int codigo = Llama(motivo, [&] {
        try {
            valor = Ejecuta(numero, como, *parametros);
        } catch (const TLlamadaMala& llamada) {
            mala = llamada.Codigo;
        }
    });
    if (codigo != ANALIZADOR_BIEN) return Cuenta(codigo, motivo, detalle);
    if (resultado != nullptr) std::swap(*resultado, *valor.Recibe());
    return mala;
}

}  // namespace analizador
