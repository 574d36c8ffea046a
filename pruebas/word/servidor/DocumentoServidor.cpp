#include "pruebas/word/servidor/DocumentoServidor.h"

#include <algorithm>
#include <utility>

#include "plataforma/Ansi.h"

namespace analizador::pruebas {

TDocumentoServidor::TDocumentoServidor(TContenidoDocumento contenido)
    : FMemoria(std::make_unique<TDocumentoMemoria>(std::move(contenido))), FParrafos(Contenido().Texto) {
    const std::string& texto = Contenido().Texto;
    for (std::size_t i = 0; i < texto.size(); ++i)
        if (i == 0 || texto[i] != '\a' || texto[i - 1] != '\r') FIndices.push_back(static_cast<int>(i));
    FIndices.push_back(static_cast<int>(texto.size()));
}

void TDocumentoServidor::Cambia(TContenidoDocumento contenido) {
    TDocumentoServidor nuevo(std::move(contenido));
    FMemoria = std::move(nuevo.FMemoria);
    FParrafos = std::move(nuevo.FParrafos);
    FIndices = std::move(nuevo.FIndices);
}

int TDocumentoServidor::Posicion(int indice) const {
    return static_cast<int>(std::lower_bound(FIndices.begin(), FIndices.end(), indice) - FIndices.begin());
}

TIntervalo TDocumentoServidor::Posiciones(TIntervalo indices) const {
    return {Posicion(indices.Inicio), Posicion(indices.Fin)};
}

void TDocumentoServidor::CompruebaRango(TIntervalo rango) const {
    const bool vacioAlFinal = rango.Inicio == rango.Fin && rango.Fin == Longitud();
    if (rango.Inicio < 0 || rango.Fin > Longitud() || rango.Inicio > rango.Fin || vacioAlFinal)
        throw TErrorDeWord{4608, u"Value out of range."};
}

void TDocumentoServidor::CompruebaAbierto() const {
    if (!Abierto) throw TErrorDeWord{5825, u"Object has been deleted."};
}

std::u16string TDocumentoServidor::Texto(TIntervalo rango, bool ocultos, bool codigos) const {
    const std::string& texto = Contenido().Texto;
    const auto falta = [&](int indice) {
        return std::any_of(Manchas.begin(), Manchas.end(), [&](const TMancha& mancha) {
            const bool seQuita = (mancha.Tinta == TTinta::Oculta && !ocultos) ||
                                 (mancha.Tinta == TTinta::CodigoDeCampo && !codigos);
            return seQuita && indice >= mancha.Intervalo.Inicio && indice < mancha.Intervalo.Fin;
        });
    };
    std::string leido;
    for (int i = Indice(rango.Inicio); i < Indice(rango.Fin); ++i)
        if (!falta(i)) leido.push_back(texto[static_cast<std::size_t>(i)]);
    return Utf16DeUtf8(Utf8DeAnsi(leido));
}

}  // namespace analizador::pruebas
