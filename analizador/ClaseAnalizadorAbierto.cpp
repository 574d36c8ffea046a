#include "analizador/ClaseAnalizadorAbierto.h"

#include <algorithm>
#include <array>
#include <memory>
#include <unordered_set>
#include <utility>

#include "analizador/ConstAnalizador.h"
#include "analizador/Duplicados.h"
#include "analizador/Fincas.h"
#include "analizador/Parrafos.h"
#include "dialogos/ListaConceptosPreseleccionados.h"
#include "plataforma/Ansi.h"
#include "plataforma/Mensaje.h"
#include "plataforma/Rnumcad.h"
#include "plataforma/Ruttb.h"
#include "rutinas/IndiceNombres.h"
#include "rutinas/RutAnalizador.h"

namespace analizador {

TClassAnalizadorAbierto::TClassAnalizadorAbierto(TComponente* AOwner, TWordApplicationConDocumentos* AWord)
    : Propietario(AOwner), WordApp(AWord) {}

TWordDocumentoCustom* TClassAnalizadorAbierto::GetDocumento() const {
    return WordApp == nullptr ? nullptr : WordApp->GetDocumentoActivo();
}

TWordDocumentoCustom& TClassAnalizadorAbierto::Documento() const {
    auto* const documento = GetDocumento();
    if (documento == nullptr)
        throw ErrorWord(std::string("No hay ningún documento activo en el procesador de textos"_ansi));
    return *documento;
}

bool TClassAnalizadorAbierto::Analiza(bool SinRevision) {
    using TEtapa = void (TClassAnalizadorAbierto::*)();
    static constexpr std::array<std::pair<std::string_view, TEtapa>, 10> ETAPAS = {{
        {"Extrayendo cuantias del documento, espere un momento", &TClassAnalizadorAbierto::AnalizaCuantias},
        {"Analizando comparecientes, espere un momento", &TClassAnalizadorAbierto::AnalizaComparecientes},
        {"Analizando intervinientes, espere un momento", &TClassAnalizadorAbierto::AnalizaIntervinientes},
        {"Buscando otorgantes trasmitentes/adquirentes, espere un momento",
         &TClassAnalizadorAbierto::AnalizaTransmision},
        {"Buscando prestatario, espere un momento", &TClassAnalizadorAbierto::AnalizaParteDeudora},
        {"Buscando otorgantes testamentarios, espere un momento",
         &TClassAnalizadorAbierto::AnalizaTestamento},
        {"Buscando detalles de préstamos, espere un momento"_ansi, &TClassAnalizadorAbierto::AnalizaPrestamo},
        {"Buscando fincas introducidas, espere un momento", &TClassAnalizadorAbierto::AnalizaFincas},
        {"Eliminando otorgantes duplicados, espere un momento",
         &TClassAnalizadorAbierto::EliminaOtorgantesDuplicados},
        {"Generando informe, espere un momento", &TClassAnalizadorAbierto::RellenaPizarra},
    }};
    std::unique_ptr<TAnalisisEnCurso> enCurso;
    {
        const auto ventana = MuestraMensaje("Analizando el documento, espere un momento.", Propietario);
        if (WordApp != nullptr) enCurso = WordApp->EmpiezaAnalisis();
        InicializaAnalisis();
        CambiaMensaje("Analizando la cabecera del documento, espere un momento", ventana.get());
        AnalizaCabecera(!SinRevision);
        for (const auto& [mensaje, etapa] : ETAPAS) {
            CambiaMensaje(mensaje, ventana.get());
            (this->*etapa)();
        }
        Documento().IrAlInicioDocumento();
        if (enCurso) enCurso->MuestraSeleccion();
    }
    Aceptado = ListaConceptosPreseleccionados();
    return Aceptado;
}

void TClassAnalizadorAbierto::InicializaAnalisis() {
    PonTOKENS_INI(SeleccionaArchivoTokens());
    Documento().IrAlFinalDocumento();
    FinDocumento = Documento().GetSeleccion().GetIntervalo().Inicio;
    Documento().IrAlInicioDocumento();
    InicializaIntervalosParaLosMarcadores();
    Aceptado = false;
    Pizarra.clear();
    Empleado = Documento().VariableValor("EMPLEADO");
    Otorgantes.Limpia();
    OtorgantesEncontrados.Limpia();
    Cuantias.clear();
    OrigenCuantias.clear();
    ConceptosValidos.Limpia();
    Fincas.clear();
    Cabecera.Limpia();
    Operacion.Limpia();
    OrigenOperacion = {};
}

void TClassAnalizadorAbierto::AnalizaCabecera(bool RevisarNotario) {
    SeleccionaCabecera();
    RecorreParrafosDeCabecera();
    if (RevisarNotario) Cabecera.RevisaNotarioEnConvenio();
}

void TClassAnalizadorAbierto::AnalizaCuantias() {
    const std::string texto = TraduceCaracteresExtranosDeWord(Documento().GetTexto());
    const TPosicionesPorParrafo posiciones(texto, 1, 0);
    for (const Tramo& tramo : BuscaCuantias(texto, Cuantias))
        OrigenCuantias.push_back(posiciones.Origen(tramo));
}

void TClassAnalizadorAbierto::AnalizaComparecientes() {
    SeleccionaComparecientes();
    RecorreParrafosDeComparecientes();
}

void TClassAnalizadorAbierto::AnalizaIntervinientes() {
    if (OtorgantesEncontrados.Lista.Vacia()) return;
    SeleccionaIntervinientes();
    RecorreParrafosDeIntervinientes();
}

void TClassAnalizadorAbierto::AnalizaExponen() {
    SeleccionaExponen();
    RecorreParrafosDeExponen();
}

void TClassAnalizadorAbierto::AnalizaTransmision() {
    if (SeleccionaTransmision()) RecorreParrafoTransmision();
}

void TClassAnalizadorAbierto::AnalizaParteDeudora() {
    if (!SeleccionaParteDeudora()) return;
    const auto parrafos = ParrafosDe(Documento(), MarcadorParteDeudora->Intervalo);
    if (!parrafos.empty()) DesglosaParrafoParteDeudora(parrafos.front().Texto, parrafos.front().Numero);
}

namespace {

template <class TCondicion>
bool AlgunConcepto(const ListaTextos<TRConcepto>& conceptos, TCondicion condicion) {
    return std::any_of(conceptos.begin(), conceptos.end(),
                       [&](const auto& linea) { return linea.Objeto && condicion(*linea.Objeto); });
}

}  // namespace

bool TClassAnalizadorAbierto::HayAlgunTipoTestamento() const {
    return AlgunConcepto(Cabecera.Conceptos,
                         [](const TRConcepto& concepto) { return concepto.CodOficial.starts_with("02001"); });
}

bool TClassAnalizadorAbierto::HayAlgunTipoPrestamo() const {
    return AlgunConcepto(Cabecera.Conceptos, [](const TRConcepto& concepto) { return concepto.Prestamo; });
}

void TClassAnalizadorAbierto::AnalizaFincas() {
    std::unordered_set<std::string> vistas;
    for (const TMarcador& marcador : Documento().GetMarcadores()) {
        auto finca = NombreFinca(marcador.Nombre);
        if (finca && vistas.insert(*finca).second) Fincas.push_back(std::move(*finca));
    }
}

void TClassAnalizadorAbierto::EliminaOtorgantesDuplicados() {
    Otorgantes = UneOtorgantesDuplicados(OtorgantesEncontrados);
}

namespace {

void MarcaLosDelXml(ListaTextos<TROtorgante>& otorgantes, std::string_view xml) {
    TIndiceNombres documentos;
    for (std::size_t i = 0; i < otorgantes.Cuenta(); ++i)
        documentos.Pon(otorgantes[i].Objeto->NumDocumento, i);
    std::vector<bool> enXml(otorgantes.Cuenta());
    documentos.Recorre(xml, [&](std::size_t linea, Tramo) { enXml[linea] = true; });
    for (auto& [nombre, otorgante] : otorgantes)
        if (const auto linea = documentos.LineaDe(otorgante->NumDocumento); linea && enXml[*linea])
            otorgante->EnXML = true;
}

// Without its table there is no dialog: nullptr once the user was told.
std::unique_ptr<TFListaConceptosPreseleccionados> CreaDialogo(const std::string& informe,
                                                              const std::string& xml) {
    try {
        return std::make_unique<TFListaConceptosPreseleccionados>(informe, xml);
    } catch (const ErrorTabla& error) {
        if (InstalaMensajes::Actual() == nullptr) throw;
        Mensajes(TITULO_ATENCION, error.what());
        return nullptr;
    }
}

}  // namespace

bool TClassAnalizadorAbierto::ListaConceptosPreseleccionados() {
    const std::string xml = Documento().VariableValor("XML");
    MarcaLosDelXml(Otorgantes.Lista, xml);
    if (InstalaVistaPreseleccion::Actual() == nullptr) return false;

    const auto dialogo = CreaDialogo(Pizarra, xml);
    if (!dialogo) return false;
    dialogo->CargaListaPosiblesConceptos(Cabecera.Conceptos);
    dialogo->CargaListaPosiblesOtorgantes(Otorgantes.Lista);
    dialogo->SeleccionaTodosLosOtorgantesValidos();
    if (!dialogo->MuestraModal(Propietario)) return false;

    dialogo->RecogeListaConceptosValidos(ConceptosValidos);
    ListaTextos<TROtorgante> elegidos;
    dialogo->RecogeListaOtorgantesValidos(elegidos);
    Otorgantes.Sustituye(std::move(elegidos));
    return true;
}

}  // namespace analizador
