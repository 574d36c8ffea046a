// The entry points through which the system loads, registers and makes "Analizador.Escritura".

#include <windows.h>
// The others need the first.
#include <objbase.h>

#include <memory>
#include <string_view>

#include "programas/automatizacion/Escritura.h"
#include "programas/automatizacion/Registro.h"
#include "programas/biblioteca/Llamada.h"
#include "programas/biblioteca/Modulo_windows.h"

namespace analizador {
namespace {

// There is one, and it is not counted.
class TFabrica : public IClassFactory {
  public:
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID interfaz, void** salida) override {
        if (salida == nullptr) return E_POINTER;
        *salida = nullptr;
        if (interfaz != IID_IUnknown && interfaz != IID_IClassFactory) return E_NOINTERFACE;
        *salida = static_cast<IClassFactory*>(this);
        return S_OK;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return 2; }
    ULONG STDMETHODCALLTYPE Release() override { return 1; }
    HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown* exterior, REFIID interfaz, void** salida) override {
        if (salida == nullptr) return E_POINTER;
        *salida = nullptr;
        if (exterior != nullptr) return CLASS_E_NOAGGREGATION;
        HRESULT resultado = E_OUTOFMEMORY;
        TMotivo motivo;
        Llama(motivo, [&] {
            const TPuntero<IDispatch> escritura(std::make_unique<TEscritura>().release());
            resultado = escritura->QueryInterface(interfaz, salida);
        });
        return resultado;
    }
    HRESULT STDMETHODCALLTYPE LockServer(BOOL) override { return S_OK; }
};

HRESULT Resultado(bool hecho) {
    constexpr HRESULT NO_SE_REGISTRA = static_cast<HRESULT>(0x80040201);
    return hecho ? S_OK : NO_SE_REGISTRA;
}

template <class TAccion>
HRESULT Registrando(TAccion accion) {
    bool hecho = false;
    TMotivo motivo;
    Llama(motivo, [&] { hecho = accion(); });
    return Resultado(hecho);
}

}  // namespace
}  // namespace analizador

using namespace analizador;

STDAPI DllGetClassObject(REFCLSID clase, REFIID interfaz, void** salida) {
    static TFabrica fabrica;
    if (salida == nullptr) return E_POINTER;
    *salida = nullptr;
    if (clase != CLASE_ESCRITURA) return CLASS_E_CLASSNOTAVAILABLE;
    FijaModulo();
    return fabrica.QueryInterface(interfaz, salida);
}

STDAPI DllCanUnloadNow() {
    return S_FALSE;
}

STDAPI DllRegisterServer() {
    return Registrando([] { return Registra(HKEY_CURRENT_USER); });
}

STDAPI DllUnregisterServer() {
    return Registrando([] { return QuitaRegistro(HKEY_CURRENT_USER); });
}

// regsvr32 /n /i:maquina: for all the users of the machine.
STDAPI DllInstall(BOOL instala, const wchar_t* paraQuien) {
    if (paraQuien == nullptr || std::wstring_view(paraQuien) != L"maquina") return E_INVALIDARG;
    return Registrando(
        [&] { return instala ? Registra(HKEY_LOCAL_MACHINE) : QuitaRegistro(HKEY_LOCAL_MACHINE); });
}
