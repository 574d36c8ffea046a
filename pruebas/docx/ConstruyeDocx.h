#pragma once

// Document files made by the tests themselves, part by part.

#include <filesystem>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace analizador::pruebas {

using TParte = std::pair<std::string, std::string>;  // name and content

constexpr std::string_view ESPACIO_W = "http://schemas.openxmlformats.org/wordprocessingml/2006/main";

// A folder of its own for each test, gone with the object.
class TCarpeta {
  public:
    TCarpeta();
    ~TCarpeta();
    TCarpeta(const TCarpeta&) = delete;
    TCarpeta& operator=(const TCarpeta&) = delete;

    [[nodiscard]] std::filesystem::path operator/(std::string_view nombre) const { return Ruta / nombre; }
    [[nodiscard]] const std::filesystem::path& GetRuta() const { return Ruta; }

    // The names of what it holds, in order.
    [[nodiscard]] std::vector<std::string> Nombres() const;

  private:
    std::filesystem::path Ruta;
};

// The main part with these contents of its body, all namespaces declared.
[[nodiscard]] std::string DocumentoXml(std::string_view cuerpo);

// The styles and settings parts with these contents.
[[nodiscard]] std::string EstilosXml(std::string_view estilos);
[[nodiscard]] std::string AjustesXml(std::string_view ajustes);

// All parts of a complete document with this main part and these styles and settings.
[[nodiscard]] std::vector<TParte> PartesDocumento(std::string_view documento, std::string_view estilos = "",
                                                  std::string_view ajustes = "");

// The bytes of an archive of these parts.
[[nodiscard]] std::string Comprime(const std::vector<TParte>& partes);

[[nodiscard]] std::vector<TParte> Descomprime(const std::filesystem::path& fichero);

void EscribeFichero(const std::filesystem::path& fichero, std::string_view bytes);
[[nodiscard]] std::string LeeBytes(const std::filesystem::path& fichero);

// Writes a document with this body, and reads the file's text.
void EscribeDocumento(const std::filesystem::path& fichero, std::string_view cuerpo);
[[nodiscard]] std::string TextoDe(const std::filesystem::path& fichero);

// The message of the ErrorDocumento that reading the file throws; empty when it is read.
[[nodiscard]] std::string RechazoAlLeer(const std::filesystem::path& fichero);

// Control characters written out, for messages and comparisons that people read.
[[nodiscard]] std::string Visible(std::string_view texto);

}  // namespace analizador::pruebas
