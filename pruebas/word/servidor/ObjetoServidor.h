#pragma once

// What all objects of the test server share: members reached by name, errors told as Word tells them, and the
// failures that a test orders.

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "adaptadores/word/Com.h"

namespace analizador::pruebas {

// What the chosen call does instead of what it is asked.
enum class TFallo { Ninguno, Error, Ocupado, Muere };

// The server's books, common to its objects.
struct TLibros {
    std::vector<std::wstring> Llamadas;  // the members that clients asked for, the test's own orders left out
    int Objetos = 0;                     // alive, the application not counted
    TFallo Fallo = TFallo::Ninguno;
    int EnLaLlamada = 0;  // the first that fails, 0 none
    int Veces = 0;        // how many fail from there on
    bool Interna = false;
    int Ventana = 0;  // the number of the HWND of the one that is open; 0 none
};

// An error that Word tells with a number of its own.
struct TErrorDeWord {
    int Numero;
    std::u16string Descripcion;
};

// The arguments of a call, 0-based in the order of the member's parameters.
class TArgumentos {
  public:
    TArgumentos(const DISPPARAMS& parametros, bool pone) : FParametros(parametros), Pone(pone) {}
    [[nodiscard]] std::size_t Cuantos() const { return FParametros.cArgs; }
    [[nodiscard]] int Entero(std::size_t i) const;
    [[nodiscard]] bool Verdad(std::size_t i) const;
    [[nodiscard]] std::u16string Texto(std::size_t i) const;
    [[nodiscard]] bool EsTexto(std::size_t i) const;
    [[nodiscard]] TPuntero<IDispatch> Objeto(std::size_t i) const;

  private:
    [[nodiscard]] TVariante Valor(std::size_t i) const;
    const DISPPARAMS& FParametros;

  public:
    const bool Pone;  // a property is set
};

class TObjetoServidor : public IDispatch {
  public:
    using TMiembro = std::function<TVariante(const TArgumentos&)>;

    explicit TObjetoServidor(std::shared_ptr<TLibros> libros, bool cuenta = true);
    virtual ~TObjetoServidor();
    TObjetoServidor(const TObjetoServidor&) = delete;
    TObjetoServidor& operator=(const TObjetoServidor&) = delete;

    // Members of one class are always added in the same order: their numbers are given out by it.
    void Anade(std::wstring nombre, TMiembro miembro);
    // Asked before every call: throws TErrorDeWord when the object is gone.
    std::function<void()> Comprueba = [] {};

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID interfaz, void** salida) override;
    ULONG STDMETHODCALLTYPE AddRef() override;
    ULONG STDMETHODCALLTYPE Release() override;
    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* cuantas) override;
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR* nombres, UINT cuantos, LCID,
                                            DISPID* numeros) override;
    HRESULT STDMETHODCALLTYPE Invoke(DISPID numero, REFIID, LCID, WORD como, DISPPARAMS* parametros,
                                     VARIANT* resultado, EXCEPINFO* detalle, UINT*) override;

  private:
    // Counts a call to the member; S_OK, or the failure that a test ordered for it.
    [[nodiscard]] HRESULT Anota(std::wstring_view miembro);

    std::shared_ptr<TLibros> FLibros;
    bool FCuenta;
    std::vector<std::pair<std::wstring, TMiembro>> FMiembros;
    ULONG FReferencias = 1;
};

// A result that is an object.
[[nodiscard]] TVariante Entrega(TPuntero<TObjetoServidor> objeto);

}  // namespace analizador::pruebas
