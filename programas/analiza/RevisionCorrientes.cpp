#include <algorithm>

#include "plataforma/Ansi.h"
#include "programas/analiza/RevisionVocabulario.h"

namespace analizador {

std::vector<TReparo> RevisaCorrientes(const TVocabulario& vocabulario,
                                      const std::vector<std::string>& corrientes) {
    std::vector<TReparo> reparos;
    for (const auto& seccion : SeccionesVocabulario()) {
        if (!seccion.DentroDePalabra) continue;
        for (const auto& entrada : Entradas(vocabulario.Ini, seccion.Nombre)) {
            const auto palabra = std::ranges::find_if(corrientes, [&](const std::string& corriente) {
                return corriente.size() > entrada.Texto.size() &&
                       corriente.find(entrada.Texto) != std::string::npos;
            });
            if (palabra != corrientes.end())
                reparos.push_back({false, entrada.Linea,
                                   "[" + std::string(seccion.Nombre) + "] " + EntreComillas(entrada.Texto) +
                                       " está dentro de una palabra corriente: " + Utf8DeAnsi(*palabra)});
        }
    }
    return reparos;
}

}  // namespace analizador
