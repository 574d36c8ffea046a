#include "programas/automatizacion/Enumeracion.h"

#include <algorithm>
#include <atomic>
#include <memory>
#include <utility>

#include "programas/automatizacion/Datos.h"
#include "programas/biblioteca/Llamada.h"

namespace analizador {

namespace {

using TJson = nlohmann::ordered_json;

class TEnumeracion : public IEnumVARIANT {
  public:
    explicit TEnumeracion(TJson lista, std::size_t siguiente = 0)
        : FLista(std::move(lista)), FSiguiente(siguiente) {}
    virtual ~TEnumeracion() = default;
    TEnumeracion(const TEnumeracion&) = delete;
    TEnumeracion& operator=(const TEnumeracion&) = delete;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID interfaz, void** salida) override {
        if (salida == nullptr) return E_POINTER;
        *salida = nullptr;
        if (interfaz != IID_IUnknown && interfaz != IID_IEnumVARIANT) return E_NOINTERFACE;
        *salida = static_cast<IEnumVARIANT*>(this);
        AddRef();
        return S_OK;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return ++FReferencias; }
    ULONG STDMETHODCALLTYPE Release() override {
        const ULONG quedan = --FReferencias;
        if (quedan == 0) delete this;  // what counts references ends itself
        return quedan;
    }

    HRESULT STDMETHODCALLTYPE Next(ULONG pedidos, VARIANT* elementos, ULONG* dados) override {
        ULONG cuantos = 0;
        TMotivo motivo;
        const int codigo = Llama(motivo, [&] {
            for (; cuantos < pedidos && FSiguiente < FLista.size(); ++cuantos, ++FSiguiente) {
                VariantInit(&elementos[cuantos]);
                std::swap(elementos[cuantos], *VarianteDe(FLista[FSiguiente]).Recibe());
            }
        });
        if (dados != nullptr) *dados = cuantos;
        if (codigo != ANALIZADOR_BIEN) return E_FAIL;
        return cuantos == pedidos ? S_OK : S_FALSE;
    }
    HRESULT STDMETHODCALLTYPE Skip(ULONG cuantos) override {
        const std::size_t quedan = FLista.size() - FSiguiente;
        FSiguiente += std::min<std::size_t>(cuantos, quedan);
        return cuantos <= quedan ? S_OK : S_FALSE;
    }
    HRESULT STDMETHODCALLTYPE Reset() override {
        FSiguiente = 0;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE Clone(IEnumVARIANT** otra) override {
        TMotivo motivo;
        const int codigo =
            Llama(motivo, [&] { *otra = std::make_unique<TEnumeracion>(FLista, FSiguiente).release(); });
        return codigo == ANALIZADOR_BIEN ? S_OK : E_OUTOFMEMORY;
    }

  private:
    TJson FLista;
    std::size_t FSiguiente;
    std::atomic<ULONG> FReferencias = 1;
};

}  // namespace

TVariante Enumera(const TJson& lista) {
    TVariante variante;
    variante.Recibe()->punkVal = std::make_unique<TEnumeracion>(lista).release();
    variante.Recibe()->vt = VT_UNKNOWN;
    return variante;
}

}  // namespace analizador
