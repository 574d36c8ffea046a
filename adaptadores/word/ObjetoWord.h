#pragma once

// Word's objects, reached by the names of their members.

#include <array>
#include <chrono>
#include <initializer_list>
#include <map>
#include <span>
#include <string>
#include <string_view>
#include <utility>

#include "adaptadores/word/Com.h"

namespace analizador {

// What the objects of one connection with Word share. Outlives them.
struct TConexionWord {
    // How long a call is made again while Word is too busy to take it.
    std::chrono::milliseconds Paciencia;
    // The numbers of the members, by class and name: asked of Word once.
    std::map<std::pair<std::string, std::string>, DISPID> Miembros;
};

// One of Word's objects. Every call throws ErrorWord when Word does not do what it is asked or answers with
// something else than what is expected. Arguments are bool, int, UTF-16 texts and IDispatch*, in Word's
// order.
class TObjetoWord {
  public:
    // `clase`: the name of its class in Word's object model, of static duration.
    TObjetoWord(TConexionWord& conexion, TPuntero<IDispatch> objeto, std::string_view clase)
        : FConexion(&conexion), FObjeto(std::move(objeto)), FClase(clase) {}

    [[nodiscard]] IDispatch* Puntero() const { return FObjeto.get(); }

    // A method whose result does not matter.
    template <class... TArgumentos>
    void Haz(std::string_view miembro, const TArgumentos&... argumentos) const {
        Pide(miembro, argumentos...);
    }
    // Sets a property.
    template <class TValor>
    void Pon(std::string_view miembro, const TValor& valor) const {
        const std::array<TVariante, 1> uno{TVariante(valor)};
        Invoca(miembro, DISPATCH_PROPERTYPUT, uno);
    }
    // The value of a property or a method.
    template <class... TArgumentos>
    [[nodiscard]] int Entero(std::string_view miembro, const TArgumentos&... argumentos) const {
        return Exige(miembro, Pide(miembro, argumentos...).Entero());
    }
    template <class... TArgumentos>
    [[nodiscard]] bool Verdad(std::string_view miembro, const TArgumentos&... argumentos) const {
        return Exige(miembro, Pide(miembro, argumentos...).Verdad());
    }
    template <class... TArgumentos>
    [[nodiscard]] std::u16string Texto(std::string_view miembro, const TArgumentos&... argumentos) const {
        return Exige(miembro, Pide(miembro, argumentos...).Texto());
    }
    template <class... TArgumentos>
    [[nodiscard]] TObjetoWord Objeto(std::string_view miembro, std::string_view clase,
                                     const TArgumentos&... argumentos) const {
        auto objeto = Pide(miembro, argumentos...).Objeto();
        if (!objeto) NoEsLoEsperado(miembro);
        return {*FConexion, std::move(objeto), clase};
    }

  private:
    template <class... TArgumentos>
    TVariante Pide(std::string_view miembro, const TArgumentos&... argumentos) const {
        const std::array<TVariante, sizeof...(argumentos)> todos{TVariante(argumentos)...};
        return Invoca(miembro, DISPATCH_METHOD | DISPATCH_PROPERTYGET, todos);
    }
    template <class TValor>
    [[nodiscard]] TValor Exige(std::string_view miembro, std::optional<TValor> valor) const {
        if (!valor) NoEsLoEsperado(miembro);
        return *std::move(valor);
    }
    TVariante Invoca(std::string_view miembro, int como, std::span<const TVariante> argumentos) const;
    [[nodiscard]] DISPID Numero(std::string_view miembro) const;
    [[nodiscard]] std::string Pedido(std::string_view miembro) const;
    [[noreturn]] void NoEsLoEsperado(std::string_view miembro) const;

    TConexionWord* FConexion;
    TPuntero<IDispatch> FObjeto;
    std::string_view FClase;
};

}  // namespace analizador
