#include "adaptadores/word/DocumentoWord.h"

#include <algorithm>
#include <utility>

#include "adaptadores/word/FalloWord.h"
#include "adaptadores/word/TextoBuscado.h"
#include "plataforma/Ansi.h"

namespace analizador {

namespace {

constexpr int HISTORIA_PRINCIPAL = 1;
constexpr int BUSQUEDA_PARA = 0;
constexpr int BUSQUEDA_CONTINUA = 1;
constexpr int NO_SUSTITUYE = 0;

std::u16string Utf16(std::string_view texto) {
    return Utf16DeUtf8(Utf8DeAnsi(texto));
}

TIntervalo IntervaloDe(const TObjetoWord& rango) {
    const int inicio = rango.Entero("Start");
    return {inicio, rango.Entero("End")};
}

int LongitudDe(const TObjetoWord& documento) {
    return documento.Objeto("Content", "Range").Entero("End");
}

// The user's selection; the start of the document when it is in a header or a note, whose positions are
// others.
TIntervalo SeleccionDelUsuario(const TObjetoWord& documento) {
    const auto seleccion = documento.Objeto("ActiveWindow", "Window").Objeto("Selection", "Selection");
    return seleccion.Entero("StoryType") == HISTORIA_PRINCIPAL ? IntervaloDe(seleccion) : TIntervalo{};
}

TMarcador Marcador(const TObjetoWord& marcador) {
    return {AnsiDeUtf16(marcador.Texto("Name")), IntervaloDe(marcador.Objeto("Range", "Range"))};
}

bool Precede(const TMarcador& uno, const TMarcador& otro) {
    return AnsiUpperCase(uno.Nombre) < AnsiUpperCase(otro.Nombre);
}

}  // namespace

void TDocumentoWord::TSeleccionWord::SubeParrafo(bool extiende) {
    const bool vacia = FIntervalo.Inicio == FIntervalo.Fin;
    int inicio = FDocumento.ParrafoDe(FIntervalo.Inicio).Inicio;
    if (inicio == FIntervalo.Inicio && inicio > 0 && (vacia || extiende))
        inicio = FDocumento.ParrafoDe(inicio - 1).Inicio;
    PonIntervalo({inicio, extiende ? FIntervalo.Fin : inicio});
}

void TDocumentoWord::TSeleccionWord::BajaParrafo(bool extiende) {
    const int fin = FDocumento.ParrafoDe(FIntervalo.Fin).Fin;
    PonIntervalo({extiende ? FIntervalo.Inicio : fin, fin});
}

TParrafoDocumento TDocumentoWord::TSeleccionWord::GetPrimerParrafo() const {
    const auto intervalo = FDocumento.ParrafoDe(FIntervalo.Inicio);
    return {intervalo, FDocumento.FTexto.Lee(intervalo)};
}

TDocumentoWord::TDocumentoWord(TObjetoWord documento)
    : FDocumento(std::move(documento)),
      FLongitud(LongitudDe(FDocumento)),
      FTexto(FDocumento),
      FRango(FDocumento.Objeto("Range", "Range", 0, 0)),
      FBusqueda(FRango.Objeto("Find", "Find")),
      FSeleccion(*this) {
    FSeleccion.PonIntervalo(SeleccionDelUsuario(FDocumento));
}

void TDocumentoWord::MuestraSeleccion() const {
    CompruebaQueSigueIgual();
    Rango(FSeleccion.GetIntervalo()).Haz("Select");
}

std::string TDocumentoWord::GetTexto() const {
    CompruebaQueSigueIgual();
    return FTexto.Lee({0, FLongitud});
}

bool TDocumentoWord::Busca(std::string_view texto, const TOpcionesBusqueda& opciones) {
    if (opciones.Comodines || opciones.SuenaComo || opciones.TodasLasFormas || opciones.Formato)
        throw ErrorWord(
            std::string("Solo se buscan textos literales: sin comodines, parecidos, formas ni formato"_ansi));
    const auto buscado = TextoBuscado(texto);
    if (!buscado) return false;
    // Word looks inside a range that is not empty before it goes beyond: the search begins at its edge.
    const auto [inicio, fin] = FSeleccion.GetIntervalo();
    const int desde = std::min(opciones.Adelante ? fin : inicio, FLongitud - 1);
    FRango.Haz("SetRange", desde, desde);
    FBusqueda.Haz("ClearFormatting");
    const bool hallado =
        FBusqueda.Verdad("Execute", *buscado, opciones.DistingueMayusculas, opciones.PalabrasCompletas,
                         opciones.Comodines, opciones.SuenaComo, opciones.TodasLasFormas, opciones.Adelante,
                         opciones.Continua ? BUSQUEDA_CONTINUA : BUSQUEDA_PARA, opciones.Formato,
                         std::u16string(), NO_SUSTITUYE, false, false, false, false);
    if (hallado) FSeleccion.PonIntervalo(IntervaloDe(FRango));
    return hallado;
}

std::string TDocumentoWord::GetTexto(TIntervalo intervalo) const {
    CompruebaQueSigueIgual();
    return FTexto.Lee(Acota(intervalo));
}

std::vector<std::string> TDocumentoWord::GetParrafos(TIntervalo intervalo) const {
    CompruebaQueSigueIgual();
    return ParteParrafos(FTexto.Lee(Ensancha(Acota(intervalo))));
}

int TDocumentoWord::GetNumeroParrafo(int posicion) const {
    const auto antes = ParteParrafos(FTexto.Lee({0, std::clamp(posicion, 0, FLongitud - 1)}));
    const bool enMedio = !antes.empty() && !antes.back().ends_with('\r') && !antes.back().ends_with('\a');
    return static_cast<int>(antes.size()) + (enMedio ? 0 : 1);
}

std::string TDocumentoWord::VariableValor(std::string_view nombre) const {
    if (nombre.empty()) return {};
    try {
        return AnsiDeUtf16(FDocumento.Objeto("Variables", "Variables")
                               .Objeto("Item", "Variable", Utf16(nombre))
                               .Texto("Value"));
    } catch (const TFalloWord& fallo) {
        // Word says of a variable that was never set what it says of a closed document.
        if (!fallo.Es(FALLO_OBJETO_BORRADO) && !fallo.Es(FALLO_NO_EXISTE)) throw;
        CompruebaQueSigueIgual();
        return {};
    }
}

TMarcador TDocumentoWord::NuevoMarcador(std::string_view nombre, bool reemplaza) {
    CompruebaQueSigueIgual();
    const auto marcadores = FDocumento.Objeto("Bookmarks", "Bookmarks");
    const std::u16string suNombre = Utf16(nombre);
    if (!reemplaza && marcadores.Verdad("Exists", suNombre))
        return Marcador(marcadores.Objeto("Item", "Bookmark", suNombre));
    const auto intervalo = FSeleccion.GetIntervalo();
    marcadores.Haz("Add", suNombre, Rango(intervalo).Puntero());
    return {std::string(nombre), intervalo};
}

std::vector<TMarcador> TDocumentoWord::GetMarcadores() const {
    const auto todos = FDocumento.Objeto("Bookmarks", "Bookmarks");
    std::vector<TMarcador> visibles;
    const int cuantos = todos.Entero("Count");
    for (int i = 1; i <= cuantos; ++i) {
        auto marcador = Marcador(todos.Objeto("Item", "Bookmark", i));
        if (!marcador.Nombre.starts_with('_')) visibles.push_back(std::move(marcador));
    }
    std::stable_sort(visibles.begin(), visibles.end(), Precede);
    return visibles;
}

TIntervalo TDocumentoWord::Acota(TIntervalo intervalo) const {
    const int fin = std::clamp(intervalo.Fin, 0, FLongitud);
    const int inicio = std::clamp(intervalo.Inicio, 0, fin);
    if (inicio < fin) return {inicio, fin};
    const int donde = std::min(fin, FLongitud - 1);
    return {donde, donde};
}

TIntervalo TDocumentoWord::Ensancha(TIntervalo intervalo) const {
    const auto parrafos = Rango(intervalo).Objeto("Paragraphs", "Paragraphs");
    const auto primero = IntervaloDe(parrafos.Objeto("First", "Paragraph").Objeto("Range", "Range"));
    if (intervalo.Fin <= primero.Fin) return primero;
    return {primero.Inicio, parrafos.Objeto("Last", "Paragraph").Objeto("Range", "Range").Entero("End")};
}

TObjetoWord TDocumentoWord::Rango(TIntervalo intervalo) const {
    const auto [inicio, fin] = Acota(intervalo);
    return FDocumento.Objeto("Range", "Range", inicio, fin);
}

void TDocumentoWord::CompruebaQueSigueIgual() const {
    if (LongitudDe(FDocumento) != FLongitud)
        throw ErrorWord(
            std::string("El documento ha cambiado mientras se analizaba: repita el análisis"_ansi));
}

}  // namespace analizador
