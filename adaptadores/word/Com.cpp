#include "adaptadores/word/Com.h"

#include <algorithm>
#include <new>
#include <utility>

namespace analizador {

TVariante::TVariante(bool valor) : TVariante() {
    FValor.vt = VT_BOOL;
    FValor.boolVal = valor ? VARIANT_TRUE : VARIANT_FALSE;
}

TVariante::TVariante(int valor) : TVariante() {
    FValor.vt = VT_I4;
    FValor.lVal = valor;
}

TVariante::TVariante(std::u16string_view texto) : TVariante() {
    BSTR copia = SysAllocStringLen(nullptr, static_cast<UINT>(texto.size()));
    if (copia == nullptr) throw std::bad_alloc();
    std::copy(texto.begin(), texto.end(), copia);
    FValor.vt = VT_BSTR;
    FValor.bstrVal = copia;
}

TVariante::TVariante(IDispatch* objeto) : TVariante() {
    FValor.vt = VT_DISPATCH;
    FValor.pdispVal = Comparte(objeto).release();
}

TVariante::TVariante(TVariante&& otra) noexcept : TVariante() {
    std::swap(FValor, otra.FValor);
}

TVariante& TVariante::operator=(TVariante&& otra) noexcept {
    std::swap(FValor, otra.FValor);
    return *this;
}

TVariante TVariante::Como(VARTYPE tipo) const {
    TVariante otra;
    VARIANT prestado = FValor;  // only read, though the call does not say so
    if (FAILED(VariantChangeType(&otra.FValor, &prestado, 0, tipo))) return {};
    return otra;
}

std::optional<int> TVariante::Entero() const {
    const auto otra = Como(VT_I4);
    return otra.FValor.vt == VT_I4 ? std::optional(static_cast<int>(otra.FValor.lVal)) : std::nullopt;
}

std::optional<bool> TVariante::Verdad() const {
    const auto otra = Como(VT_BOOL);
    return otra.FValor.vt == VT_BOOL ? std::optional(otra.FValor.boolVal != VARIANT_FALSE) : std::nullopt;
}

std::optional<std::u16string> TVariante::Texto() const {
    const auto otra = Como(VT_BSTR);
    if (otra.FValor.vt != VT_BSTR) return std::nullopt;
    const BSTR texto = otra.FValor.bstrVal;  // nullptr is an empty text
    return std::u16string(texto, texto + SysStringLen(texto));
}

TPuntero<IDispatch> TVariante::Objeto() const {
    return Comparte(FValor.vt == VT_DISPATCH ? FValor.pdispVal : nullptr);
}

}  // namespace analizador
