// The stages that find parties and tell how they intervene, and those that add a will's and a loan's facts.

#include "analizador/ClaseAnalizadorAbierto.h"
#include "analizador/Parrafos.h"
#include "plataforma/Rnumcad.h"
#include "rutinas/RutAnalizador.h"

namespace analizador {

namespace {

constexpr int EN_REPRESENTACION_DE = 1;
constexpr int INTI_REPRESENTANTE = 16;
constexpr int SIN_INTERVENCION = 99;

}  // namespace

void TClassAnalizadorAbierto::DesglosaParrafoComparecientes(std::string_view texto, int numero) {
    TClassParrafoCompareciente parrafo(texto, numero);
    parrafo.Desglosa();
    parrafo.InsertaOtorgantes(OtorgantesEncontrados);
}

void TClassAnalizadorAbierto::DesglosaParrafoRepresentacion(std::string_view texto, int numero) {
    TClassParrafoRepresentacion parrafo(texto, numero);
    parrafo.Desglosa();
    // The one who acts for another was named before, as a rule: looked up before the paragraph adds anybody.
    const auto representante = OtorgantesEncontrados.LineaNombradaEn(parrafo.Representante.Valor);
    parrafo.RellenaListaOtorgantes(OtorgantesEncontrados);
    if (!representante) return;
    TROtorgante& otorgante = *OtorgantesEncontrados.Lista[*representante].Objeto;
    otorgante.IntervencionVRK = EN_REPRESENTACION_DE;
    otorgante.IntervencionINTI = INTI_REPRESENTANTE;
    TOrigenes& origenes = OtorgantesEncontrados.Origenes[*representante];
    origenes["IntervencionINTI"] = origenes["IntervencionVRK"] = {numero, parrafo.Representante.Donde};
}

void TClassAnalizadorAbierto::DesglosaParrafoParteDeudora(std::string_view texto, int numero) {
    TClassParrafoParteDeudora parrafo(texto, numero);
    parrafo.Desglosa();
    parrafo.RellenaListaOtorgantes(OtorgantesEncontrados);
}

void TClassAnalizadorAbierto::RecorreParrafoTransmision() {
    const TIntervalo intervalo = MarcadorTransmision->Intervalo;
    const std::string texto = TraduceCaracteresExtranosDeWord(Documento().GetTexto(intervalo));
    const TPosicionesPorParrafo posiciones(texto, Documento().GetNumeroParrafo(intervalo.Inicio), 0);
    std::vector<std::size_t> pendientes;
    std::vector<std::string> nombres;
    for (std::size_t i = 0; i < OtorgantesEncontrados.Lista.Cuenta(); ++i) {
        const TROtorgante& otorgante = *OtorgantesEncontrados.Lista[i].Objeto;
        if (otorgante.IntervencionINTI != SIN_INTERVENCION) continue;
        pendientes.push_back(i);
        nombres.push_back(otorgante.NombreOtorgante());
    }
    const auto halladas = BuscaIntervencionesVenden(texto, nombres);
    for (std::size_t k = 0; k < pendientes.size(); ++k) {
        const auto& [intervencion, donde] = halladas[k];
        OtorgantesEncontrados.Lista[pendientes[k]].Objeto->IntervencionINTI = intervencion;
        if (donde.Longitud != 0)
            OtorgantesEncontrados.Origenes[pendientes[k]]["IntervencionINTI"] = posiciones.Origen(donde);
    }
}

void TClassAnalizadorAbierto::AnalizaTestamento() {
    if (OtorgantesEncontrados.Lista.Vacia() || !OtorgantesEncontrados.Lista[0].Objeto ||
        !HayAlgunTipoTestamento())
        return;
    SeleccionaExponen();
    // The testator is the first party found.
    DesglosaIntervaloTestamento(Documento().GetTexto(MarcadorExponen->Intervalo),
                                *OtorgantesEncontrados.Lista[0].Objeto);
}

void TClassAnalizadorAbierto::DesglosaIntervaloTestamento(std::string_view texto, TROtorgante& otorgante) {
    TClassIntervaloTestamento intervalo(texto, otorgante);
    intervalo.Desglosa();
    const auto posiciones = PosicionesDeSeccion(Documento(), MarcadorExponen->Intervalo, texto);
    TOrigenes& origenes = OtorgantesEncontrados.OrigenesDe(otorgante);
    origenes.erase("IntervencionINTI");
    for (const auto& [campo, tramo] : intervalo.Tramos) {
        origenes.erase(campo);
        if (tramo.Longitud != 0) origenes[campo] = posiciones.Origen(tramo);
    }
}

void TClassAnalizadorAbierto::AnalizaPrestamo() {
    if (!HayAlgunTipoPrestamo()) return;
    SeleccionaExponen();
    DesglosaIntervaloPrestamo(Documento().GetTexto(MarcadorExponen->Intervalo), Operacion);
}

void TClassAnalizadorAbierto::DesglosaIntervaloPrestamo(std::string_view texto, TClassOperacion& operacion) {
    TClassIntervaloPrestamo intervalo(texto, operacion);
    intervalo.Desglosa();
    const auto posiciones = PosicionesDeSeccion(Documento(), MarcadorExponen->Intervalo, texto);
    for (const Tramo& tramo : intervalo.TramosPlazos)
        OrigenOperacion.Plazos.push_back(posiciones.Origen(tramo));
    for (const Tramo& tramo : intervalo.TramosTAEs) OrigenOperacion.TAEs.push_back(posiciones.Origen(tramo));
    OrigenOperacion.TipoInteres.reset();
    if (intervalo.TramoTipoInteres.Longitud != 0)
        OrigenOperacion.TipoInteres = posiciones.Origen(intervalo.TramoTipoInteres);
}

}  // namespace analizador
