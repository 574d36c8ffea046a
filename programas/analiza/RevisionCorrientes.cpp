#include <algorithm>
#include <map>

#include "plataforma/Ansi.h"
#include "programas/analiza/RevisionVocabulario.h"

namespace analizador {

namespace {

// Marks by the line of their entry.
using TMarcas = std::map<int, std::vector<std::string>>;

TMarcas PorLinea(const TVocabulario& vocabulario) {
    TMarcas marcas;
    for (auto& marca : MarcasConocido(vocabulario)) marcas[marca.Linea] = std::move(marca.Palabras);
    return marcas;
}

// The mark of an entry, which is taken out: what is left at the end belongs to none.
std::vector<std::string> Toma(TMarcas& marcas, int linea) {
    const auto nodo = marcas.extract(linea);
    return nodo.empty() ? std::vector<std::string>{} : std::move(nodo.mapped());
}

bool EstaEn(const std::vector<std::string>& palabras, const std::string& palabra) {
    return std::ranges::find(palabras, palabra) != palabras.end();
}

// The common words, longer than the entry, in which it hides.
std::vector<std::string> Escondrijos(const std::string& entrada, const std::vector<std::string>& corrientes) {
    std::vector<std::string> palabras;
    std::ranges::copy_if(corrientes, std::back_inserter(palabras), [&](const std::string& corriente) {
        return corriente.size() > entrada.size() && corriente.find(entrada) != std::string::npos;
    });
    return palabras;
}

TReparo Sobra(int linea, const std::string& que) {
    return {false, linea, "la marca «conocido» de encima sobra: " + que};
}

void RevisaEntrada(const std::string& titulo, const TEntradaVocabulario& entrada,
                   const std::vector<std::string>& corrientes, const std::vector<std::string>& conocidas,
                   std::vector<TReparo>& reparos) {
    const auto escondrijos = Escondrijos(entrada.Texto, corrientes);
    const auto nueva = std::ranges::find_if(
        escondrijos, [&](const std::string& palabra) { return !EstaEn(conocidas, palabra); });
    if (nueva != escondrijos.end())
        reparos.push_back({false, entrada.Linea,
                           titulo + EntreComillas(entrada.Texto) +
                               " está dentro de una palabra corriente: " + Utf8DeAnsi(*nueva)});
    for (const std::string& conocida : conocidas)
        if (!EstaEn(escondrijos, conocida))
            reparos.push_back(Sobra(entrada.Linea, EntreComillas(conocida) +
                                                       " no es una palabra corriente que contenga " +
                                                       EntreComillas(entrada.Texto)));
}

}  // namespace

std::vector<TReparo> RevisaCorrientes(const TVocabulario& vocabulario,
                                      const std::vector<std::string>& corrientes) {
    if (corrientes.empty()) return {};
    std::vector<TReparo> reparos;
    TMarcas marcas = PorLinea(vocabulario);
    for (const auto& seccion : SeccionesVocabulario()) {
        if (!seccion.DentroDePalabra) continue;
        const std::string titulo = "[" + std::string(seccion.Nombre) + "] ";
        for (const auto& entrada : Entradas(vocabulario.Ini, seccion.Nombre))
            RevisaEntrada(titulo, entrada, corrientes, Toma(marcas, entrada.Linea), reparos);
    }
    for (const auto& [linea, palabras] : marcas)
        reparos.push_back(Sobra(linea, "debajo no hay una entrada que se busque dentro de las palabras"));
    return reparos;
}

}  // namespace analizador
