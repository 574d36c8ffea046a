#include "pruebas/word/servidor/ObjetoServidor.h"

#include <cwchar>
#include <utility>

#include "plataforma/Ansi.h"
#include "plataforma/VrkWord.h"

namespace analizador::pruebas {

namespace {

constexpr std::wstring_view ORDEN = L"Prueba_";  // what tests order, which is no part of Word
constexpr int FALLO_CUALQUIERA = 4605;

BSTR Bstr(std::u16string_view texto) {
    VARIANT suelta = {};
    TVariante variante(texto);
    std::swap(*variante.Recibe(), suelta);
    return suelta.bstrVal;
}

HRESULT Cuenta(const TErrorDeWord& error, EXCEPINFO* detalle) {
    if (detalle != nullptr) {
        *detalle = {};
        detalle->scode = MAKE_HRESULT(SEVERITY_ERROR, FACILITY_CONTROL, error.Numero);
        detalle->bstrSource = Bstr(u"Microsoft Word");
        detalle->bstrDescription = Bstr(error.Descripcion);
    }
    return DISP_E_EXCEPTION;
}

}  // namespace

TVariante TArgumentos::Valor(std::size_t i) const {
    TVariante copia;
    if (i >= Cuantos()) throw TErrorDeWord{450, u"Wrong number of arguments or invalid property assignment"};
    if (FAILED(VariantCopyInd(copia.Recibe(), &FParametros.rgvarg[Cuantos() - 1 - i])))
        throw TErrorDeWord{13, u"Type mismatch"};
    return copia;
}

int TArgumentos::Entero(std::size_t i) const {
    return Valor(i).Entero().value();
}

bool TArgumentos::Verdad(std::size_t i) const {
    return Valor(i).Verdad().value();
}

std::u16string TArgumentos::Texto(std::size_t i) const {
    return Valor(i).Texto().value();
}

bool TArgumentos::EsTexto(std::size_t i) const {
    return Valor(i).Valor().vt == VT_BSTR;
}

TPuntero<IDispatch> TArgumentos::Objeto(std::size_t i) const {
    return Valor(i).Objeto();
}

TObjetoServidor::TObjetoServidor(std::shared_ptr<TLibros> libros, bool cuenta)
    : FLibros(std::move(libros)), FCuenta(cuenta) {
    if (FCuenta) ++FLibros->Objetos;
}

TObjetoServidor::~TObjetoServidor() {
    if (FCuenta) --FLibros->Objetos;
}

void TObjetoServidor::Anade(std::wstring nombre, TMiembro miembro) {
    FMiembros.emplace_back(std::move(nombre), std::move(miembro));
}

HRESULT TObjetoServidor::QueryInterface(REFIID interfaz, void** salida) {
    *salida = nullptr;
    if (interfaz != IID_IUnknown && interfaz != IID_IDispatch) return E_NOINTERFACE;
    *salida = static_cast<IDispatch*>(this);
    AddRef();
    return S_OK;
}

ULONG TObjetoServidor::AddRef() {
    return ++FReferencias;
}

ULONG TObjetoServidor::Release() {
    const ULONG quedan = --FReferencias;
    if (quedan == 0) delete this;  // what counts references ends itself
    return quedan;
}

HRESULT TObjetoServidor::GetTypeInfoCount(UINT* cuantas) {
    *cuantas = 0;
    return S_OK;
}

HRESULT TObjetoServidor::GetIDsOfNames(REFIID, LPOLESTR* nombres, UINT cuantos, LCID, DISPID* numeros) {
    for (UINT i = 0; i < cuantos; ++i) numeros[i] = DISPID_UNKNOWN;
    if (const HRESULT fallo = Anota(nombres[0]); FAILED(fallo)) return fallo;
    for (std::size_t i = 0; i < FMiembros.size(); ++i) {
        if (_wcsicmp(FMiembros[i].first.c_str(), nombres[0]) != 0) continue;
        numeros[0] = static_cast<DISPID>(i + 1);
        return cuantos == 1 ? S_OK : DISP_E_UNKNOWNNAME;
    }
    return DISP_E_UNKNOWNNAME;
}

HRESULT TObjetoServidor::Invoke(DISPID numero, REFIID, LCID, WORD como, DISPPARAMS* parametros,
                                VARIANT* resultado, EXCEPINFO* detalle, UINT*) {
    if (numero < 1 || static_cast<std::size_t>(numero) > FMiembros.size()) return DISP_E_MEMBERNOTFOUND;
    const auto& [nombre, miembro] = FMiembros[static_cast<std::size_t>(numero) - 1];
    // Kept alive by itself: the call may let go of the last reference.
    const auto guarda = Comparte(static_cast<IDispatch*>(this));
    try {
        const HRESULT fallo = Anota(nombre);
        if (fallo == E_FAIL) throw TErrorDeWord{FALLO_CUALQUIERA, u"This command is not available."};
        if (FAILED(fallo)) return fallo;
        if (!nombre.starts_with(ORDEN)) Comprueba();
        TVariante valor = miembro(TArgumentos(*parametros, (como & DISPATCH_PROPERTYPUT) != 0));
        if (resultado != nullptr) std::swap(*resultado, *valor.Recibe());
        return S_OK;
    } catch (const TErrorDeWord& error) {
        return Cuenta(error, detalle);
    } catch (const ErrorWord& error) {
        return Cuenta({FALLO_CUALQUIERA, Utf16DeUtf8(Utf8DeAnsi(error.what()))}, detalle);
    } catch (const std::exception&) {
        return E_INVALIDARG;
    }
}

HRESULT TObjetoServidor::Anota(std::wstring_view miembro) {
    TLibros& libros = *FLibros;
    if (libros.Interna || miembro.starts_with(ORDEN)) return S_OK;
    libros.Llamadas.emplace_back(miembro);
    const int esta = static_cast<int>(libros.Llamadas.size());
    const bool toca =
        libros.EnLaLlamada > 0 && esta >= libros.EnLaLlamada && esta < libros.EnLaLlamada + libros.Veces;
    if (!toca) return S_OK;
    switch (libros.Fallo) {
        case TFallo::Ocupado:
            return RPC_E_CALL_REJECTED;
        case TFallo::Error:
            return E_FAIL;
        case TFallo::Muere:
            TerminateProcess(GetCurrentProcess(), 1);
            return E_FAIL;
        default:
            return S_OK;
    }
}

TVariante Entrega(TPuntero<TObjetoServidor> objeto) {
    return TVariante(static_cast<IDispatch*>(objeto.get()));
}

}  // namespace analizador::pruebas
