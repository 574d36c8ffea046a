#include "programas/analiza/Explicacion.h"

#include <algorithm>

#include "analizador/ConstAnalizador.h"
#include "plataforma/Ansi.h"
#include "plataforma/Rnumcad.h"
#include "programas/analiza/Columnas.h"

namespace analizador {

namespace {

constexpr std::size_t CONTEXTO = 24;  // characters shown at each side of an entry
constexpr std::string_view NADA = "·";

// The characters of a stretch as a person counts them, from 1: "12-15".
std::string Posiciones(Tramo donde) {
    return Int_Cad(static_cast<int>(donde.Primera) + 1) + "-" +
           Int_Cad(static_cast<int>(donde.Primera + donde.Longitud));
}

std::string EnContexto(std::string_view parrafo, Tramo donde) {
    const std::size_t principio = donde.Primera > CONTEXTO ? donde.Primera - CONTEXTO : 0;
    const std::size_t fin = donde.Primera + donde.Longitud;
    const std::string antes = Utf8DeAnsi(parrafo.substr(principio, donde.Primera - principio));
    const std::string dentro = Utf8DeAnsi(parrafo.substr(donde.Primera, donde.Longitud));
    const std::string despues = Utf8DeAnsi(Recorta(parrafo.substr(fin).substr(0, CONTEXTO)).empty()
                                               ? std::string_view{}
                                               : RecortaDerecha(parrafo.substr(fin, CONTEXTO)));
    return (principio > 0 ? "…" : "") + antes + "[" + dentro + "]" + despues +
           (fin + CONTEXTO < RecortaDerecha(parrafo).size() ? "…" : "");
}

std::string Modo(const TCasada& casada) {
    if (!casada.Gana.empty()) return "no cuenta: gana " + std::string(casada.Gana);
    return std::string(casada.Seccion->Para) + ": " + std::string(TextoDeModo(casada.Seccion->Modo));
}

std::vector<std::string> Fila(std::string_view parrafo, const TCasada& casada,
                              const TVocabulario& vocabulario) {
    const auto entradas = Entradas(vocabulario.Ini, casada.Seccion->Nombre);
    const auto entrada = std::ranges::find(entradas, casada.Numero, &TEntradaVocabulario::Numero);
    const bool hallada = entrada != entradas.end();
    return {"  " + std::string(casada.Seccion->Nombre), hallada ? EntreComillas(entrada->Texto) : "",
            hallada ? Int_Cad(entrada->Linea) : "",     Posiciones(casada.Donde),
            EnContexto(parrafo, casada.Donde),          Modo(casada)};
}

std::string TablaDeSecciones(std::string_view parrafo, const TVocabulario& vocabulario) {
    std::vector<std::vector<std::string>> filas = {
        {"  sección", "entrada", "línea", "caracteres", "en el párrafo", "qué es y cuál gana"}};
    for (const auto& casada : SeccionesQueCasan(parrafo)) filas.push_back(Fila(parrafo, casada, vocabulario));
    if (filas.size() == 1) return "  ninguna\n";
    return EnColumnas(filas, "iidd");
}

std::string TablaDeReconocedores(std::string_view parrafo) {
    std::vector<std::vector<std::string>> filas = {
        {"  reconocedor", "dato", "valor", "caracteres", "leído en"}};
    for (const auto& devuelto : ReconocedoresDe(parrafo)) {
        const Tramo donde = devuelto.Donde;
        const bool leido = donde.Longitud != 0;
        filas.push_back({"  " + devuelto.Reconocedor, devuelto.Dato,
                         devuelto.Valor.empty() ? std::string(NADA) : devuelto.Valor,
                         leido ? Posiciones(donde) : "",
                         leido ? EntreComillas(parrafo.substr(donde.Primera, donde.Longitud)) : ""});
    }
    return EnColumnas(filas, "iiid");
}

}  // namespace

std::string ParrafoDeTexto(std::string_view utf8) {
    std::string parrafo = TraduceCaracteresExtranosDeWord(AnsiDeUtf8(utf8));
    std::ranges::replace(parrafo, '\n', ' ');
    std::ranges::replace(parrafo, '\r', ' ');
    return std::string(Recorta(parrafo)) + "\r";
}

std::string Explica(std::string_view utf8, const std::filesystem::path& fichero) {
    PonTOKENS_INI(fichero);
    const TVocabulario vocabulario = LeeVocabulario(fichero);
    const std::string parrafo = ParrafoDeTexto(utf8);
    return "Párrafo de " + Int_Cad(static_cast<int>(parrafo.size()) - 1) + " caracteres, con " +
           vocabulario.Nombre + "\n\nSecciones con alguna entrada en el párrafo:\n" +
           TablaDeSecciones(parrafo, vocabulario) + "\nLo que devuelve cada reconocedor:\n" +
           TablaDeReconocedores(parrafo);
}

}  // namespace analizador
