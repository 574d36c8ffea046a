#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "adaptadores/docx/FicheroDocx.h"
#include "plataforma/Ansi.h"
#include "pruebas/docx/ConstruyeDocx.h"

namespace analizador {

static std::ostream& operator<<(std::ostream& salida, const TMarcador& marcador) {
    return salida << marcador.Nombre << " [" << marcador.Intervalo.Inicio << ", " << marcador.Intervalo.Fin
                  << ")";
}

}  // namespace analizador

namespace analizador::pruebas {
namespace {

constexpr std::string_view FINCA = "FINCA_ñ"_ansi;
constexpr std::string_view NUNEZ = "Núñez & Cía"_ansi;

// The start and the end of a bookmark, whose identifier is the code of its first letter.
std::string Inicio(std::string_view nombre) {
    return "<w:bookmarkStart w:id=\"" + std::to_string(nombre.front()) + "\" w:name=\"" +
           std::string(nombre) + "\"/>";
}

std::string Fin(std::string_view nombre) {
    return "<w:bookmarkEnd w:id=\"" + std::to_string(nombre.front()) + "\"/>";
}

std::string Tirada(std::string_view texto) {
    return "<w:r><w:t>" + std::string(texto) + "</w:t></w:r>";
}

struct TCaso {
    std::string_view Nombre;
    std::string Cuerpo;
    std::vector<TMarcador> Marcadores;
};

TEST(MarcadoresDocx, SeLeenDondeEstan) {
    const std::vector<TCaso> casos = {
        {"within a paragraph",
         "<w:p>" + Tirada("ab") + Inicio("M") + Tirada("cd") + Fin("M") + "</w:p>",
         {{"M", {2, 4}}}},
        {"between blocks, over the mark",
         Inicio("M") + "<w:p>" + Tirada("ab") + "</w:p>" + Fin("M") + "<w:p/>",
         {{"M", {0, 3}}}},
        {"in different paragraphs, crossing another",
         "<w:p>" + Inicio("A") + Tirada("ab") + Inicio("B") + "</w:p><w:p>" + Fin("A") + Tirada("cd") +
             Fin("B") + "</w:p>",
         {{"A", {0, 3}}, {"B", {2, 5}}}},
        {"in deleted and hidden text, and in a field's code",
         "<w:p>" + Tirada("a") + "<w:del>" + Inicio("A") + Tirada("x") +
             "</w:del><w:r><w:fldChar "
             "w:fldCharType=\"begin\"/></w:r>" +
             Fin("A") + Inicio("B") + Tirada("y") + "<w:r><w:fldChar w:fldCharType=\"separate\"/></w:r>" +
             Tirada("b") + Fin("B") + "<w:r><w:fldChar w:fldCharType=\"end\"/></w:r></w:p>",
         {{"A", {1, 1}}, {"B", {1, 2}}}},
        {"after a cell's last paragraph means after the cell",
         "<w:tbl><w:tr>" + Inicio("A") + "<w:tc><w:p>" + Tirada("a") + "</w:p>" + Inicio("B") + Fin("A") +
             "</w:tc><w:tc><w:p/></w:tc>" + Fin("B") + "</w:tr></w:tbl><w:p/>",
         {{"A", {0, 3}}, {"B", {3, 5}}}},
        {"starts and ends without their counterpart",
         "<w:p>" + Fin("A") + Inicio("A") + Tirada("a") + Inicio("B") + Fin("B") + Fin("B") + "</w:p>",
         {{"B", {1, 1}}}},
        {"of two equal names in any case the first",
         "<w:p>" + Inicio("FINCA_ñ") + Fin("F") + Tirada("a") + Inicio("finca_Ñ") + Fin("f") + "</w:p>",
         {{std::string(FINCA), {0, 0}}}},
        {"not those of a text box",
         "<w:p>" + Inicio("A") + "<w:r><w:pict><w:p>" + Inicio("B") + Fin("B") + "</w:p></w:pict></w:r>" +
             Fin("A") + "</w:p>",
         {{"A", {0, 0}}}},
    };
    const TCarpeta carpeta;
    const auto fichero = carpeta / "marcadores.docx";
    for (const auto& caso : casos) {
        SCOPED_TRACE(caso.Nombre);
        EscribeDocumento(fichero, caso.Cuerpo);
        EXPECT_EQ(TFicheroDocx(fichero).Contenido().Marcadores, caso.Marcadores);
    }
}

TEST(MarcadoresDocx, LasVariablesDelDocumento) {
    const TCarpeta carpeta;
    const auto fichero = carpeta / "variables.docx";
    EscribeFichero(fichero, Comprime(PartesDocumento(
                                DocumentoXml("<w:p/>"), "",
                                "<w:docVars><w:docVar w:name=\"EMPLEADO\" w:val=\"Núñez &amp; Cía\"/>"
                                "<w:docVar w:name=\"XML\" w:val=\"&lt;a/&gt;&#10;b\"/></w:docVars>")));
    const std::vector<TVariable> esperadas = {{"EMPLEADO", std::string(NUNEZ)}, {"XML", "<a/>\nb"}};
    EXPECT_EQ(TFicheroDocx(fichero).Contenido().Variables, esperadas);
}

}  // namespace
}  // namespace analizador::pruebas
