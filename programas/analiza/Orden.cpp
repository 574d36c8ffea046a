#include "programas/analiza/Orden.h"

#include <cstdio>

#include "adaptadores/ini/ConfigIni.h"
#include "plataforma/Utf8.h"

namespace analizador {

namespace {

// The parser's messages begin with the option that they are about.
std::string PrimeraPalabra(const std::string& mensaje) {
    return mensaje.substr(0, mensaje.find_first_of(": "));
}

// What is wrong with the call, in the user's language.
std::string CausaDeMalUso(const CLI::App& orden, const CLI::ParseError& error, const std::string& falta) {
    if (dynamic_cast<const CLI::RequiredError*>(&error) != nullptr) return falta;
    if (dynamic_cast<const CLI::ArgumentMismatch*>(&error) != nullptr)
        return "a " + PrimeraPalabra(error.what()) + " le falta su valor";
    if (const auto sobran = orden.remaining(); !sobran.empty())
        return (sobran.front().starts_with('-') ? "no se conoce la opción " : "sobra ") + sobran.front();
    return "una opción tiene un valor que no se entiende";
}

}  // namespace

TCodigoSalida PeorDe(TCodigoSalida uno, TCodigoSalida otro) {
    for (const auto peor : {ALGUNO_FALLO, REVISION_CANCELADA})
        if (uno == peor || otro == peor) return peor;
    return TODO_BIEN;
}

void PreparaOrden(CLI::App& orden) {
    orden.get_formatter()->label("Usage", "Uso");
    orden.get_formatter()->label("OPTIONS", "opciones");
    orden.get_formatter()->label("Positionals", "Ficheros");
    orden.get_formatter()->column_width(24);
    orden.option_defaults()->group("Opciones")->multi_option_policy(CLI::MultiOptionPolicy::TakeLast);
    orden.set_help_flag("-h,--ayuda,--help", "Muestra esta ayuda y termina");
}

int EjecutaOrden(CLI::App& orden, int argc, char** argv, const std::string& falta,
                 const std::function<int()>& ejecuta) {
    int codigo = MAL_USO;
    try {
        orden.parse(argc, argv);
        codigo = ejecuta();
    } catch (const CLI::Success& pedido) {
        return orden.exit(pedido);
    } catch (const CLI::ParseError& error) {
        return MalUso(CausaDeMalUso(orden, error, falta));
    } catch (const ErrorConfiguracion& error) {
        Avisa(error.what());
        return MAL_USO;
    }
    if (std::fflush(stdout) != 0 || std::ferror(stdout) != 0) {
        Avisa("no se puede escribir la salida");
        return ALGUNO_FALLO;
    }
    return codigo;
}

void Avisa(const std::string& texto) {
    std::fflush(stdout);
    std::fprintf(stderr, "analiza: %s\n", EnUnaLinea(texto).c_str());
}

int MalUso(const std::string& causa) {
    Avisa(causa + " (con --ayuda se ven las opciones)");
    return MAL_USO;
}

void Escribe(const std::string& texto) {
    std::fwrite(texto.data(), 1, texto.size(), stdout);
}

}  // namespace analizador
