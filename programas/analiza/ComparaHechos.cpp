#include <algorithm>
#include <array>
#include <optional>

#include "plataforma/Ansi.h"
#include "plataforma/Rnumcad.h"
#include "plataforma/Rut.h"
#include "programas/analiza/Hechos.h"

namespace analizador {

namespace {

using TJson = nlohmann::ordered_json;

// "1951-09-03" as "03/09/1951"; any other text as it is.
std::string ConFechaCorriente(const std::string& texto) {
    if (texto.size() != 10 || texto[4] != '-' || texto[7] != '-') return texto;
    return texto.substr(8) + "/" + texto.substr(5, 2) + "/" + texto.substr(0, 4);
}

// A value as text (UTF-8), the same whether it was written as a number or between quotes.
std::string Texto(const TJson& valor) {
    if (valor.is_string()) return ConFechaCorriente(valor.get<std::string>());
    if (valor.is_boolean()) return valor.get<bool>() ? "sí" : "no";
    if (valor.is_number_float()) return Float_Cad(valor.get<double>());
    return valor.is_number() ? valor.dump() : "";
}

// The same, empty for a value that means nothing. Of the interventions 0 means something and 99 does not.
std::string Hecho(const std::string& clave, const TJson& valor) {
    const std::string texto = Texto(valor);
    if (clave == "IntervencionVRK") return texto;
    const std::string_view nada = clave == "IntervencionINTI" ? "99" : "0";
    return valor.is_number() && texto == nada ? "" : texto;
}

// Folded, single blanks between the words (Windows-1252).
std::string Plegado(const std::string& utf8) {
    std::string plegado;
    for (const char c : Pliega(AnsiDeUtf8(utf8)))
        if (c != ' ' || (!plegado.empty() && plegado.back() != ' ')) plegado += c;
    return std::string(Recorta(plegado));
}

std::optional<double> Importe(const std::string& texto) {
    return RealDeCadena(texto.find(',') == std::string::npos ? texto : QuitaCaracter(texto, '.'));
}

bool EsImporte(const std::string& clave) {
    constexpr std::array<std::string_view, 3> IMPORTES = {"Cuantias", "Plazos", "TAEs"};
    return std::ranges::find(IMPORTES, clave) != IMPORTES.end();
}

// A deed type's name holds its names in both languages, " / " between them: any of them will do.
bool EsUnoDe(const std::string& nombre, const std::string& nombres) {
    return nombre == nombres || (" / " + nombres + " / ").find(" / " + nombre + " / ") != std::string::npos;
}

bool Iguales(const std::string& clave, const std::string& esperado, const std::string& obtenido) {
    if (EsImporte(clave)) {
        const auto importe = Importe(esperado);
        if (importe && importe == Importe(obtenido)) return true;
    }
    const std::string uno = Plegado(esperado);
    const std::string otro = Plegado(obtenido);
    if (clave == "Conceptos") return EsUnoDe(uno, otro);
    constexpr std::string_view SEPARADORES = ".- /";
    if (clave == "NumDocumento")
        return QuitaCaracteres(uno, SEPARADORES) == QuitaCaracteres(otro, SEPARADORES);
    return uno == otro;
}

std::string Hecho(const TJson& objeto, const char* clave) {
    return objeto.contains(clave) ? Hecho(clave, objeto.at(clave)) : "";
}

std::string NombreCompleto(const TJson& otorgante) {
    return Plegado(Hecho(otorgante, "Nombre") + " " + Hecho(otorgante, "Apellidos"));
}

// How a party is told in the failures.
std::string Senna(const TJson& otorgante) {
    const std::string nombre = Hecho(otorgante, "Nombre");
    const std::string apellidos = Hecho(otorgante, "Apellidos");
    if (nombre.empty() && apellidos.empty()) return Hecho(otorgante, "NumDocumento");
    return apellidos + (nombre.empty() ? "" : ", " + nombre);
}

class TComparador {
  public:
    TComparador(const TJson& hechos, const TJson& obtenido) : FHechos(hechos), FObtenido(obtenido) {}

    // In the order of the program's own keys.
    [[nodiscard]] std::vector<TComparacion> Compara() {
        for (const auto& [clave, obtenido] : FObtenido.items()) {
            if (clave == "archivo" || clave == "Pizarra" || !FHechos.contains(clave)) continue;
            const TJson& esperado = FHechos.at(clave);
            if (clave == "Otorgantes")
                Otorgantes(esperado, obtenido);
            else if (clave == "Conceptos")
                Lista(clave, clave, Nombres(esperado), Nombres(obtenido));
            else
                Valor(clave, clave, esperado, obtenido);
        }
        return std::move(FComparaciones);
    }

  private:
    void Pon(TComparacion comparacion) {
        if (!comparacion.Esperado.empty() || !comparacion.Obtenido.empty())
            FComparaciones.push_back(std::move(comparacion));
    }

