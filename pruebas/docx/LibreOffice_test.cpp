// LibreOffice as an independent reader: what is saved here, it opens and sees the same.

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <map>
#include <pugixml.hpp>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "adaptadores/docx/FicheroDocx.h"
#include "plataforma/Ansi.h"
#include "pruebas/docx/ConstruyeDocx.h"

namespace analizador::pruebas {
namespace {

constexpr std::string_view NOMBRE = "MARÍA PÉREZ"_ansi;
constexpr std::string_view MITAD = "RÍA PÉREZ"_ansi;

bool HayLibreOffice() {
    const char* ruta = std::getenv("PATH");
    std::istringstream carpetas(ruta != nullptr ? ruta : "");
    for (std::string carpeta; std::getline(carpetas, carpeta, ':');)
        if (std::filesystem::exists(std::filesystem::path(carpeta) / "soffice")) return true;
    return false;
}

// Converts a file, with a profile of its own, into the same folder. True when the new file is there.
bool Convierte(const TCarpeta& carpeta, const std::string& nombre, const std::string& formato) {
    const auto entre = [](const std::filesystem::path& ruta) { return "'" + ruta.string() + "'"; };
    const auto orden = "timeout 150 soffice '-env:UserInstallation=file://" + (carpeta / "perfil").string() +
                       "' --headless --convert-to " + formato + " --outdir " + entre(carpeta.GetRuta()) +
                       " " + entre(carpeta / nombre) + " >/dev/null 2>&1";
    return std::system(orden.c_str()) == 0;
}

// The text and the bookmarks of a flat OpenDocument text, in the terms of TContenidoDocumento.
class TLectorOdt {
  public:
    explicit TLectorOdt(const std::filesystem::path& fichero) {
        pugi::xml_document documento;
        documento.load_file(fichero.c_str(), pugi::parse_default | pugi::parse_ws_pcdata);
        Bloques(documento.child("office:document").child("office:body").child("office:text"));
    }

    std::u16string Texto;
    std::map<std::string, TIntervalo> Marcadores;

  private:
    void Bloques(pugi::xml_node nodo) {
        for (const auto hijo : nodo.children()) {
            const std::string_view nombre = hijo.name();
            if (nombre == "text:p" || nombre == "text:h") {
                Linea(hijo);
                Texto += u'\r';
            } else if (nombre == "table:table-cell") {
                Bloques(hijo);
                Texto += u'\a';
            } else {
                Bloques(hijo);
                if (nombre == "table:table-row") Texto += u"\r\a";
            }
        }
    }

    void Linea(pugi::xml_node nodo) {
        for (const auto hijo : nodo.children()) {
            const std::string_view nombre = hijo.name();
            const std::string marcador = hijo.attribute("text:name").value();
            const int aqui = static_cast<int>(Texto.size());
            if (hijo.type() == pugi::node_pcdata) Texto += Utf16DeUtf8(hijo.value());
            if (nombre == "text:s") Texto.append(hijo.attribute("text:c").as_uint(1), u' ');
            if (nombre == "text:tab") Texto += u'\t';
            if (nombre == "text:line-break") Texto += u'\v';
            if (nombre == "text:span" || nombre == "text:a") Linea(hijo);
            if (nombre == "text:bookmark") Marcadores[marcador] = {aqui, aqui};
            if (nombre == "text:bookmark-start") Marcadores[marcador].Inicio = aqui;
            if (nombre == "text:bookmark-end") Marcadores[marcador].Fin = aqui;
        }
    }
};

// (A paragraph stands between the table and EXPONEN because LibreOffice drops a bookmark that begins in the
// paragraph right after a table and ends in another one, whoever wrote it.)
std::string Escritura() {
    const auto tirada = [](std::string_view texto) {
        return "<w:r><w:rPr><w:b/></w:rPr><w:t xml:space=\"preserve\">" + std::string(texto) + "</w:t></w:r>";
    };
    const auto parrafo = [&](std::string_view texto) { return "<w:p>" + tirada(texto) + "</w:p>"; };
    return parrafo("NÚMERO MIL DOS.  ") + "<w:p/>" + parrafo("COMPARECEN") + "<w:p>" + tirada("DOÑA MARÍA ") +
           "<w:r><w:t>PÉREZ</w:t><w:tab/><w:t>de Madrid</w:t><w:br/></w:r>" + tirada("y otra &amp; más.") +
           "</w:p>" +
           "<w:tbl><w:tblPr><w:tblW w:w=\"5000\" w:type=\"pct\"/></w:tblPr><w:tblGrid><w:gridCol "
           "w:w=\"4000\"/>"
           "<w:gridCol w:w=\"4000\"/></w:tblGrid><w:tr><w:tc><w:tcPr><w:tcW w:w=\"4000\" "
           "w:type=\"dxa\"/></w:tcPr>" +
           parrafo("Finca") + parrafo("urbana") +
           "</w:tc><w:tc><w:tcPr><w:tcW w:w=\"4000\" w:type=\"dxa\"/></w:tcPr>" + parrafo("1.000 €") +
           "</w:tc></w:tr></w:tbl>" + parrafo("Sigue.") + parrafo("EXPONEN") + parrafo("Fin");
}

class LibreOffice : public testing::Test {
  protected:
    void SetUp() override {
        if (!HayLibreOffice()) GTEST_SKIP() << "soffice is not installed";
        EscribeDocumento(Carpeta / "escritura.docx", Escritura());
    }

