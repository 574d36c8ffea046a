#include "adaptadores/docx/PaqueteZip.h"

#include <array>
#include <cstdlib>
#include <cstring>
#include <utility>

#include "adaptadores/docx/FalloDocx.h"
#include "adaptadores/docx/LecturaFichero.h"

namespace analizador {

namespace {

constexpr std::uint64_t INFLADO_MAXIMO = 96ULL * 1024 * 1024;
// Beyond this size a part may not inflate to more than so many times its compressed size: text hardly
// reaches 30.
constexpr std::uint64_t INFLADO_SIN_RECELO = 10ULL * 1024 * 1024;
constexpr std::uint64_t PROPORCION_MAXIMA = 200;

class TErrorZip {
  public:
    TErrorZip() { zip_error_init(&Error); }
    ~TErrorZip() { zip_error_fini(&Error); }
    TErrorZip(const TErrorZip&) = delete;
    TErrorZip& operator=(const TErrorZip&) = delete;
    operator zip_error_t*() { return &Error; }

  private:
    zip_error_t Error{};
};

struct TSueltaFuente {
    void operator()(zip_source_t* fuente) const { zip_source_free(fuente); }
};
using TFuenteZip = std::unique_ptr<zip_source_t, TSueltaFuente>;

struct TCierraEntrada {
    void operator()(zip_file_t* entrada) const { zip_fclose(entrada); }
};

TFuenteZip FuenteDe(std::string_view bytes) {
    TErrorZip error;
    TFuenteZip fuente(zip_source_buffer_create(bytes.data(), bytes.size(), 0, error));
    if (!fuente) throw FalloDocx("no hay memoria para leer el documento");
    return fuente;
}

// A source that owns a copy of the bytes, as one has to that is written to: libzip would take bytes that are
// not its own for its own when it keeps the beginning of the archive.
TFuenteZip FuenteConCopia(std::string_view bytes) {
    struct TSuelta {
        void operator()(void* memoria) const { std::free(memoria); }
    };
    std::unique_ptr<void, TSuelta> copia(std::malloc(bytes.size()));
    if (!copia) throw FalloDocx("no hay memoria para guardar el documento");
    std::memcpy(copia.get(), bytes.data(), bytes.size());
    TErrorZip error;
    TFuenteZip fuente(zip_source_buffer_create(copia.get(), bytes.size(), 1, error));
    if (!fuente) throw FalloDocx("no hay memoria para guardar el documento");
    static_cast<void>(copia.release());  // libzip frees it
    return fuente;
}

// The archive takes a reference of its own to the source.
zip_t* AbreArchivo(const TFuenteZip& fuente, int opciones) {
    zip_source_keep(fuente.get());
    TErrorZip error;
    zip_t* archivo = zip_open_from_source(fuente.get(), opciones, error);
    if (archivo == nullptr) zip_source_free(fuente.get());
    return archivo;
}

[[noreturn]] void RehusaDanada(const std::string& parte) {
    throw FalloDocx("la parte " + NombreCitado(parte) + " está truncada o dañada");
}

[[noreturn]] void RehusaDesmesurada(const std::string& parte) {
    throw FalloDocx("la parte " + NombreCitado(parte) + " se expande de forma desmesurada");
}

bool EsDesmesurado(std::uint64_t inflado, std::uint64_t comprimido, std::uint64_t infladoAntes) {
    if (inflado > INFLADO_MAXIMO || infladoAntes + inflado > INFLADO_MAXIMO) return true;
    return inflado > INFLADO_SIN_RECELO && inflado / PROPORCION_MAXIMA > comprimido;
}

zip_stat_t DatosDeParte(zip_t* archivo, zip_uint64_t indice, const std::string& parte) {
    zip_stat_t datos;
    zip_stat_init(&datos);
    constexpr zip_uint64_t PRECISOS =
        ZIP_STAT_SIZE | ZIP_STAT_COMP_SIZE | ZIP_STAT_COMP_METHOD | ZIP_STAT_ENCRYPTION_METHOD;
    if (zip_stat_index(archivo, indice, 0, &datos) != 0 || (datos.valid & PRECISOS) != PRECISOS)
        RehusaDanada(parte);
    if (datos.encryption_method != ZIP_EM_NONE)
        throw FalloDocx("la parte " + NombreCitado(parte) + " está cifrada");
    if (datos.comp_method != ZIP_CM_STORE && datos.comp_method != ZIP_CM_DEFLATE)
        throw FalloDocx("la parte " + NombreCitado(parte) + " usa una compresión que no se admite");
    return datos;
}

std::string LeeFuente(zip_source_t* fuente) {
    zip_stat_t datos;
    zip_stat_init(&datos);
    if (zip_source_open(fuente) != 0) throw FalloDocx("no se puede componer el documento nuevo");
    std::string bytes;
    if (zip_source_stat(fuente, &datos) == 0 && (datos.valid & ZIP_STAT_SIZE) != 0) {
        bytes.resize(static_cast<std::size_t>(datos.size));
        const auto leidos = zip_source_read(fuente, bytes.data(), bytes.size());
        if (leidos < 0 || static_cast<std::size_t>(leidos) != bytes.size()) bytes.clear();
    }
    zip_source_close(fuente);
    if (bytes.empty()) throw FalloDocx("no se puede componer el documento nuevo");
    return bytes;
}

// Replaces the content of an entry, which keeps its way of compression and its time.
void ReemplazaEntrada(zip_t* archivo, zip_uint64_t indice, const zip_stat_t& datos,
                      std::string_view contenido) {
    zip_source_t* nueva = zip_source_buffer(archivo, contenido.data(), contenido.size(), 0);
    if (nueva == nullptr) throw FalloDocx("no hay memoria para guardar el documento");
    if (zip_file_replace(archivo, indice, nueva, 0) != 0) {
        zip_source_free(nueva);
        throw FalloDocx("no se puede componer el documento nuevo");
    }
    zip_set_file_compression(archivo, indice, datos.comp_method, 0);
    if ((datos.valid & ZIP_STAT_MTIME) != 0) zip_file_set_mtime(archivo, indice, datos.mtime, 0);
}

}  // namespace

TPaqueteZip::TPaqueteZip(std::string_view bytes) : Bytes(bytes) {
    Archivo.reset(AbreArchivo(FuenteDe(bytes), ZIP_RDONLY));
    if (!Archivo) throw FalloDocx(CausaDeNoSerZip(bytes));
}

std::optional<zip_uint64_t> TPaqueteZip::Indice(const std::string& parte) const {
    auto indice = zip_name_locate(Archivo.get(), parte.c_str(), 0);
    if (indice < 0) indice = zip_name_locate(Archivo.get(), parte.c_str(), ZIP_FL_NOCASE);
    if (indice < 0) return std::nullopt;
    return static_cast<zip_uint64_t>(indice);
}

bool TPaqueteZip::TieneCarpeta(std::string_view carpeta) const {
    const auto cuantas = zip_get_num_entries(Archivo.get(), 0);
    for (zip_int64_t i = 0; i < cuantas; ++i) {
        const char* nombre = zip_get_name(Archivo.get(), static_cast<zip_uint64_t>(i), 0);
        if (nombre != nullptr && std::string_view(nombre).starts_with(carpeta)) return true;
    }
    return false;
}

std::string TPaqueteZip::Lee(const std::string& parte) {
    const auto indice = Indice(parte);
    if (!indice) throw FalloDocx("falta la parte " + NombreCitado(parte));
    const auto datos = DatosDeParte(Archivo.get(), *indice, parte);
    if (EsDesmesurado(datos.size, datos.comp_size, Inflado)) RehusaDesmesurada(parte);
    const std::unique_ptr<zip_file_t, TCierraEntrada> entrada(zip_fopen_index(Archivo.get(), *indice, 0));
    if (!entrada) RehusaDanada(parte);

    std::string contenido;
    std::array<char, 64 * 1024> trozo{};
    for (;;) {
        const auto leidos = zip_fread(entrada.get(), trozo.data(), trozo.size());
        if (leidos < 0) RehusaDanada(parte);
        if (leidos == 0) break;
        contenido.append(trozo.data(), static_cast<std::size_t>(leidos));
        if (EsDesmesurado(contenido.size(), datos.comp_size, Inflado)) RehusaDesmesurada(parte);
    }
    if (contenido.size() != datos.size) RehusaDanada(parte);
    Inflado += contenido.size();
    return contenido;
}

std::string TPaqueteZip::ConParte(const std::string& parte, std::string_view contenido) const {
    const auto indice = Indice(parte);
    if (!indice) throw FalloDocx("falta la parte " + NombreCitado(parte));
    const auto fuente = FuenteConCopia(Bytes);
    std::unique_ptr<zip_t, TDescarta> copia(AbreArchivo(fuente, 0));
    if (!copia) throw FalloDocx("no se puede componer el documento nuevo");
    ReemplazaEntrada(copia.get(), *indice, DatosDeParte(copia.get(), *indice, parte), contenido);
    if (zip_close(copia.get()) != 0) throw FalloDocx("no se puede componer el documento nuevo");
    static_cast<void>(copia.release());  // closed
    return LeeFuente(fuente.get());
}

}  // namespace analizador
