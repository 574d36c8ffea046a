// Where the sections of the deed are, and the walk over the paragraphs of each.

#include <algorithm>
#include <string>

#include "analizador/ClaseAnalizadorAbierto.h"
#include "analizador/ConstAnalizador.h"
#include "analizador/Parrafos.h"
#include "plataforma/FicheroIni.h"
#include "plataforma/Rnumcad.h"
#include "plataforma/Rut.h"
#include "rutinas/RutAnalizador.h"

namespace analizador {

namespace {

// The searches differ only in whether case and whole words count.
constexpr TOpcionesBusqueda Opciones(bool mayusculas, bool palabras) {
    return {
        .DistingueMayusculas = mayusculas, .PalabrasCompletas = palabras, .Adelante = true, .Continua = true};
}

constexpr int POSICION_MAXIMA_DE_TITULO = 5;

// The paragraph in which an entry was found, in plain characters. Several are often found in the same one,
// which is read once.
class TParrafoLlano {
  public:
    // A heading begins its paragraph, but for a few signs. An entry that is not in the plain text counts as
    // one.
    [[nodiscard]] bool Encabeza(const std::string& entrada, const TSeleccion& seleccion) {
        const int comienzo = seleccion.GetIntervalo().Inicio;
        if (comienzo < intervalo_.Inicio || comienzo >= intervalo_.Fin) {
            const auto [intervalo, texto] = seleccion.GetPrimerParrafo();
            intervalo_ = intervalo;
            llano_ = TraduceCaracteresExtranosDeWord(texto);
        }
        return Pos(entrada, Recorta(llano_)) <= POSICION_MAXIMA_DE_TITULO;
    }

