// The stages that find parties and tell how they intervene, and those that add a will's and a loan's facts.

#include "analizador/ClaseAnalizadorAbierto.h"
#include "analizador/Parrafos.h"
#include "plataforma/Rnumcad.h"
#include "rutinas/RutAnalizador.h"

namespace analizador {

void TClassAnalizadorAbierto::DesglosaParrafoComparecientes(std::string_view texto, int numero) {
    TClassParrafoCompareciente parrafo(texto, numero);
    parrafo.Desglosa();
    parrafo.InsertaOtorgantes(OtorgantesEncontrados);
}

void TClassAnalizadorAbierto::DesglosaParrafoRepresentacion(std::string_view texto, int numero) {
    TClassParrafoRepresentacion parrafo(texto, numero);
    parrafo.Desglosa();
    // The one who acts for another was named before, as a rule; looked up before the paragraph adds anybody.
    TROtorgante* const representante = Otorgante(parrafo.Representante.Valor, OtorgantesEncontrados.Lista);
    parrafo.RellenaListaOtorgantes(OtorgantesEncontrados);
    if (representante == nullptr) return;
    constexpr int EN_REPRESENTACION_DE = 1;
    constexpr int INTI_REPRESENTANTE = 16;
    representante->IntervencionVRK = EN_REPRESENTACION_DE;
    representante->IntervencionINTI = INTI_REPRESENTANTE;
    auto& origenes = OtorgantesEncontrados.OrigenesDe(*representante);
    origenes["IntervencionINTI"] = origenes["IntervencionVRK"] = {numero, parrafo.Representante.Donde};
}

void TClassAnalizadorAbierto::DesglosaParrafoParteDeudora(std::string_view texto, int numero) {
    TClassParrafoParteDeudora parrafo(texto, numero);
    parrafo.Desglosa();
    parrafo.RellenaListaOtorgantes(OtorgantesEncontrados);
}

void TClassAnalizadorAbierto::RecorreParrafoTransmision() {
    constexpr int SIN_INTERVENCION = 99;
    const TIntervalo intervalo = MarcadorTransmision->Intervalo;
    const std::string texto = TraduceCaracteresExtranosDeWord(Documento().GetTexto(intervalo));
    const TPosicionesPorParrafo posiciones(texto, Documento().GetNumeroParrafo(intervalo.Inicio), 0);
    for (std::size_t i = 0; i < OtorgantesEncontrados.Lista.Cuenta(); ++i) {
        TROtorgante& otorgante = *OtorgantesEncontrados.Lista[i].Objeto;
        if (otorgante.IntervencionINTI != SIN_INTERVENCION) continue;
        const auto hallada = BuscaIntervencionVenden(texto, otorgante.NombreOtorgante());
        otorgante.IntervencionINTI = hallada.Valor;
        if (hallada.Donde.Longitud != 0)
            OtorgantesEncontrados.Origenes[i]["IntervencionINTI"] = posiciones.Origen(hallada.Donde);
    }
}

}  // namespace analizador
