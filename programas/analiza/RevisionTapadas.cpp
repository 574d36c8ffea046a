#include <algorithm>

#include "plataforma/Rnumcad.h"
#include "programas/analiza/Palabras.h"
#include "programas/analiza/RevisionVocabulario.h"

namespace analizador {

namespace {

struct TCandidata {
    const TSeccionVocabulario* Seccion;
    TEntradaVocabulario Entrada;
};

// The entries that are searched together with a section's own, in the order in which they are tried.
std::vector<TCandidata> Candidatas(const TFicheroIni& ini, const TSeccionVocabulario& seccion) {
    std::vector<TCandidata> candidatas;
    for (const auto& otra : SeccionesVocabulario())
        if (&otra == &seccion || (!seccion.Grupo.empty() && otra.Grupo == seccion.Grupo))
            for (auto& entrada : Entradas(ini, otra.Nombre))
                candidatas.push_back({&otra, std::move(entrada)});
    return candidatas;
}

bool Contiene(const std::string& texto, const std::string& parte) {
    return texto.find(parte) != std::string::npos;
}

// Whether an entry that is tried before always takes the place of the later one: whenever `despues` is in a
// text, `antes` is there too and counts instead.
bool Tapa(TModoSeccion modo, const std::string& antes, const std::string& despues) {
    if (antes == despues) return false;  // told as repeated
    switch (modo) {
        case TModoSeccion::PrimeraDeLaLista:
        case TModoSeccion::BastaUna:
        case TModoSeccion::TodasPorLista:
            return Contiene(despues, antes);
        case TModoSeccion::PrimeraPalabra:
            return BuscaPalabra(despues, antes) != std::string::npos;
        // What is found inside the later one, but not at its start, stands further right and so loses.
        case TModoSeccion::MasALaIzquierda:
        case TModoSeccion::TodasPorPosicion:
            return despues.starts_with(antes);
        case TModoSeccion::Tratamiento:
            return despues.starts_with(antes + " ");
        // Each entry counts at a place of its own.
        case TModoSeccion::Titulo:
        case TModoSeccion::UltimasMasALaIzquierda:
        case TModoSeccion::PalabraIgual:
            return false;
    }
    return false;
}

std::string Descrita(const TCandidata& candidata, const TSeccionVocabulario& seccion) {
    const std::string donde =
        candidata.Seccion == &seccion ? "" : "[" + std::string(candidata.Seccion->Nombre) + "], ";
    return EntreComillas(candidata.Entrada.Texto) + " (" + donde + "línea " +
           Int_Cad(candidata.Entrada.Linea) + ")";
}

void RevisaSeccion(const TFicheroIni& ini, const TSeccionVocabulario& seccion,
                   std::vector<TReparo>& reparos) {
    const auto candidatas = Candidatas(ini, seccion);
    const std::string titulo = "[" + std::string(seccion.Nombre) + "] ";
    for (auto una = candidatas.begin(); una != candidatas.end(); ++una) {
        if (una->Seccion != &seccion) continue;
        const std::string& texto = una->Entrada.Texto;
        const auto tapa = std::find_if(candidatas.begin(), una, [&](const TCandidata& otra) {
            return Tapa(seccion.Modo, otra.Entrada.Texto, texto);
        });
        if (tapa != una)
            reparos.push_back({false, una->Entrada.Linea,
                               titulo + EntreComillas(texto) + " no gana nunca: antes se encuentra " +
                                   Descrita(*tapa, seccion)});
        // Every mention counts, so the short one has to be met at its own place too.
        const auto larga = std::find_if(candidatas.begin(), una, [&](const TCandidata& otra) {
            return otra.Entrada.Texto != texto && Contiene(otra.Entrada.Texto, texto);
        });
        if (seccion.Modo == TModoSeccion::TodasPorLista && larga != una)
            reparos.push_back({false, una->Entrada.Linea,
                               titulo + EntreComillas(texto) + " va antes que " + Descrita(*larga, seccion) +
                                   ", que la contiene: si no, se saltan menciones"});
    }
}

}  // namespace

std::vector<TReparo> RevisaTapadas(const TVocabulario& vocabulario) {
    std::vector<TReparo> reparos;
    for (const auto& seccion : SeccionesVocabulario()) RevisaSeccion(vocabulario.Ini, seccion, reparos);
    return reparos;
}

}  // namespace analizador