    TCarpeta Carpeta;
};

TEST_F(LibreOffice, VeElMismoTextoYLosMarcadoresEnSuSitio) {
    TFicheroDocx documento(Carpeta / "escritura.docx");
    const auto texto = documento.Contenido().Texto;
    const auto en = [&](std::string_view palabras) { return static_cast<int>(texto.find(palabras)); };
    const auto de = [&](std::string_view palabras) {
        return TIntervalo{en(palabras), en(palabras) + static_cast<int>(palabras.size())};
    };
    const std::vector<TMarcador> marcadores = {
        {"CABECERA", {0, en("COMPARECEN")}},
        {"COMPARECIENTES", {en("COMPARECEN"), en("Finca")}},
        {"NOMBRE", de(NOMBRE)},
        {"TABULADOR", de("\tde")},
        {"LINEA", de("\vy otra &")},
        {"FINCA_1", de("urbana")},
        {"FINCA_2", de("000")},
        {"VACIO", {en(MITAD), en(MITAD)}},
        {"EXPONEN", {en("EXPONEN"), static_cast<int>(texto.size()) - 1}},
    };
    documento.Guarda(marcadores, Carpeta / "guardada.docx");
    ASSERT_TRUE(Convierte(Carpeta, "guardada.docx", "fodt"));

    const TLectorOdt leido(Carpeta / "guardada.fodt");
    EXPECT_EQ(Visible(AnsiDeUtf16(leido.Texto)), Visible(texto));
    EXPECT_EQ(leido.Marcadores.size(), marcadores.size());
    for (const auto& [nombre, intervalo] : marcadores) {
        SCOPED_TRACE(nombre);
        const auto it = leido.Marcadores.find(nombre);
        ASSERT_NE(it, leido.Marcadores.end());
        EXPECT_EQ(it->second.Inicio, intervalo.Inicio);
        EXPECT_EQ(it->second.Fin, intervalo.Fin);
    }
}

TEST_F(LibreOffice, ConvierteATextoLoMismoQueAntesDeGuardar) {
    TFicheroDocx documento(Carpeta / "escritura.docx");
    std::vector<TMarcador> marcadores;
    const auto longitud = static_cast<int>(documento.Contenido().Texto.size());
    for (int i = 0; i < longitud; ++i) marcadores.push_back({"M" + std::to_string(i), {i * i % (i + 1), i}});
    documento.Guarda(marcadores, Carpeta / "guardada.docx");
    ASSERT_TRUE(Convierte(Carpeta, "escritura.docx", "txt:Text"));
    ASSERT_TRUE(Convierte(Carpeta, "guardada.docx", "txt:Text"));
    const auto antes = LeeBytes(Carpeta / "escritura.txt");
    EXPECT_NE(antes.find("COMPARECEN"), std::string::npos);
    EXPECT_EQ(LeeBytes(Carpeta / "guardada.txt"), antes);
}

}  // namespace
}  // namespace analizador::pruebas
