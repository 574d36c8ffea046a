// Word's objects over a document of the test server, after their published description. Where that leaves
// doubts they answer what the adapter can do least with; not certain of the true Word are:
// - the numbers of the errors (5825 of a variable that was never set and of a closed document, 5941, 4605);
// - that a search of a range that is empty goes beyond it, and with wrap from the other end of the document;
// - that a range's text holds what tracked changes deleted, whatever the view;
// - that TextRetrievalMode begins as the view is, and is of the one range object;
// - which paragraph an empty range at the end of one belongs to: here the next.

#include <algorithm>
#include <functional>
#include <optional>
#include <string>
#include <utility>

#include "adaptadores/word/ObjetoWord.h"
#include "plataforma/Ansi.h"
#include "pruebas/word/servidor/DocumentoServidor.h"

namespace analizador::pruebas {

namespace {

using TLibrosComunes = std::shared_ptr<TLibros>;
using TDocumentoComun = std::shared_ptr<TDocumentoServidor>;

struct TRango {
    TIntervalo Intervalo;
    bool ConOcultos = true;  // as a user who shows everything has it
    bool ConCodigos = true;
};
using TRangoComun = std::shared_ptr<TRango>;

TPuntero<TObjetoServidor> Nuevo(const TLibrosComunes& libros, const TDocumentoComun& documento) {
    TPuntero<TObjetoServidor> objeto(new TObjetoServidor(libros));
    objeto->Comprueba = [documento] { documento->CompruebaAbierto(); };
    return objeto;
}

std::string Ansi(std::u16string_view texto) {
    return AnsiDeUtf16(texto);
}

std::u16string Utf16(std::string_view texto) {
    return Utf16DeUtf8(Utf8DeAnsi(texto));
}

[[noreturn]] void NoExiste() {
    throw TErrorDeWord{5941, u"The requested member of the collection does not exist."};
}

// A property that can be read and set.
TObjetoServidor::TMiembro Propiedad(TRangoComun rango, bool TRango::*campo) {
    return [rango = std::move(rango), campo](const TArgumentos& argumentos) {
        if (argumentos.Pone) (*rango).*campo = argumentos.Verdad(0);
        return TVariante((*rango).*campo);
    };
}

TVariante EntregaRango(const TLibrosComunes& libros, const TDocumentoComun& documento, TIntervalo intervalo);

TVariante EntregaModo(const TLibrosComunes& libros, const TDocumentoComun& documento,
                      const TRangoComun& rango) {
    auto modo = Nuevo(libros, documento);
    modo->Anade(L"IncludeHiddenText", Propiedad(rango, &TRango::ConOcultos));
    modo->Anade(L"IncludeFieldCodes", Propiedad(rango, &TRango::ConCodigos));
    return Entrega(std::move(modo));
}

TVariante EntregaParrafo(const TLibrosComunes& libros, const TDocumentoComun& documento, int indice) {
    auto parrafo = Nuevo(libros, documento);
    parrafo->Anade(L"Range", [=](const TArgumentos&) {
        return EntregaRango(libros, documento, documento->Posiciones(documento->Parrafos().Parrafo(indice)));
    });
    return Entrega(std::move(parrafo));
}

TVariante EntregaParrafos(const TLibrosComunes& libros, const TDocumentoComun& documento,
                          TIntervalo intervalo) {
    const int primero = documento->Parrafos().Indice(documento->Indice(intervalo.Inicio));
    const int ultimo =
        documento->Parrafos().Indice(documento->Indice(std::max(intervalo.Inicio, intervalo.Fin - 1)));
    auto parrafos = Nuevo(libros, documento);
    parrafos->Anade(L"Count", [=](const TArgumentos&) { return TVariante(ultimo - primero + 1); });
    parrafos->Anade(L"First", [=](const TArgumentos&) { return EntregaParrafo(libros, documento, primero); });
    parrafos->Anade(L"Last", [=](const TArgumentos&) { return EntregaParrafo(libros, documento, ultimo); });
    return Entrega(std::move(parrafos));
}

// The text of a search out of Word's notation.
std::string Literal(std::string_view notacion) {
    static constexpr std::string_view CLAVES = "^ptlmn~";
    static constexpr std::string_view SIGNOS = "^\r\t\v\f\x0E\x1E";
    std::string literal;
    for (std::size_t i = 0; i < notacion.size(); ++i) {
        if (notacion[i] != '^') {
            literal.push_back(notacion[i]);
            continue;
        }
        const auto cual = i + 1 < notacion.size() ? CLAVES.find(notacion[i + 1]) : std::string_view::npos;
        if (cual == std::string_view::npos)
            throw TErrorDeWord{5692, u"The Find What text contains an expression which is not valid."};
        literal.push_back(SIGNOS[cual]);
        ++i;
    }
    return literal;
}

bool Ejecuta(TDocumentoServidor& documento, TRango& rango, const TArgumentos& argumentos) {
    constexpr std::size_t TODOS = 15;
    constexpr int CONTINUA = 1;
    if (argumentos.Cuantos() != TODOS) throw TErrorDeWord{450, u"Wrong number of arguments."};
    if (argumentos.Entero(10) != 0 || !argumentos.Texto(9).empty())
        throw TErrorDeWord{4605, u"This method or property is not available: nothing may be replaced."};
    if (rango.Intervalo.Inicio != rango.Intervalo.Fin)
        throw TErrorDeWord{4605, u"This method or property is not available inside a range."};
    if (argumentos.Texto(0).size() > 255) throw TErrorDeWord{5854, u"String parameter too long."};
    const TOpcionesBusqueda opciones{argumentos.Verdad(1),
                                     argumentos.Verdad(2),
                                     argumentos.Verdad(3),
                                     argumentos.Verdad(4),
                                     argumentos.Verdad(5),
                                     argumentos.Verdad(6),
                                     argumentos.Entero(7) == CONTINUA,
                                     argumentos.Verdad(8)};
    auto& seleccion = documento.Memoria().GetSeleccion();
    const int desde = documento.Indice(rango.Intervalo.Inicio);
    seleccion.PonIntervalo({desde, desde});
    if (!documento.Memoria().Busca(Literal(Ansi(argumentos.Texto(0))), opciones)) return false;
    rango.Intervalo = documento.Posiciones(seleccion.GetIntervalo());
    return true;
}

// Every search begins with the formatting of an earlier one: nothing is found when it is not cleared.
TVariante EntregaBusqueda(const TLibrosComunes& libros, const TDocumentoComun& documento,
                          const TRangoComun& rango) {
    auto busqueda = Nuevo(libros, documento);
    const auto limpia = std::make_shared<bool>(false);
    busqueda->Anade(L"ClearFormatting", [=](const TArgumentos&) {
        *limpia = true;
        return TVariante();
    });
    busqueda->Anade(L"Execute", [=](const TArgumentos& argumentos) {
        return TVariante(std::exchange(*limpia, false) && Ejecuta(*documento, *rango, argumentos));
    });
    return Entrega(std::move(busqueda));
}

TVariante EntregaRevision(const TLibrosComunes& libros, const TDocumentoComun& documento, TIntervalo rango) {
    auto revision = Nuevo(libros, documento);
    revision->Anade(L"Type", [](const TArgumentos&) { return TVariante(2); });
    revision->Anade(L"Range", [=](const TArgumentos&) { return EntregaRango(libros, documento, rango); });
    return Entrega(std::move(revision));
}

TVariante EntregaRevisiones(const TLibrosComunes& libros, const TDocumentoComun& documento) {
    std::vector<TIntervalo> borradas;
    for (const auto& [tinta, intervalo] : documento->Manchas)
        if (tinta == TTinta::Borrada) borradas.push_back(documento->Posiciones(intervalo));
    auto revisiones = Nuevo(libros, documento);
    revisiones->Anade(L"Count",
                      [n = static_cast<int>(borradas.size())](const TArgumentos&) { return TVariante(n); });
    revisiones->Anade(L"Item", [=](const TArgumentos& argumentos) {
        return EntregaRevision(libros, documento,
                               borradas.at(static_cast<std::size_t>(argumentos.Entero(0) - 1)));
    });
    return Entrega(std::move(revisiones));
}

TVariante EntregaRango(const TLibrosComunes& libros, const TDocumentoComun& documento, TIntervalo intervalo) {
    documento->CompruebaRango(intervalo);
    const auto rango = std::make_shared<TRango>(TRango{intervalo});
    auto objeto = Nuevo(libros, documento);
    objeto->Anade(L"Text", [=](const TArgumentos&) {
        return TVariante(documento->Texto(rango->Intervalo, rango->ConOcultos, rango->ConCodigos));
    });
    objeto->Anade(L"Start", [=](const TArgumentos&) { return TVariante(rango->Intervalo.Inicio); });
    objeto->Anade(L"End", [=](const TArgumentos&) { return TVariante(rango->Intervalo.Fin); });
    objeto->Anade(L"SetRange", [=](const TArgumentos& argumentos) {
        const TIntervalo nuevo{argumentos.Entero(0), argumentos.Entero(1)};
        documento->CompruebaRango(nuevo);
        rango->Intervalo = nuevo;
        return TVariante();
    });
    objeto->Anade(L"TextRetrievalMode",
                  [=](const TArgumentos&) { return EntregaModo(libros, documento, rango); });
    objeto->Anade(L"Paragraphs",
                  [=](const TArgumentos&) { return EntregaParrafos(libros, documento, rango->Intervalo); });
    objeto->Anade(L"Find", [=](const TArgumentos&) { return EntregaBusqueda(libros, documento, rango); });
    objeto->Anade(L"Revisions", [=](const TArgumentos&) { return EntregaRevisiones(libros, documento); });
    objeto->Anade(L"Select", [=](const TArgumentos&) {
        documento->Seleccion = rango->Intervalo;
        documento->Historia = 1;
        return TVariante();
    });
    return Entrega(std::move(objeto));
}

TVariante EntregaMarcador(const TLibrosComunes& libros, const TDocumentoComun& documento,
                          const TMarcador& marcador) {
    auto objeto = Nuevo(libros, documento);
    objeto->Anade(L"Name", [=](const TArgumentos&) { return TVariante(Utf16(marcador.Nombre)); });
    objeto->Anade(L"Range", [=](const TArgumentos&) {
        return EntregaRango(libros, documento, documento->Posiciones(marcador.Intervalo));
    });
    return Entrega(std::move(objeto));
}

// The one of a name in any case, or of a 1-based number in the order of their names; none when there is none.
std::optional<TMarcador> BuscaMarcador(const TDocumentoServidor& documento, const TArgumentos& argumentos) {
    const auto clave = [](const TMarcador& marcador) { return AnsiUpperCase(marcador.Nombre); };
    auto todos = documento.Contenido().Marcadores;
    std::ranges::sort(todos, {}, clave);
    if (!argumentos.EsTexto(0)) {
        const int cual = argumentos.Entero(0);
        if (cual < 1 || cual > static_cast<int>(todos.size())) return std::nullopt;
        return todos[static_cast<std::size_t>(cual - 1)];
    }
    const auto hallado = std::ranges::find(todos, AnsiUpperCase(Ansi(argumentos.Texto(0))), clave);
    if (hallado == todos.end()) return std::nullopt;
    return *hallado;
}

// The bounds of one of our ranges that came back from a client.
TIntervalo RangoDelCliente(TLibros& libros, TPuntero<IDispatch> objeto) {
    TConexionWord conexion{};
    libros.Interna = true;
    const TObjetoWord rango(conexion, std::move(objeto), "Range");
    const TIntervalo intervalo{rango.Entero("Start"), rango.Entero("End")};
    libros.Interna = false;
    return intervalo;
}

TVariante EntregaMarcadores(const TLibrosComunes& libros, const TDocumentoComun& documento) {
    auto marcadores = Nuevo(libros, documento);
    marcadores->Anade(L"Count", [=](const TArgumentos&) {
        return TVariante(static_cast<int>(documento->Contenido().Marcadores.size()));
    });
    marcadores->Anade(L"Exists", [=](const TArgumentos& argumentos) {
        return TVariante(BuscaMarcador(*documento, argumentos).has_value());
    });
    marcadores->Anade(L"Item", [=](const TArgumentos& argumentos) {
        const auto marcador = BuscaMarcador(*documento, argumentos);
        if (!marcador) NoExiste();
        return EntregaMarcador(libros, documento, *marcador);
    });
    marcadores->Anade(L"Add", [=](const TArgumentos& argumentos) {
        const auto rango = RangoDelCliente(*libros, argumentos.Objeto(1));
        documento->Memoria().GetSeleccion().PonIntervalo(
            {documento->Indice(rango.Inicio), documento->Indice(rango.Fin)});
        return EntregaMarcador(libros, documento,
                               documento->Memoria().NuevoMarcador(Ansi(argumentos.Texto(0)), true));
    });
    return Entrega(std::move(marcadores));
}

// As in Word, one that was never set is there until its value is asked.
TVariante EntregaVariable(const TLibrosComunes& libros, const TDocumentoComun& documento,
                          const std::string& nombre) {
    auto variable = Nuevo(libros, documento);
    variable->Anade(L"Value", [=](const TArgumentos&) {
        const auto& todas = documento->Contenido().Variables;
        const auto hallada = std::find_if(todas.begin(), todas.end(), [&](const TVariable& una) {
            return AnsiUpperCase(una.Nombre) == AnsiUpperCase(nombre);
        });
        if (hallada == todas.end()) throw TErrorDeWord{5825, u"Object has been deleted."};
        return TVariante(Utf16(hallada->Valor));
    });
    return Entrega(std::move(variable));
}

TVariante EntregaVariables(const TLibrosComunes& libros, const TDocumentoComun& documento) {
    auto variables = Nuevo(libros, documento);
    variables->Anade(L"Item", [=](const TArgumentos& argumentos) {
        return EntregaVariable(libros, documento, Ansi(argumentos.Texto(0)));
    });
    return Entrega(std::move(variables));
}

}  // namespace

// Without a window of its own on the screen it is one of the Words that do not tell it.
TVariante EntregaVentana(const TLibrosComunes& libros, const TDocumentoComun& documento) {
    auto ventana = Nuevo(libros, documento);
    ventana->Anade(L"Selection", [=](const TArgumentos&) {
        auto seleccion = Nuevo(libros, documento);
        seleccion->Anade(L"StoryType", [=](const TArgumentos&) { return TVariante(documento->Historia); });
        seleccion->Anade(L"Start",
                         [=](const TArgumentos&) { return TVariante(documento->Seleccion.Inicio); });
        seleccion->Anade(L"End", [=](const TArgumentos&) { return TVariante(documento->Seleccion.Fin); });
        return Entrega(std::move(seleccion));
    });
    if (libros->Ventana != 0)
        ventana->Anade(L"Hwnd", [=](const TArgumentos&) { return TVariante(libros->Ventana); });
    return Entrega(std::move(ventana));
}

TVariante EntregaDocumento(const std::shared_ptr<TLibros>& libros,
                           const std::shared_ptr<TDocumentoServidor>& documento) {
    auto objeto = Nuevo(libros, documento);
    objeto->Anade(L"Range", [=](const TArgumentos& argumentos) {
        return EntregaRango(libros, documento, {argumentos.Entero(0), argumentos.Entero(1)});
    });
    objeto->Anade(L"Content", [=](const TArgumentos&) {
        return EntregaRango(libros, documento, {0, documento->Longitud()});
    });
    objeto->Anade(L"Bookmarks", [=](const TArgumentos&) { return EntregaMarcadores(libros, documento); });
    objeto->Anade(L"Variables", [=](const TArgumentos&) { return EntregaVariables(libros, documento); });
    objeto->Anade(L"ActiveWindow", [=](const TArgumentos&) { return EntregaVentana(libros, documento); });
    return Entrega(std::move(objeto));
}

}  // namespace analizador::pruebas
