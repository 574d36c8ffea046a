#pragma once

// What all the objects that a macro sees have in common.

#include <atomic>
#include <cstddef>
#include <functional>
#include <string>
#include <vector>

#include "adaptadores/word/Com.h"

namespace analizador {

// A call that is wrong in itself: the macro's language has its own words for it.
struct TLlamadaMala {
    HRESULT Codigo;
};

// An object whose members are found by name, in any case, and only read or called. It ends itself when nobody
// holds it any more. Failures are told in Castilian, never with the deed's words.
class TObjetoAutomatico : public IDispatch {
  public:
    TObjetoAutomatico(const TObjetoAutomatico&) = delete;
    TObjetoAutomatico& operator=(const TObjetoAutomatico&) = delete;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID interfaz, void** salida) override;
    ULONG STDMETHODCALLTYPE AddRef() override { return ++FReferencias; }
    ULONG STDMETHODCALLTYPE Release() override;
    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* cuantas) override;
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR* nombres, UINT cuantos, LCID,
                                            DISPID* numeros) override;
    HRESULT STDMETHODCALLTYPE Invoke(DISPID numero, REFIID, LCID, WORD como, DISPPARAMS* parametros,
                                     VARIANT* resultado, EXCEPINFO* detalle, UINT*) override;

  protected:
    // In the order of the parameters, references followed.
    using TArgumentos = std::vector<TVariante>;
    // May throw TLlamadaMala, and what the functions of the C interface turn into a code and a text.
    using TAccion = std::function<TVariante(const TArgumentos&)>;

    TObjetoAutomatico() = default;
    virtual ~TObjetoAutomatico() = default;

    // All in the constructor. `argumentos`: how many it takes.
    void Anade(DISPID numero, std::u16string nombre, std::size_t argumentos, TAccion accion);
    // With the next number from 1 on.
    void Anade(std::u16string nombre, std::size_t argumentos, TAccion accion);

  private:
    struct TMiembro {
        DISPID Numero;
        std::u16string Nombre;
        std::size_t Argumentos;
        TAccion Accion;
    };

    [[nodiscard]] TVariante Ejecuta(DISPID numero, WORD como, DISPPARAMS& parametros);

    std::vector<TMiembro> FMiembros;
    std::atomic<ULONG> FReferencias = 1;
};

}  // namespace analizador
