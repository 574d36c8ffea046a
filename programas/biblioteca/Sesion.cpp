#include "programas/biblioteca/Sesion.h"

#include <utility>

#include "adaptadores/docx/FicheroDocx.h"
#include "plataforma/Ansi.h"
#include "programas/analiza/SalidaJson.h"
#include "programas/biblioteca/ErrorInterfaz.h"
#include "programas/biblioteca/Fuentes.h"
#include "programas/biblioteca/Textos.h"
#include "programas/biblioteca/TurnoRevision.h"
#include "programas/biblioteca/Ventanas.h"
#include "programas/biblioteca/analizador.h"

namespace analizador {

namespace {

void ExigeOpciones(unsigned opciones, unsigned permitidas) {
    if ((opciones & ~permitidas) != 0)
        throw ErrorInterfaz(ANALIZADOR_MAL_USO, "opciones que no se conocen o no van aquí");
}

bool ConRevision(unsigned opciones) {
    return (opciones & ANALIZADOR_CON_REVISION) != 0;
}

// Every paragraph ends in CR, whichever line end the host uses.
std::string ConFinesDeParrafo(const std::string& texto) {
    std::string plano;
    plano.reserve(texto.size());
    for (std::size_t i = 0; i < texto.size(); ++i) {
        const bool trasCr = i > 0 && texto[i - 1] == '\r';
        if (texto[i] != '\n')
            plano += texto[i];
        else if (!trasCr)
            plano += '\r';
    }
    return plano;
}

}  // namespace

void TSesionAnfitrion::Empieza() {
    FActual = std::exchange(FSiguiente, {});
    FResultados.reset();
    FAnalisis.reset();
    FFichero.clear();
}

// The JSON is made at once: the language is the thread's until another deed is analysed on it.
void TSesionAnfitrion::Recoge(const std::string& archivo, unsigned opciones,
                              std::unique_ptr<TAnalisisEscritura> analisis) {
    if (!analisis->Error().empty()) throw ErrorInterfaz(ANALIZADOR_NO_ANALIZADA, analisis->Error());
    const TPedidoJson json{.Origen = (opciones & ANALIZADOR_CON_ORIGEN) != 0,
                           .Revisado = ConRevision(opciones)};
    FResultados.emplace(nlohmann::ordered_json::parse(LineaJson(archivo, *analisis, json)));
    FAceptada = analisis->Sesion().Aceptado;
    if (!FFichero.empty()) FAnalisis = std::move(analisis);
}

void TSesionAnfitrion::AnalizaFichero(const std::string& fichero, unsigned opciones) {
    ExigeOpciones(opciones, ANALIZADOR_CON_REVISION | ANALIZADOR_CON_ORIGEN);
    const TTurnoDeRevision turno(ConRevision(opciones));
    const auto ventanas = ConRevision(opciones) ? AbreVentanas(VentanaDelAnfitrion()) : nullptr;
    FFichero = RutaDe(fichero);
    Recoge(fichero, opciones, AnalizaDocx(FFichero, ConRevision(opciones)));
}

void TSesionAnfitrion::AnalizaTexto(const std::string& texto, unsigned opciones) {
    ExigeOpciones(opciones, ANALIZADOR_CON_REVISION | ANALIZADOR_CON_ORIGEN);
    const TTurnoDeRevision turno(ConRevision(opciones));
    const auto ventanas = ConRevision(opciones) ? AbreVentanas(VentanaDelAnfitrion()) : nullptr;
    FActual.Texto = AnsiDeUtf8(ConFinesDeParrafo(texto));
    Recoge("", opciones,
           std::make_unique<TAnalisisEscritura>(std::exchange(FActual, {}), ConRevision(opciones)));
}

void TSesionAnfitrion::AnalizaWord(void* aplicacion, unsigned opciones) {
    ExigeOpciones(opciones, ANALIZADOR_CON_REVISION);
    const TTurnoDeRevision turno(ConRevision(opciones));
    Recoge("", opciones, analizador::AnalizaWord(aplicacion, ConRevision(opciones)));
}

void TSesionAnfitrion::PonVariable(const std::string& nombre, const std::string& valor) {
    FSiguiente.Variables.push_back({AnsiDeUtf8(nombre), AnsiDeUtf8(valor)});
}

void TSesionAnfitrion::PonMarcador(const std::string& nombre) {
    FSiguiente.Marcadores.push_back({AnsiDeUtf8(nombre), {}});
}

void TSesionAnfitrion::ExigeResultados() const {
    if (!FResultados)
        throw ErrorInterfaz(ANALIZADOR_SIN_RESULTADOS, "no hay ninguna escritura analizada en la sesión");
}

TResultados& TSesionAnfitrion::Resultados() {
    ExigeResultados();
    return *FResultados;
}

bool TSesionAnfitrion::Aceptada() const {
    ExigeResultados();
    return FAceptada;
}

void TSesionAnfitrion::Guarda(const std::optional<std::filesystem::path>& destino, unsigned opciones) {
    ExigeOpciones(opciones, ANALIZADOR_FORZAR);
    ExigeResultados();
    if (FFichero.empty())
        throw ErrorInterfaz(ANALIZADOR_SIN_RESULTADOS, "lo analizado no es un fichero: no hay qué guardar");
    try {
        GuardaDocx(*FAnalisis, destino.value_or(FFichero), (opciones & ANALIZADOR_FORZAR) != 0);
    } catch (const ErrorDocumento& error) {
        throw ErrorInterfaz(ANALIZADOR_NO_GUARDADA, error.what());
    }
}

}  // namespace analizador
