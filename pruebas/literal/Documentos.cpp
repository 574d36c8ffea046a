#include "plataforma/Rnumcad.h"
#include "plataforma/Rvarias.h"
#include "rutinas/RutAnalizador.h"

namespace analizador {

namespace {

bool EsDigito(char c) {
    return c >= '0' && c <= '9';
}

// Of the words that introduce each kind the one nearest to the number decides.
int TipoDeDocumento(std::string_view antes) {
    const auto posicion = [&](std::string_view seccion) {
        return ContieneToken(seccion, antes, {.Ultima = true}).Posicion;
    };
    const int nif = posicion("NIF");
    const int nie = posicion("NIE");
    const int pasaporte = posicion("PASAPORTE");
    if (nif != 0 && nif > nie && nif > pasaporte) return 1;
    if (nie != 0 && nie > nif && nie > pasaporte) return 3;
    if (pasaporte != 0 && pasaporte > nif && pasaporte > nie) return 4;
    return 5;
}

TRDocumento Documento(const std::string& candidato, std::string_view antes) {
    if (EsNif(candidato, false)) return {1, FormateaDNI(StrCeros(candidato, 9))};
    if (EsUnNie(candidato, false)) return {3, candidato};
    return {TipoDeDocumento(antes), candidato};
}

}  // namespace

std::vector<THallazgo<TRDocumento>> BuscaDocumentos(std::string_view parrafo) {
    std::vector<THallazgo<TRDocumento>> documentos;
    const std::string texto = std::string(parrafo) + " ";
    for (std::size_t i = 0; i < texto.size();) {
        const std::size_t blanco = EsDigito(texto[i]) ? texto.rfind(' ', i) : std::string::npos;
        if (blanco == std::string::npos) {
            ++i;
            continue;
        }
        const std::string palabra = texto.substr(blanco + 1, texto.find(' ', blanco + 1) - blanco - 1);
        const std::string candidato = QuitaCaracteres(palabra, "\t\n\r,.-()");
        if (candidato.size() > 5)
            documentos.push_back({Documento(candidato, texto.substr(0, blanco + 1)), {}});
        i += palabra.size() + 1;
    }
    return documentos;
}

THallazgo<std::string> BuscaCif(std::string_view texto) {
    constexpr std::string_view LETRAS = "ABCDEFGHKLMNPQS";
    const std::string buscado = " " + QuitaCaracter(texto, '\t') + " ";
    std::string cif;
    for (std::size_t i = 0; i < buscado.size();) {
        if (!EsDigito(buscado[i])) {
            ++i;
            continue;
        }
        const std::size_t inicio = buscado.rfind(' ', i) + 1;
        const std::string palabra = buscado.substr(inicio, buscado.find_first_of(" \n", inicio) - inicio);
        cif = QuitaCaracteres(palabra, ".-,;\t\n\r");
        if (cif.size() <= 7) {
            cif.clear();
        } else if (LETRAS.find(cif.front()) != std::string_view::npos &&
                   cif.find_first_not_of("0123456789", 1) == std::string::npos && EsUnCif(cif, true)) {
            break;
        }
        i += palabra.size() + 1;
    }
    return {cif, {}};
}

}  // namespace analizador
