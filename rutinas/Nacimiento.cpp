#include <algorithm>
#include <memory>

#include "analizador/ConstAnalizador.h"
#include "plataforma/Confnvx.h"
#include "plataforma/FicheroIni.h"
#include "plataforma/Rnumcad.h"
#include "plataforma/Rut.h"
#include "plataforma/Ruttb.h"
#include "plataforma/Rvarias.h"
#include "rutinas/Buscador.h"
#include "rutinas/Leido.h"
#include "rutinas/PalabrasEnteras.h"
#include "rutinas/RutAnalizador.h"
#include "rutinas/TextoSin.h"

namespace analizador {

namespace {

constexpr std::size_t NADA = std::string_view::npos;
constexpr std::string_view SIGNOS_DE_FECHA = ".-;,";
constexpr int GRUPO_PROVINCIAS = 1;
constexpr int MES_SEPTIEMBRE = 9;
constexpr int ENTRADA_SETIEMBRE = 13;  // a second spelling of the ninth month

// ---- Date

// The text as the readers of a date see it: signs are blanks, positions hold.
std::string SinSignosDeFecha(std::string texto) {
    std::replace_if(
        texto.begin(), texto.end(), [](char c) { return SIGNOS_DE_FECHA.find(c) != NADA; }, ' ');
    return texto;
}

struct TMesLeido {
    int Mes = 0;  // 0 when there is none
    std::string_view Resto;
};

// The first word that is a month's name or a number above 0; the words before it are skipped.
TMesLeido LeeMes(std::string_view texto) {
    const auto fichero = AbreFicheroIni(TOKENS_INI());
    const auto& meses = fichero->Palabras("MESES");
    for (TPalabra p = PrimeraPalabra(texto); !p.Palabra.empty(); p = PrimeraPalabra(p.Resto)) {
        if (const auto mes = std::find(meses.begin(), meses.end(), p.Palabra); mes != meses.end()) {
            const int numero = static_cast<int>(mes - meses.begin()) + 1;
            return {numero == ENTRADA_SETIEMBRE ? MES_SEPTIEMBRE : numero, p.Resto};
        }
        if (const int numero = Cad_Int(p.Palabra); numero > 0) return {numero, p.Resto};
    }
    return {0, texto.substr(texto.size())};
}

struct TFechaLeida {
    std::optional<TFecha> Fecha;
    Tramo Donde;
    std::size_t Fin = 0;  // where the readers stopped
};

std::optional<TFecha> FechaDe(int dia, int mes, int anno) {
    if (!EsFechaValida(dia, mes, anno)) return std::nullopt;
    return TFecha{std::chrono::year{anno}, std::chrono::month{static_cast<unsigned>(mes)},
                  std::chrono::day{static_cast<unsigned>(dia)}};
}

// `lectura`: the whole text as the readers see it; positions are in it.
TFechaLeida LeeFecha(std::string_view lectura, std::size_t desde) {
    const TNumeroLeido dia = NumeroInicial(lectura.substr(desde));
    const TMesLeido mes = LeeMes(dia.Resto);
    const TNumeroLeido anno = NumeroInicial(mes.Resto);
    const std::size_t fin = lectura.find_first_not_of(' ', lectura.size() - anno.Resto.size());
    TFechaLeida leida{FechaDe(dia.Numero, mes.Mes, anno.Numero), {}, std::min(fin, lectura.size())};
    if (leida.Fecha) {
        const std::size_t primera = desde + dia.Donde.Primera;
        const std::size_t anterior = lectura.size() - mes.Resto.size();
        leida.Donde = {primera, anterior + anno.Donde.Primera + anno.Donde.Longitud - primera};
    }
    return leida;
}

// ---- Place

std::size_t FinDeFrase(std::string_view texto) {
    const int punto = PosicionPunto(texto);
    return punto == 0 ? texto.size() : static_cast<std::size_t>(punto) - 1;
}

// What stands after a place where its province or country can be told: up to the end of the sentence after a
// comma, up to the closing bracket after an opening one.
std::string_view TextoDeProvincia(std::string_view trasElLugar) {
    if (trasElLugar.empty()) return {};
    const std::string_view texto = trasElLugar.substr(1);
    if (trasElLugar.front() == ',') return Recorta(texto.substr(0, FinDeFrase(texto)));
    if (trasElLugar.front() == '(') return Recorta(texto.substr(0, texto.find(')')));
    return {};
}

// Sets the province or the country to the first, in alphabetical order, that the text names.
void BuscaProvincia(std::string_view texto, const TTextoSin& limpio, TNacimiento& nacimiento) {
    if (texto.empty()) return;
    const TPalabrasEnteras palabras(texto);
    const auto tabla = CreaTabla(Config().GetAliasNorvex(), "PROVIN.DBF", "ALFABETICO", true, false);
    for (TBFiltra(*tabla, "GRUPO<>3"); !tabla->Fin(); tabla->Siguiente()) {
        const std::string nombre = tabla->Texto("PROVINCIA");
        const auto posicion = palabras.Busca(nombre);
        if (!posicion) continue;
        auto& campo = tabla->Entero("GRUPO") == GRUPO_PROVINCIAS ? nacimiento.Provincia : nacimiento.Pais;
        campo = {nombre, limpio.Original(texto.substr(*posicion, nombre.size()))};
        return;
    }
}

// Reads the place at the start of the text and what is told of its province. Returns what is left from the
// place's end on.
std::string_view LeeLugar(std::string_view texto, const TTextoSin& limpio, TNacimiento& nacimiento) {
    texto = RecortaIzquierda(texto);
    const std::size_t fin = std::min({texto.find_first_of(",("), FinDeFrase(texto), texto.size()});
    const std::string_view lugar = RecortaDerecha(texto.substr(0, fin));
    nacimiento.Lugar = {std::string(lugar), limpio.Original(lugar)};
    const std::string_view resto = texto.substr(fin);
    BuscaProvincia(TextoDeProvincia(resto), limpio, nacimiento);
    return resto;
}

std::string_view SinConector(std::string_view texto) {
    const TPalabra primera = PrimeraPalabra(texto);
    return primera.Palabra == (EsCastellano() ? "EN" : "A") ? primera.Resto : texto;
}

}  // namespace

TNacimiento BuscaLugaryFechaNacimiento(std::string_view parrafo) {
    const TTextoSin limpio(Pliega(parrafo), "\t\r\n");
    const std::string_view texto = limpio.Texto();
    TBuscadorEntradas lugares("LUGAR NACIMIENTO", texto);
    TBuscadorEntradas fechas("FECHA NACIMIENTO", texto);
    const auto lugar = lugares.MasALaIzquierda();
    const auto fecha = fechas.MasALaIzquierda();
    TNacimiento nacimiento;
    if (!lugar && !fecha) return nacimiento;

    std::size_t dondeFecha = fecha ? fecha->Fin() : 0;
    if (lugar) {
        const std::string_view resto = LeeLugar(texto.substr(lugar->Fin()), limpio, nacimiento);
        if (!fecha) dondeFecha = texto.size() - resto.size();
    }
    const TFechaLeida leida = LeeFecha(SinSignosDeFecha(limpio.Texto()), dondeFecha);
    nacimiento.Fecha = {leida.Fecha, limpio.Original(leida.Donde)};
    if (!lugar) LeeLugar(SinConector(texto.substr(leida.Fin)), limpio, nacimiento);
    return nacimiento;
}

}  // namespace analizador
