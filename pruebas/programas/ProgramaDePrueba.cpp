#include "pruebas/programas/ProgramaDePrueba.h"

#include <stdlib.h>  // NOLINT(modernize-deprecated-headers): mkdtemp
#include <sys/wait.h>

#include <fstream>
#include <iterator>
#include <stdexcept>

namespace analizador {

namespace {

namespace fs = std::filesystem;

std::string Entrecomilla(const std::string& argumento) {
    std::string texto = "'";
    for (const char c : argumento) texto += c == '\'' ? std::string("'\\''") : std::string(1, c);
    return texto + "'";
}

}  // namespace

TCarpetaTemporal::TCarpetaTemporal() {
    std::string plantilla = (fs::temp_directory_path() / "pruebas_programas_XXXXXX").string();
    if (mkdtemp(plantilla.data()) == nullptr) throw std::runtime_error("no temporary folder: " + plantilla);
    FRuta = plantilla;
}

TCarpetaTemporal::~TCarpetaTemporal() {
    std::error_code error;
    fs::remove_all(FRuta, error);
}

fs::path TCarpetaTemporal::Fichero(std::string_view nombre, std::string_view contenido) const {
    const fs::path fichero = FRuta / nombre;
    std::ofstream(fichero, std::ios::binary) << contenido;
    return fichero;
}

fs::path TCarpetaTemporal::Copia(std::string_view ejemplo, std::string_view nombre) const {
    const fs::path copia = FRuta / nombre;
    fs::copy_file(Ejemplo(ejemplo), copia);
    return copia;
}

TEjecucion Analiza(const std::vector<std::string>& argumentos, const fs::path& salida,
                   const fs::path& entrada) {
    return Ejecuta(PROGRAMA_ANALIZA, argumentos, {}, salida, entrada);
}

TEjecucion Ejecuta(const fs::path& programa, const std::vector<std::string>& argumentos,
                   const std::string& entorno, const fs::path& salida, const fs::path& entrada) {
    const TCarpetaTemporal carpeta;
    const fs::path fichero = salida.empty() ? carpeta.Ruta() / "salida" : salida;
    const fs::path errores = carpeta.Ruta() / "errores";
    std::string orden = entorno + " " + Entrecomilla(programa.string());
    for (const auto& argumento : argumentos) orden += " " + Entrecomilla(argumento);
    orden += " >" + Entrecomilla(fichero.string()) + " 2>" + Entrecomilla(errores.string()) + " <" +
             Entrecomilla(entrada.string());
    const int estado = std::system(orden.c_str());
    return {WIFEXITED(estado) ? WEXITSTATUS(estado) : -1, salida.empty() ? Bytes(fichero) : "",
            Bytes(errores)};
}

fs::path Ejemplo(std::string_view nombre) {
    return fs::path(CARPETA_EJEMPLOS) / (std::string(nombre) + ".docx");
}

std::string Bytes(const fs::path& fichero) {
    std::ifstream entrada(fichero, std::ios::binary);
    if (!entrada) throw std::runtime_error("cannot read " + fichero.string());
    return {std::istreambuf_iterator<char>(entrada), {}};
}

std::vector<std::string> Lineas(std::string_view texto) {
    std::vector<std::string> lineas;
    while (!texto.empty()) {
        const std::size_t fin = texto.find('\n');
        lineas.emplace_back(texto.substr(0, fin));
        texto.remove_prefix(fin == std::string_view::npos ? texto.size() : fin + 1);
    }
    return lineas;
}

}  // namespace analizador