    void Valor(const std::string& campo, const std::string& clave, const TJson& esperado,
               const TJson& obtenido, const std::string& de = {}) {
        if (obtenido.is_object()) {
            for (const auto& [interior, valor] : obtenido.items())
                if (esperado.contains(interior))
                    Valor(campo + "." + interior, interior, esperado.at(interior), valor);
        } else if (obtenido.is_array()) {
            Lista(campo, clave, Textos(esperado), Textos(obtenido));
        } else {
            const std::string e = Hecho(clave, esperado);
            const std::string o = Hecho(clave, obtenido);
            Pon({campo, de, e, o, Iguales(clave, e, o), false});
        }
    }

    static std::vector<std::string> Textos(const TJson& lista) {
        std::vector<std::string> textos;
        for (const auto& elemento : lista)
            if (std::string texto = Texto(elemento); !texto.empty()) textos.push_back(std::move(texto));
        return textos;
    }

    static std::vector<std::string> Nombres(const TJson& lista) {
        std::vector<std::string> nombres;
        for (const auto& elemento : lista) nombres.push_back(Hecho(elemento, "Nombre"));
        return nombres;
    }

    // As sets: what stands twice counts once.
    static void QuitaIguales(const std::string& clave, std::vector<std::string>& lista) {
        for (std::size_t i = 0; i < lista.size(); ++i)
            lista.erase(std::remove_if(lista.begin() + static_cast<std::ptrdiff_t>(i) + 1, lista.end(),
                                       [&](const auto& otro) { return Iguales(clave, lista[i], otro); }),
                        lista.end());
    }

    void Lista(const std::string& campo, const std::string& clave, std::vector<std::string> esperados,
               std::vector<std::string> obtenidos) {
        QuitaIguales(clave, esperados);
        QuitaIguales(clave, obtenidos);
        for (const auto& esperado : esperados) {
            const auto igual = std::ranges::find_if(
                obtenidos, [&](const auto& obtenido) { return Iguales(clave, esperado, obtenido); });
            const bool acierto = igual != obtenidos.end();
            Pon({campo, {}, esperado, acierto ? *igual : "", acierto, false});
            if (acierto) obtenidos.erase(igual);
        }
        for (const auto& sobra : obtenidos) Pon({campo, {}, {}, sobra, false, false});
    }

    void Otorgantes(const TJson& esperados, const TJson& obtenidos) {
        std::vector<const TJson*> parejas(esperados.size(), nullptr);
        Empareja(esperados, obtenidos, parejas, NombreCompleto);
        Empareja(esperados, obtenidos, parejas, [](const TJson& otorgante) {
            return QuitaCaracteres(Plegado(Hecho(otorgante, "NumDocumento")), ".- /");
        });
        for (std::size_t i = 0; i < esperados.size(); ++i) {
            if (parejas[i] != nullptr)
                Hallado(esperados[i], *parejas[i]);
            else
                Perdido(esperados[i]);
        }
        for (const auto& obtenido : obtenidos)
            if (std::ranges::find(parejas, &obtenido) == parejas.end())
                Pon({"Otorgantes", {}, {}, Senna(obtenido), false, false});
    }

    // Gives each party without a partner yet the first free one with the same mark, if it has a mark.
    template <class TMarca>
    static void Empareja(const TJson& esperados, const TJson& obtenidos, std::vector<const TJson*>& parejas,
                         TMarca marca) {
        for (std::size_t i = 0; i < esperados.size(); ++i) {
            const std::string buscada = marca(esperados[i]);
            if (parejas[i] != nullptr || buscada.empty()) continue;
            const auto igual = std::ranges::find_if(obtenidos, [&](const TJson& obtenido) {
                return marca(obtenido) == buscada && std::ranges::find(parejas, &obtenido) == parejas.end();
            });
            if (igual != obtenidos.end()) parejas[i] = &*igual;
        }
    }

    // What the deed does not tell of a party.
    static bool EsHecho(const std::string& clave) { return clave != "EnXML" && clave != "Propuesto"; }

    void Hallado(const TJson& esperado, const TJson& obtenido) {
        Pon({"Otorgantes", {}, Senna(esperado), Senna(obtenido), true, false});
        for (const auto& [clave, valor] : obtenido.items())
            if (EsHecho(clave) && esperado.contains(clave))
                Valor("Otorgante." + clave, clave, esperado.at(clave), valor, Senna(esperado));
    }

    // Its fields are missed too: else a party lost would make the others look better.
    void Perdido(const TJson& esperado) {
        Pon({"Otorgantes", {}, Senna(esperado), {}, false, false});
        for (const auto& [clave, valor] : esperado.items())
            if (EsHecho(clave))
                Pon({"Otorgante." + clave, Senna(esperado), Hecho(clave, valor), {}, false, true});
    }

    const TJson& FHechos;
    const TJson& FObtenido;
    std::vector<TComparacion> FComparaciones;
};

}  // namespace

std::vector<TComparacion> ComparaHechos(const TJson& hechos, const TJson& obtenido) {
    return TComparador(hechos, obtenido).Compara();
}

}  // namespace analizador