  private:
    TIntervalo intervalo_;
    std::string llano_;
};

// Looks for the first occurrence of each entry; of those that are headings the earliest in the document sets
// the start. A start of 0 is one not set yet, so a heading at the very start of the document gives way to any
// other.
bool BuscaTitulo(TWordDocumentoCustom& documento, std::string_view seccion, int& inicio) {
    const auto fichero = AbreFicheroIni(TOKENS_INI());
    TParrafoLlano parrafo;
    bool encontrado = false;
    for (const std::string& entrada : fichero->Palabras(seccion)) {
        documento.IrAlInicioDocumento();
        if (entrada.empty() || !documento.Busca(entrada, Opciones(true, true))) continue;
        const TSeleccion& seleccion = documento.GetSeleccion();
        if (!parrafo.Encabeza(entrada, seleccion)) continue;
        const int comienzo = seleccion.GetIntervalo().Inicio;
        if (comienzo < inicio || inicio == 0) inicio = comienzo;
        encontrado = true;
    }
    return encontrado;
}

// Selects the paragraph of the first entry in file order that occurs anywhere.
bool BuscaParrafo(TWordDocumentoCustom& documento, std::string_view seccion, TOpcionesBusqueda opciones) {
    const auto fichero = AbreFicheroIni(TOKENS_INI());
    for (const std::string& entrada : fichero->Palabras(seccion)) {
        documento.IrAlInicioDocumento();
        if (entrada.empty() || !documento.Busca(entrada, opciones)) continue;
        documento.GetSeleccion().SubeParrafo(false);
        documento.GetSeleccion().BajaParrafo(true);
        return true;
    }
    return false;
}

TMarcador MarcaSeccion(TWordDocumentoCustom& documento, TIntervalo intervalo, std::string_view nombre) {
    documento.GetSeleccion().PonIntervalo(intervalo);
    return documento.NuevoMarcador(nombre, true);
}

}  // namespace

std::filesystem::path TClassAnalizadorAbierto::SeleccionaArchivoTokens() {
    constexpr TOpcionesBusqueda OPCIONES = Opciones(false, false);
    TWordDocumentoCustom& documento = Documento();
    const bool catalan = documento.Busca("DAVANT MEU", OPCIONES) && !documento.Busca("ANTE MI", OPCIONES);
    return catalan ? Rutas().CATALAN_INI : Rutas().CASTELLANO_INI;
}

void TClassAnalizadorAbierto::InicializaIntervalosParaLosMarcadores() {
    FinCabecera = FinComparecientes = FinIntervinientes = FinExponen = FinDocumento;
    InicioComparecientes = InicioIntervinientes = InicioExponen = 0;
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
    return BuscaParrafo(Documento(), "TRANSMISION", Opciones(false, false));
}

bool TClassAnalizadorAbierto::BuscarTokenParteDeudora() {
    return BuscaParrafo(Documento(), "PARTE DEUDORA", Opciones(false, true));
}

void TClassAnalizadorAbierto::SeleccionaCabecera() {
    MarcadorCabecera = MarcaSeccion(Documento(), {0, FinCabecera}, "CABECERA");
}

void TClassAnalizadorAbierto::SeleccionaComparecientes() {
    MarcadorComparecientes =
        MarcaSeccion(Documento(), {InicioComparecientes, FinComparecientes}, "COMPARECIENTES");
}

void TClassAnalizadorAbierto::SeleccionaIntervinientes() {
    MarcadorIntervinientes =
        MarcaSeccion(Documento(), {InicioIntervinientes, FinIntervinientes}, "INTERVINIENTES");
}

void TClassAnalizadorAbierto::SeleccionaExponen() {
    MarcadorExponen = MarcaSeccion(Documento(), {InicioExponen, FinExponen}, "EXPONEN");
}

bool TClassAnalizadorAbierto::SeleccionaTransmision() {
    MarcadorTransmision.reset();
    if (!BuscarTokenTransmision()) return false;
    MarcadorTransmision = Documento().NuevoMarcador("TRANSMISION", true);
    return true;
}

bool TClassAnalizadorAbierto::SeleccionaParteDeudora() {
    MarcadorParteDeudora.reset();
    if (!BuscarTokenParteDeudora()) return false;
    // A bookmark's name cannot hold a blank.
    MarcadorParteDeudora = Documento().NuevoMarcador(QuitaCaracter("PARTE DEUDORA", ' '), true);
    return true;
}

void TClassAnalizadorAbierto::RecorreParrafosDeCabecera() {
    for (const auto& parrafo : ParrafosDe(Documento(), MarcadorCabecera->Intervalo))
        DesglosaParrafoCabecera(parrafo.Texto, parrafo.Numero);
}

void TClassAnalizadorAbierto::RecorreParrafosDeComparecientes() {
    for (const auto& parrafo : ParrafosDe(Documento(), MarcadorComparecientes->Intervalo))
        if (EsCliente(parrafo.Texto)) DesglosaParrafoComparecientes(parrafo.Texto, parrafo.Numero);
}

void TClassAnalizadorAbierto::RecorreParrafosDeIntervinientes() {
    const auto parrafos = ParrafosDe(Documento(), MarcadorIntervinientes->Intervalo);
    for (const auto& parrafo : parrafos) {
        if (EsUnParrafoDeRepresentacion(parrafo.Texto))
            DesglosaParrafoRepresentacion(parrafo.Texto, parrafo.Numero);
        if (&parrafo == &parrafos.back()) Cabecera.DesglosaConceptos(parrafo.Texto, parrafo.Numero);
    }
}

void TClassAnalizadorAbierto::RecorreParrafosDeExponen() {
    for (const auto& parrafo : ParrafosDe(Documento(), MarcadorExponen->Intervalo))
        if (EsCliente(parrafo.Texto)) DesglosaParrafoComparecientes(parrafo.Texto, parrafo.Numero);
}

void TClassAnalizadorAbierto::DesglosaParrafoCabecera(std::string_view parrafo, int numero) {
    Cabecera.Desglosa(parrafo, numero);
}

}  // namespace analizador
