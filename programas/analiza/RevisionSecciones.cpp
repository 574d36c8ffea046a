#include <algorithm>
#include <map>
#include <optional>
#include <set>

#include "plataforma/Ansi.h"
#include "plataforma/Rnumcad.h"
#include "programas/analiza/RevisionVocabulario.h"

namespace analizador {

namespace {

constexpr std::string_view CUENTA = "NUMPALABRAS";
constexpr std::string_view CIFRAS = "0123456789";

bool SonCifras(std::string_view texto) {
    return !texto.empty() && texto.find_first_not_of(CIFRAS) == std::string_view::npos;
}

// One section and what is wrong in it.
class TRevisorSeccion {
  public:
    explicit TRevisorSeccion(const TFicheroIni::Seccion& seccion)
        : FSeccion(seccion), FNombre("[" + Utf8DeAnsi(seccion.Nombre) + "] ") {}

    [[nodiscard]] std::vector<TReparo> Revisa() {
        for (const auto& clave : FSeccion.Claves) RevisaClave(clave);
        RevisaHuecos();
        RevisaCuenta();
        return std::move(FReparos);
    }

  private:
    void Error(int linea, const std::string& texto) { FReparos.push_back({true, linea, FNombre + texto}); }
    void Aviso(int linea, const std::string& texto) { FReparos.push_back({false, linea, FNombre + texto}); }

    void RevisaClave(const TFicheroIni::Clave& clave) {
        const std::string nombre = AnsiUpperCase(clave.Nombre);
        const std::string legible = Utf8DeAnsi(clave.Nombre);
        if (const auto [anterior, nueva] = FVistas.emplace(nombre, clave.Linea); !nueva)
            Error(clave.Linea, "la clave " + legible + " está repetida y no se lee: vale la de la línea " +
                                   Int_Cad(anterior->second));
        else if (nombre == CUENTA)
            FCuenta = &clave;
        else if (SonCifras(nombre) && nombre.front() == '0')
            Error(clave.Linea, "la clave " + legible + " no se lee: se cuenta desde 1, sin ceros delante");
        else if (const auto numero = SonCifras(nombre) ? EnteroDeCadena(nombre) : std::nullopt)
            ApuntaEntrada(*numero, clave);
        else
            Aviso(clave.Linea, "la clave " + legible + " no se conoce y no se lee");
    }

    void ApuntaEntrada(int numero, const TFicheroIni::Clave& clave) {
        FNumeros.insert(numero);
        if (clave.Valor.empty())
            Aviso(clave.Linea, "la entrada " + std::string(clave.Nombre) + " está vacía");
    }

    void RevisaHuecos() {
        int esperada = 1;
        for (const int numero : FNumeros) {
            if (numero > esperada) {
                const std::string hueco = numero == esperada + 1 ? "falta la clave " + Int_Cad(esperada)
                                                                 : "faltan las claves " + Int_Cad(esperada) +
                                                                       " a " + Int_Cad(numero - 1);
                Error(FVistas.at(Int_Cad(numero)), hueco);
            }
            esperada = numero + 1;
        }
    }

    void RevisaCuenta() {
        const int ultima = FNumeros.empty() ? 0 : *FNumeros.rbegin();
        if (FCuenta == nullptr) {
            Error(FSeccion.Linea, "falta NumPalabras: no se lee ninguna entrada");
            return;
        }
        const auto cuenta = EnteroDeCadena(FCuenta->Valor);
        if (!cuenta || *cuenta < 0)
            Error(FCuenta->Linea, "NumPalabras no es una cifra: no se lee ninguna entrada");
        else if (*cuenta < ultima)
            Error(FCuenta->Linea, "NumPalabras dice " + Int_Cad(*cuenta) + " y hay hasta la clave " +
                                      Int_Cad(ultima) + ": las que pasan de " + Int_Cad(*cuenta) +
                                      " no se leen");
        else if (*cuenta > ultima)
            Error(FCuenta->Linea,
                  "NumPalabras dice " + Int_Cad(*cuenta) + " y solo hay hasta la clave " + Int_Cad(ultima));
        else if (ultima == 0)
            Aviso(FSeccion.Linea, "no tiene ninguna entrada");
    }

    const TFicheroIni::Seccion& FSeccion;
    std::string FNombre;
    std::vector<TReparo> FReparos;
    std::map<std::string, int> FVistas;  // key in capitals, line
    std::set<int> FNumeros;
    const TFicheroIni::Clave* FCuenta = nullptr;
};

}  // namespace

std::vector<TReparo> RevisaSecciones(const TVocabulario& vocabulario) {
    std::vector<TReparo> reparos;
    std::map<std::string, int> vistas;  // name in capitals, line
    for (const auto& seccion : vocabulario.Ini.Secciones()) {
        const std::string titulo = "[" + Utf8DeAnsi(seccion.Nombre) + "] ";
        const auto [anterior, nueva] = vistas.emplace(AnsiUpperCase(seccion.Nombre), seccion.Linea);
        if (SeccionVocabulario(seccion.Nombre) == nullptr) {
            reparos.push_back({false, seccion.Linea, titulo + "la sección no se conoce y no se lee"});
        } else if (!nueva) {
            reparos.push_back({true, seccion.Linea,
                               titulo + "la sección está repetida y no se lee: vale la de la línea " +
                                   Int_Cad(anterior->second)});
        } else {
            const auto dentro = TRevisorSeccion(seccion).Revisa();
            reparos.insert(reparos.end(), dentro.begin(), dentro.end());
        }
    }
    for (const auto& seccion : SeccionesVocabulario())
        if (!vistas.contains(std::string(seccion.Nombre)))
            reparos.push_back({true, 0, "falta la sección [" + std::string(seccion.Nombre) + "]"});
    return reparos;
}

}  // namespace analizador
