#include <map>

#include "plataforma/Ansi.h"
#include "plataforma/Rnumcad.h"
#include "plataforma/Rut.h"
#include "programas/analiza/RevisionVocabulario.h"

namespace analizador {

namespace {

constexpr std::size_t MESES = 13;  // the twelve and a second spelling of September
constexpr std::string_view SIGNOS_DE_NUMERO = ".,-;\"\t";

class TRevisorEntradas {
  public:
    TRevisorEntradas(const TFicheroIni& ini, const TSeccionVocabulario& seccion)
        : FSeccion(seccion), FEntradas(Entradas(ini, seccion.Nombre)) {
        for (const auto& entrada : FEntradas) FPrimeras.emplace(entrada.Texto, entrada.Linea);
    }

    [[nodiscard]] std::vector<TReparo> Revisa() {
        for (const auto& entrada : FEntradas) {
            RevisaRepetida(entrada);
            RevisaPlegado(entrada);
            RevisaFinal(entrada);
            RevisaPalabraNumero(entrada);
        }
        if (FSeccion.Nombre == "MESES" && !FEntradas.empty() && FEntradas.size() != MESES)
            Repara(true, FEntradas.back(),
                   "los meses son trece: los doce por su orden y otra forma de septiembre");
        return std::move(FReparos);
    }

  private:
    void Repara(bool error, const TEntradaVocabulario& entrada, const std::string& texto) {
        FReparos.push_back({error, entrada.Linea, "[" + std::string(FSeccion.Nombre) + "] " + texto});
    }

    void RevisaRepetida(const TEntradaVocabulario& entrada) {
        if (const int primera = FPrimeras.at(entrada.Texto); primera != entrada.Linea)
            Repara(false, entrada,
                   EntreComillas(entrada.Texto) + " está repetida (línea " + Int_Cad(primera) + ")");
    }

    // A heading is searched as it is written; all the rest in folded text.
    void RevisaPlegado(const TEntradaVocabulario& entrada) {
        const std::string plegada = Pliega(entrada.Texto);
        if (plegada == entrada.Texto) return;
        if (FSeccion.Modo == TModoSeccion::Titulo)
            Repara(false, entrada,
                   EntreComillas(entrada.Texto) + " solo halla el título escrito exactamente así");
        else
            Repara(true, entrada,
                   EntreComillas(entrada.Texto) + " lleva " +
                       (AnsiUpperCase(entrada.Texto) == entrada.Texto ? "acentos" : "minúsculas") +
                       " y no se encuentra: se escribe " + EntreComillas(plegada));
    }

    void RevisaFinal(const TEntradaVocabulario& entrada) {
        if (FSeccion.SaltaUno && (entrada.Texto.ends_with(' ') || entrada.Texto.ends_with('\'')))
            Repara(false, entrada,
                   EntreComillas(entrada.Texto) +
                       " acaba en blanco o apóstrofo: tras la entrada se salta un carácter y se perdería la "
                       "primera letra");
    }

    // Words come to the list without their signs; the form that has them is no harm beside the other.
    void RevisaPalabraNumero(const TEntradaVocabulario& entrada) {
        if (FSeccion.Modo != TModoSeccion::PalabraIgual) return;
        const std::string pelada = QuitaCaracteres(entrada.Texto, SIGNOS_DE_NUMERO);
        if (entrada.Texto.find(' ') != std::string::npos)
            Repara(true, entrada,
                   EntreComillas(entrada.Texto) + " no se encuentra: se compara con una sola palabra");
        else if (!FPrimeras.contains(pelada))
            Repara(true, entrada,
                   EntreComillas(entrada.Texto) + " no se encuentra: los signos se quitan antes; falta " +
                       EntreComillas(pelada));
    }

    const TSeccionVocabulario& FSeccion;
    std::vector<TEntradaVocabulario> FEntradas;
    std::map<std::string, int> FPrimeras;  // text, line of its first appearance
    std::vector<TReparo> FReparos;
};

}  // namespace

std::vector<TReparo> RevisaEntradas(const TVocabulario& vocabulario) {
    std::vector<TReparo> reparos;
    for (const auto& seccion : SeccionesVocabulario()) {
        const auto dentro = TRevisorEntradas(vocabulario.Ini, seccion).Revisa();
        reparos.insert(reparos.end(), dentro.begin(), dentro.end());
    }
    return reparos;
}

}  // namespace analizador
