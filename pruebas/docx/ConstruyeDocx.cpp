#include "pruebas/docx/ConstruyeDocx.h"

#include <zip.h>

#include <algorithm>
#include <cstdio>
#include <fstream>
#include <iterator>
#include <random>
#include <stdexcept>

#include "adaptadores/docx/FicheroDocx.h"
#include "plataforma/Ansi.h"

namespace analizador::pruebas {

TCarpeta::TCarpeta() {
    std::random_device azar;
    do {
        Ruta = std::filesystem::temp_directory_path() / ("pruebas-docx-" + std::to_string(azar()));
    } while (!std::filesystem::create_directory(Ruta));
}

TCarpeta::~TCarpeta() {
    std::error_code error;
    std::filesystem::remove_all(Ruta, error);
}

std::vector<std::string> TCarpeta::Nombres() const {
    std::vector<std::string> nombres;
    for (const auto& entrada : std::filesystem::directory_iterator(Ruta))
        nombres.push_back(entrada.path().filename().string());
    std::ranges::sort(nombres);
    return nombres;
}

std::string DocumentoXml(std::string_view cuerpo) {
    return "<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"yes\"?>\r\n<w:document xmlns:w=\"" +
           std::string(ESPACIO_W) +
           "\" xmlns:mc=\"http://schemas.openxmlformats.org/markup-compatibility/2006\""
           " xmlns:m=\"http://schemas.openxmlformats.org/officeDocument/2006/math\""
           " xmlns:r=\"http://schemas.openxmlformats.org/officeDocument/2006/relationships\""
           " xmlns:wps=\"http://schemas.microsoft.com/office/word/2010/wordprocessingShape\""
           " xmlns:w14=\"http://schemas.microsoft.com/office/word/2010/wordml\""
           " xmlns:w16se=\"http://schemas.microsoft.com/office/word/2015/wordml/symex\""
           "><w:body>" +
           std::string(cuerpo) + "</w:body></w:document>";
}

std::string EstilosXml(std::string_view estilos) {
    return "<w:styles xmlns:w=\"" + std::string(ESPACIO_W) + "\">" + std::string(estilos) + "</w:styles>";
}

std::string AjustesXml(std::string_view ajustes) {
    return "<w:settings xmlns:w=\"" + std::string(ESPACIO_W) + "\">" + std::string(ajustes) + "</w:settings>";
}

std::vector<TParte> PartesDocumento(std::string_view documento, std::string_view estilos,
                                    std::string_view ajustes) {
    const std::string relaciones = "http://schemas.openxmlformats.org/officeDocument/2006/relationships/";
    const std::string raiz =
        "<Relationships xmlns=\"http://schemas.openxmlformats.org/package/2006/relationships\">";
    return {
        {"[Content_Types].xml",
         "<Types xmlns=\"http://schemas.openxmlformats.org/package/2006/content-types\">"
         "<Default Extension=\"rels\" "
         "ContentType=\"application/vnd.openxmlformats-package.relationships+xml\"/>"
         "<Default Extension=\"xml\" ContentType=\"application/xml\"/>"
         "<Override PartName=\"/word/document.xml\" ContentType=\"application/"
         "vnd.openxmlformats-officedocument.wordprocessingml.document.main+xml\"/>"
         "<Override PartName=\"/word/styles.xml\" ContentType=\"application/"
         "vnd.openxmlformats-officedocument.wordprocessingml.styles+xml\"/>"
         "<Override PartName=\"/word/settings.xml\" ContentType=\"application/"
         "vnd.openxmlformats-officedocument.wordprocessingml.settings+xml\"/></Types>"},
        {"_rels/.rels", raiz + "<Relationship Id=\"rId1\" Type=\"" + relaciones +
                            "officeDocument\" Target=\"word/document.xml\"/></Relationships>"},
        {"word/document.xml", std::string(documento)},
        {"word/_rels/document.xml.rels", raiz + "<Relationship Id=\"rId1\" Type=\"" + relaciones +
                                             "styles\" Target=\"styles.xml\"/>" +
                                             "<Relationship Id=\"rId2\" Type=\"" + relaciones +
                                             "settings\" Target=\"settings.xml\"/></Relationships>"},
        {"word/styles.xml", EstilosXml(estilos)},
        {"word/settings.xml", AjustesXml(ajustes)},
    };
}

std::string Comprime(const std::vector<TParte>& partes) {
    zip_error_t error;
    zip_error_init(&error);
    zip_source_t* fuente = zip_source_buffer_create(nullptr, 0, 0, &error);
    zip_source_keep(fuente);
    zip_t* archivo = zip_open_from_source(fuente, ZIP_TRUNCATE, &error);
    if (archivo == nullptr) throw std::runtime_error("cannot make an archive");
    for (const auto& [nombre, contenido] : partes) {
        zip_source_t* parte = zip_source_buffer(archivo, contenido.data(), contenido.size(), 0);
        const auto indice = zip_file_add(archivo, nombre.c_str(), parte, ZIP_FL_ENC_UTF_8);
        if (indice < 0) throw std::runtime_error("cannot add a part");
        zip_file_set_mtime(archivo, static_cast<zip_uint64_t>(indice), 1'000'000'000, 0);
    }
    if (zip_close(archivo) != 0) throw std::runtime_error("cannot close an archive");
    zip_stat_t datos;
    zip_source_stat(fuente, &datos);
    std::string bytes(datos.size, '\0');
    zip_source_open(fuente);
    zip_source_read(fuente, bytes.data(), bytes.size());
    zip_source_close(fuente);
    zip_source_free(fuente);
    return bytes;
}

std::vector<TParte> Descomprime(const std::filesystem::path& fichero) {
    std::vector<TParte> partes;
    const auto bytes = LeeBytes(fichero);
    zip_source_t* fuente = zip_source_buffer_create(bytes.data(), bytes.size(), 0, nullptr);
    zip_t* archivo = zip_open_from_source(fuente, ZIP_RDONLY, nullptr);
    if (archivo == nullptr) throw std::runtime_error("cannot open an archive");
    for (zip_int64_t i = 0; i < zip_get_num_entries(archivo, 0); ++i) {
        zip_stat_t datos;
        zip_stat_index(archivo, static_cast<zip_uint64_t>(i), 0, &datos);
        std::string contenido(datos.size, '\0');
        zip_file_t* parte = zip_fopen_index(archivo, static_cast<zip_uint64_t>(i), 0);
        zip_fread(parte, contenido.data(), contenido.size());
        zip_fclose(parte);
        partes.emplace_back(datos.name, contenido);
    }
    zip_discard(archivo);
    return partes;
}

void EscribeFichero(const std::filesystem::path& fichero, std::string_view bytes) {
    std::ofstream(fichero, std::ios::binary) << bytes;
}

std::string LeeBytes(const std::filesystem::path& fichero) {
    std::ifstream entrada(fichero, std::ios::binary);
    return {std::istreambuf_iterator<char>(entrada), {}};
}

void EscribeDocumento(const std::filesystem::path& fichero, std::string_view cuerpo) {
    EscribeFichero(fichero, Comprime(PartesDocumento(DocumentoXml(cuerpo))));
}

std::string TextoDe(const std::filesystem::path& fichero) {
    return TFicheroDocx(fichero).Contenido().Texto;
}

std::string RechazoAlLeer(const std::filesystem::path& fichero) {
    try {
        const TFicheroDocx documento(fichero);
    } catch (const ErrorDocumento& error) {
        return error.what();
    }
    return {};
}

std::string Visible(std::string_view texto) {
    std::string visible;
    for (const char c : Utf8DeAnsi(texto)) {
        if (static_cast<unsigned char>(c) >= ' ') {
            visible += c;
            continue;
        }
        visible += "{" + std::to_string(static_cast<int>(c)) + "}";
    }
    return visible;
}

}  // namespace analizador::pruebas
