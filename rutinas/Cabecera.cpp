#include <algorithm>

#include "analizador/ConstAnalizador.h"
#include "plataforma/Confnvx.h"
#include "plataforma/Rnumcad.h"
#include "plataforma/Rut.h"
#include "plataforma/Ruttb.h"
#include "rutinas/RutAnalizador.h"
#include "rutinas/TextoSin.h"
#include "rutinas/Tratamiento.h"

namespace analizador {

namespace {

// What follows the phrase found, without the one character (a blank or a sign) right after it.
std::string_view TrasLaFrase(std::string_view texto, const TToken& token) {
    return StrRight(texto,
                    static_cast<int>(texto.size()) - token.Posicion - static_cast<int>(token.Entrada.size()));
}

// The number without the signs that stand around it.
std::string_view SinSignos(std::string_view numero) {
    constexpr std::string_view SIGNOS = " \n:.-";
    numero.remove_prefix(std::min(numero.find_first_not_of(SIGNOS), numero.size()));
    return numero.substr(0, numero.find_last_not_of(SIGNOS) + 1);
}

}  // namespace

int PosicionPunto(std::string_view texto) {
    std::size_t punto = texto.find('.');
    if (!EsCastellano())
        while (punto != std::string_view::npos && punto > 0 && punto + 1 < texto.size() &&
               texto[punto - 1] == 'L' && texto[punto + 1] == 'L')
            punto = texto.find('.', punto + 1);
    return punto == std::string_view::npos ? 0 : static_cast<int>(punto) + 1;
}

THallazgo<int> BuscaNumeroProtocolo(std::string_view parrafo) {
    const TTextoSin limpio(parrafo, "\t\r");
    const TToken frase = ContieneToken("NUMERO", limpio.Texto());
    if (frase.Posicion == 0) return {};
    std::string_view resto = TrasLaFrase(limpio.Texto(), frase);
    if (const int punto = PosicionPunto(resto); punto != 0) resto = StrLeft(resto, punto);
    resto = Recorta(resto);
    std::string numero = QuitaCaracteres(resto, ":.");
    std::replace(numero.begin(), numero.end(), '-', ' ');
    const int valor = ConvierteNumeroDeCadenaAEnteroNvx(Recorta(numero), EsCatalan());
    return valor == 0 ? THallazgo<int>{} : THallazgo<int>{valor, limpio.Original(SinSignos(resto))};
}

namespace {

constexpr int MES_SEPTIEMBRE = 9;
constexpr int ENTRADA_SETIEMBRE = 13;  // a second spelling of the ninth month

// The first town, in the order of the office's table, that the folded paragraph names.
std::optional<THallazgo<TLugar>> BuscaLugar(std::string_view plegado) {
    const auto tabla = CreaTabla(Config().GetAliasNorvex(), "AYUNTAM.DBF", "LUGAR", true, false);
    if (!TBRango(*tabla, {{"LUGAR", 1}}, {{"LUGAR", 99}})) return std::nullopt;
    for (; !tabla->Fin(); tabla->Siguiente()) {
        const std::string nombre = Pliega(tabla->Texto("NOMBRE"));
        if (const int posicion = Pos(nombre, plegado); posicion != 0)
            return THallazgo<TLugar>{{tabla->Entero("LUGAR"), tabla->Texto("ABREVIATUR")},
                                     {static_cast<std::size_t>(posicion) - 1, nombre.size()}};
    }
    return std::nullopt;
}

THallazgo<std::string> LeeFecha(std::string_view plegado, const TToken& mes) {
    const auto principio = static_cast<std::size_t>(mes.Posicion) - 1;
    const auto fin = principio + mes.Entrada.size();
    const TNumeroLeido dia = NumeroFinal(plegado.substr(0, principio));
    const TNumeroLeido anno = NumeroInicial(plegado.substr(fin));
    const int numeroMes = mes.Numero == ENTRADA_SETIEMBRE ? MES_SEPTIEMBRE : mes.Numero;
    const std::size_t primera = dia.Donde.Longitud != 0 ? dia.Donde.Primera : principio;
    const std::size_t ultima =
        anno.Donde.Longitud != 0 ? fin + anno.Donde.Primera + anno.Donde.Longitud : fin;
    return {StrCeros(dia.Numero, 2) + "/" + StrCeros(numeroMes, 2) + "/" + StrCeros(anno.Numero, 2),
            {primera, ultima - primera}};
}

}  // namespace

TLugarFecha BuscaLugarFecha(std::string_view parrafo) {
    const std::string plegado = Pliega(parrafo);
    const TToken mes = ContieneToken("MESES", plegado, {.Plegado = false, .PrimeraEntrada = true});
    if (mes.Posicion == 0) return {};
    return {BuscaLugar(plegado), LeeFecha(plegado, mes)};
}

namespace {

// The office's notaries: its list, or the single one.
std::vector<std::string> NotariosDeLaOficina() {
    const TConfig& config = Config();
    return config.GetnCuantos() != 0 ? config.GetNotarios() : std::vector<std::string>{config.GetNombre1()};
}

bool EsDeLaOficina(std::string_view nombre, const std::vector<std::string>& notarios) {
    const std::string plegado = Pliega(nombre);
    return std::any_of(notarios.begin(), notarios.end(), [&](const auto& n) { return Pliega(n) == plegado; });
}

// The notary for whom another one acts: named in the paragraph exactly as the office writes the name.
THallazgo<std::string> NotarioSustituido(std::string_view parrafo, const std::vector<std::string>& notarios) {
    for (const std::string& notario : notarios)
        if (const int posicion = Pos(notario, parrafo); posicion != 0)
            return {notario, {static_cast<std::size_t>(posicion) - 1, notario.size()}};
    return {};
}

}  // namespace

TNotario BuscaNotario(std::string_view parrafo) {
    const TTextoSin limpio(parrafo, "\t\r");
    const TToken frase = ContieneToken("ANTE MI", limpio.Texto());
    if (frase.Posicion == 0) return {};
    std::string_view nombre = TrasLaFrase(limpio.Texto(), frase);
    nombre = SinTratamientoInicial(Recorta(nombre.substr(0, nombre.find(','))));
    const THallazgo<std::string> hallado{std::string(nombre), limpio.Original(nombre)};
    const std::vector<std::string> notarios = NotariosDeLaOficina();
    const bool sustituye = !EsDeLaOficina(nombre, notarios) &&
                           ContieneToken("SUSTITUTO", limpio.Texto(), {.PrimeraEntrada = true}).Posicion != 0;
    if (!sustituye) return {hallado, {}};
    return {NotarioSustituido(parrafo, notarios), hallado};
}

}  // namespace analizador
