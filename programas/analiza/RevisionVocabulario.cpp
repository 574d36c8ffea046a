#include "programas/analiza/RevisionVocabulario.h"

#include <algorithm>
#include <iterator>

#include "plataforma/Ansi.h"
#include "plataforma/Rnumcad.h"
#include "plataforma/Utf8.h"

namespace analizador {

TPalabrasCorrientes LeePalabrasCorrientes(std::string_view utf8) {
    TPalabrasCorrientes palabras;
    std::vector<std::string>* lista = nullptr;
    const std::string texto = AnsiDeUtf8(utf8);
    std::string_view resto = texto;
    while (!resto.empty()) {
        const std::size_t fin = resto.find('\n');
        const std::string_view linea = Recorta(resto.substr(0, fin));
        resto.remove_prefix(fin == std::string_view::npos ? resto.size() : fin + 1);
        if (linea.starts_with(';')) continue;
        if (linea.starts_with('[')) {
            lista = linea == "[CASTELLANO]" ? &palabras.Castellano
                    : linea == "[CATALAN]"  ? &palabras.Catalan
                                            : nullptr;
            continue;
        }
        if (lista != nullptr) std::ranges::move(PalabrasPlegadas(linea), std::back_inserter(*lista));
    }
    return palabras;
}

std::vector<TReparo> RevisaVocabulario(const TVocabulario& vocabulario,
                                       const std::vector<std::string>& corrientes) {
    std::vector<TReparo> reparos;
    for (auto& parte : {RevisaBytes(vocabulario), RevisaSecciones(vocabulario), RevisaEntradas(vocabulario),
                        RevisaTapadas(vocabulario), RevisaCorrientes(vocabulario, corrientes)})
        reparos.insert(reparos.end(), parte.begin(), parte.end());
    std::ranges::stable_sort(reparos, {}, &TReparo::Linea);
    return reparos;
}

std::string LineaDeReparo(const TVocabulario& vocabulario, const TReparo& reparo) {
    const std::string linea = reparo.Linea == 0 ? "" : ":" + Int_Cad(reparo.Linea);
    return EnUnaLinea(vocabulario.Nombre + linea + (reparo.Error ? ": error: " : ": aviso: ") + reparo.Texto);
}

}  // namespace analizador
