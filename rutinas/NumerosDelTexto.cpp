#include <algorithm>
#include <memory>

#include "analizador/ConstAnalizador.h"
#include "plataforma/FicheroIni.h"
#include "plataforma/Rnumcad.h"
#include "plataforma/Rut.h"
#include "rutinas/RutAnalizador.h"

namespace analizador {

namespace {

constexpr std::string_view SIGNOS_AL_EMPEZAR = ".,-;\"\t\n\r";
constexpr std::string_view SIGNOS_AL_ACABAR = ".,-;\"\t\n\r()";

// The number words of the deed's language, read once for a whole number.
class TNumerosDelIdioma {
  public:
    [[nodiscard]] bool EsNumero(std::string_view palabra) const {
        return std::find(palabras_.begin(), palabras_.end(), palabra) != palabras_.end();
    }
    [[nodiscard]] std::string_view Conjuncion() const { return EsCastellano() ? "Y" : "I"; }

  private:
    std::shared_ptr<const TFicheroIni> fichero_ = AbreFicheroIni(TOKENS_INI());
    const std::vector<std::string>& palabras_ = fichero_->Palabras("NUMEROS");
};

// Covers a further word of the same text, without the signs around it.
void Extiende(Tramo& tramo, std::string_view texto, std::string_view palabra, std::string_view signos) {
    palabra.remove_prefix(std::min(palabra.find_first_not_of(signos), palabra.size()));
    palabra = palabra.substr(0, palabra.find_last_not_of(signos) + 1);
    const auto primera = static_cast<std::size_t>(palabra.data() - texto.data());
    const auto fin = primera + palabra.size();
    if (tramo.Longitud == 0) {
        tramo = {primera, palabra.size()};
        return;
    }
    const auto nueva = std::min(tramo.Primera, primera);
    tramo = {nueva, std::max(tramo.Primera + tramo.Longitud, fin) - nueva};
}

int Convierte(const std::string& palabras) {
    return ConvierteNumeroDeCadenaAEnteroNvx(palabras, EsCatalan());
}

}  // namespace

TNumeroLeido NumeroInicial(std::string_view texto) {
    const TNumerosDelIdioma idioma;
    std::string acumulado;
    bool conjuncionPendiente = false;
    TNumeroLeido leido;
    leido.Resto = texto;
    while (true) {
        const auto [cruda, resto] = PrimeraPalabra(leido.Resto);
        leido.Resto = resto;
        const std::string palabra = QuitaCaracteres(cruda, SIGNOS_AL_EMPEZAR);
        if (palabra.empty()) break;
        if (const auto digitos = EnteroDeCadena(palabra)) {
            leido.Numero = *digitos;
            leido.Donde = {};
            Extiende(leido.Donde, texto, cruda, SIGNOS_AL_EMPEZAR);
            return leido;
        }
        if (idioma.EsNumero(palabra)) {
            if (!acumulado.empty()) {
                if (conjuncionPendiente) acumulado.append(" ").append(idioma.Conjuncion());
                acumulado += ' ';
            }
            acumulado += palabra;
            conjuncionPendiente = false;
            Extiende(leido.Donde, texto, cruda, SIGNOS_AL_EMPEZAR);
        } else if (palabra == idioma.Conjuncion()) {
            conjuncionPendiente = true;
        } else if (acumulado.empty()) {
            conjuncionPendiente = false;
        } else {
            break;
        }
    }
    if (!acumulado.empty()) leido.Numero = Convierte(acumulado);
    return leido;
}

TNumeroLeido NumeroFinal(std::string_view texto) {
    const TNumerosDelIdioma idioma;
    std::vector<std::string> alReves;  // the number's words, last first
    bool conjuncionPendiente = false;
    TNumeroLeido leido;
    std::string_view resto = texto;
    while (true) {
        const auto [cruda, anterior] = UltimaPalabra(resto);
        resto = anterior;
        const std::string palabra = QuitaCaracteres(cruda, SIGNOS_AL_ACABAR);
        if (palabra.empty()) break;
        if (const auto digitos = EnteroDeCadena(palabra)) {
            leido.Numero = *digitos;
            leido.Donde = {};
            Extiende(leido.Donde, texto, cruda, SIGNOS_AL_ACABAR);
            return leido;
        }
        if (idioma.EsNumero(palabra)) {
            if (!alReves.empty() && conjuncionPendiente) alReves.emplace_back(idioma.Conjuncion());
            alReves.push_back(palabra);
            conjuncionPendiente = false;
            Extiende(leido.Donde, texto, cruda, SIGNOS_AL_ACABAR);
        } else if (palabra == idioma.Conjuncion()) {
            conjuncionPendiente = true;
        } else if (alReves.empty()) {
            conjuncionPendiente = false;
        } else {
            break;
        }
    }
    std::string acumulado;
    for (auto palabra = alReves.rbegin(); palabra != alReves.rend(); ++palabra) {
        if (!acumulado.empty()) acumulado += ' ';
        acumulado += *palabra;
    }
    if (!acumulado.empty()) leido.Numero = Convierte(acumulado);
    return leido;
}

}  // namespace analizador
