#include "analizador/ClaseAnalizadorAbierto.h"
#include "analizador/ConstAnalizador.h"
#include "analizador/Parrafos.h"
#include "plataforma/Rnumcad.h"
#include "rutinas/RutAnalizador.h"

namespace analizador {

namespace {

// The document's find operation, from where the selection stands.
bool Busca(TWordDocumentoCustom& documento, std::string_view texto, bool mayusculas, bool palabras) {
    return documento.Busca(texto, {mayusculas, palabras, false, false, false, true, true, false});
}

bool BuscaTitulo(TWordDocumentoCustom& documento, std::string_view seccion, int& inicio) {
    bool encontrado = false;
    for (const std::string& entrada : ListaTokens(seccion)) {
        documento.IrAlInicioDocumento();
        if (entrada.empty() || !Busca(documento, entrada, true, true)) continue;
        const std::string parrafo =
            TraduceCaracteresExtranosDeWord(documento.GetSeleccion().GetTextoPrimerParrafo());
        if (Pos(entrada, Recorta(parrafo)) > 5) continue;
        const int comienzo = documento.GetSeleccion().GetIntervalo().Inicio;
        if (comienzo < inicio || inicio == 0) inicio = comienzo;
        encontrado = true;
    }
    return encontrado;
}

bool BuscaParrafo(TWordDocumentoCustom& documento, std::string_view seccion, bool palabras) {
    for (const std::string& entrada : ListaTokens(seccion)) {
        documento.IrAlInicioDocumento();
        if (entrada.empty() || !Busca(documento, entrada, false, palabras)) continue;
        documento.GetSeleccion().SubeParrafo(false);
        documento.GetSeleccion().BajaParrafo(true);
        return true;
    }
    return false;
}

TMarcador Marca(TWordDocumentoCustom& documento, int inicio, int fin, std::string_view nombre) {
    documento.GetSeleccion().PonIntervalo({inicio, fin});
    return documento.NuevoMarcador(nombre, true);
}

}  // namespace

std::filesystem::path TClassAnalizadorAbierto::SeleccionaArchivoTokens() {
    if (Busca(Documento(), "DAVANT MEU", false, false) && !Busca(Documento(), "ANTE MI", false, false))
        return Rutas().CATALAN_INI;
    return Rutas().CASTELLANO_INI;
}

void TClassAnalizadorAbierto::InicializaIntervalosParaLosMarcadores() {
    FinCabecera = FinDocumento;
    FinComparecientes = FinDocumento;
    FinIntervinientes = FinDocumento;
    FinExponen = FinDocumento;
    InicioComparecientes = 0;
    InicioIntervinientes = 0;
    InicioExponen = 0;
    if (BuscarTokenComparecientes()) FinCabecera = InicioComparecientes;
    if (BuscarTokenIntervinientes()) {
        FinComparecientes = InicioIntervinientes;
        if (FinCabecera == FinDocumento) FinCabecera = InicioIntervinientes;
    }
    if (BuscarTokenExponen()) {
        FinIntervinientes = InicioExponen;
        if (FinCabecera == FinDocumento) FinCabecera = InicioExponen;
        if (FinComparecientes == FinDocumento) FinComparecientes = InicioExponen;
    }
}

bool TClassAnalizadorAbierto::BuscarTokenComparecientes() {
    return BuscaTitulo(Documento(), "COMPARECIENTES", InicioComparecientes);
}

bool TClassAnalizadorAbierto::BuscarTokenIntervinientes() {
    return BuscaTitulo(Documento(), "INTERVINIENTES", InicioIntervinientes);
}

bool TClassAnalizadorAbierto::BuscarTokenExponen() {
    return BuscaTitulo(Documento(), "EXPONEN", InicioExponen);
}

bool TClassAnalizadorAbierto::BuscarTokenTransmision() {
    return BuscaParrafo(Documento(), "TRANSMISION", false);
}

bool TClassAnalizadorAbierto::BuscarTokenParteDeudora() {
    return BuscaParrafo(Documento(), "PARTE DEUDORA", true);
}

void TClassAnalizadorAbierto::SeleccionaCabecera() {
    MarcadorCabecera = Marca(Documento(), 0, FinCabecera, "CABECERA");
}

void TClassAnalizadorAbierto::SeleccionaComparecientes() {
    MarcadorComparecientes = Marca(Documento(), InicioComparecientes, FinComparecientes, "COMPARECIENTES");
}

void TClassAnalizadorAbierto::SeleccionaIntervinientes() {
    MarcadorIntervinientes = Marca(Documento(), InicioIntervinientes, FinIntervinientes, "INTERVINIENTES");
}

void TClassAnalizadorAbierto::SeleccionaExponen() {
    MarcadorExponen = Marca(Documento(), InicioExponen, FinExponen, "EXPONEN");
}

bool TClassAnalizadorAbierto::SeleccionaTransmision() {
    MarcadorTransmision.reset();
    const bool encontrado = BuscarTokenTransmision();
    if (encontrado) MarcadorTransmision = Documento().NuevoMarcador("TRANSMISION", true);
    return encontrado;
}

bool TClassAnalizadorAbierto::SeleccionaParteDeudora() {
    MarcadorParteDeudora.reset();
    const bool encontrado = BuscarTokenParteDeudora();
    if (encontrado) MarcadorParteDeudora = Documento().NuevoMarcador("PARTEDEUDORA", true);
    return encontrado;
}

void TClassAnalizadorAbierto::RecorreParrafosDeCabecera() {
    for (const TParrafo& parrafo : ParrafosDe(Documento(), MarcadorCabecera->Intervalo))
        DesglosaParrafoCabecera(parrafo.Texto, parrafo.Numero);
}

void TClassAnalizadorAbierto::RecorreParrafosDeComparecientes() {
    for (const TParrafo& parrafo : ParrafosDe(Documento(), MarcadorComparecientes->Intervalo))
        if (EsCliente(parrafo.Texto)) DesglosaParrafoComparecientes(parrafo.Texto, parrafo.Numero);
}

void TClassAnalizadorAbierto::RecorreParrafosDeIntervinientes() {
    const std::vector<TParrafo> parrafos = ParrafosDe(Documento(), MarcadorIntervinientes->Intervalo);
    for (std::size_t i = 0; i < parrafos.size(); ++i) {
        if (EsUnParrafoDeRepresentacion(parrafos[i].Texto))
            DesglosaParrafoRepresentacion(parrafos[i].Texto, parrafos[i].Numero);
        if (i + 1 == parrafos.size()) Cabecera.DesglosaConceptos(parrafos[i].Texto, parrafos[i].Numero);
    }
}

void TClassAnalizadorAbierto::RecorreParrafosDeExponen() {
    for (const TParrafo& parrafo : ParrafosDe(Documento(), MarcadorExponen->Intervalo))
        if (EsCliente(parrafo.Texto)) DesglosaParrafoComparecientes(parrafo.Texto, parrafo.Numero);
}

void TClassAnalizadorAbierto::DesglosaParrafoCabecera(std::string_view parrafo, int numero) {
    Cabecera.Desglosa(parrafo, numero);
}

}  // namespace analizador
