#pragma once

// Holders of what the automation hands out: whatever is taken is let go of.

#include <windows.h>
// The others need the first.
#include <oleauto.h>

#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace analizador {

struct TSuelta {
    void operator()(IUnknown* objeto) const { objeto->Release(); }
};

// One reference to a COM object.
template <class TInterfaz>
using TPuntero = std::unique_ptr<TInterfaz, TSuelta>;

// One more reference to the same object; nullptr gives nullptr.
template <class TInterfaz>
[[nodiscard]] TPuntero<TInterfaz> Comparte(TInterfaz* objeto) {
    if (objeto != nullptr) objeto->AddRef();
    return TPuntero<TInterfaz>(objeto);
}

// COM on this thread, in the way of a thread with windows, for as long as it lives; a thread that already
// has it in another way keeps that.
class TApartamento {
  public:
    TApartamento() : FIniciado(SUCCEEDED(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED))) {}
    ~TApartamento() {
        if (FIniciado) CoUninitialize();
    }
    TApartamento(const TApartamento&) = delete;
    TApartamento& operator=(const TApartamento&) = delete;

  private:
    bool FIniciado;
};

// A value of the automation. Texts go in and out as UTF-16.
class TVariante {
  public:
    TVariante() { VariantInit(&FValor); }
    explicit TVariante(bool valor);
    explicit TVariante(int valor);
    explicit TVariante(std::u16string_view texto);
    // Shares the object.
    explicit TVariante(IDispatch* objeto);
    explicit TVariante(const void*) = delete;  // a pointer is not a truth value
    TVariante(TVariante&& otra) noexcept;
    TVariante& operator=(TVariante&& otra) noexcept;
    ~TVariante() { VariantClear(&FValor); }
    TVariante(const TVariante&) = delete;
    TVariante& operator=(const TVariante&) = delete;

    [[nodiscard]] const VARIANT& Valor() const { return FValor; }
    // Where a call leaves its result; empty before it.
    [[nodiscard]] VARIANT* Recibe() { return &FValor; }

    // The value as what is asked for; none when it cannot be that.
    [[nodiscard]] std::optional<int> Entero() const;
    [[nodiscard]] std::optional<bool> Verdad() const;
    [[nodiscard]] std::optional<std::u16string> Texto() const;
    [[nodiscard]] TPuntero<IDispatch> Objeto() const;  // nullptr when it holds none

  private:
    // The value as another type, for who asks; empty when it cannot be.
    [[nodiscard]] TVariante Como(VARTYPE tipo) const;

    VARIANT FValor{};
};

}  // namespace analizador
