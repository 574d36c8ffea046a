#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "pruebas/docx/ConstruyeDocx.h"

namespace analizador::pruebas {
namespace {

constexpr std::string_view ESTILOS =
    "<w:style w:type=\"paragraph\" w:default=\"1\" w:styleId=\"Normal\"/>"
    "<w:style w:type=\"paragraph\" w:styleId=\"Nota\"><w:basedOn w:val=\"Base\"/></w:style>"
    "<w:style w:type=\"paragraph\" w:styleId=\"Base\"><w:rPr><w:vanish/></w:rPr></w:style>"
    "<w:style w:type=\"paragraph\" w:styleId=\"Vista\"><w:basedOn w:val=\"Base\"/><w:rPr><w:vanish "
    "w:val=\"0\"/>"
    "</w:rPr></w:style>"
    "<w:style w:type=\"paragraph\" w:styleId=\"Giro1\"><w:basedOn w:val=\"Giro2\"/></w:style>"
    "<w:style w:type=\"paragraph\" w:styleId=\"Giro2\"><w:basedOn w:val=\"Giro1\"/></w:style>"
    "<w:style w:type=\"character\" w:styleId=\"Oculto\"><w:rPr><w:vanish/></w:rPr></w:style>"
    "<w:style w:type=\"table\" w:styleId=\"TablaOculta\"><w:rPr><w:vanish/></w:rPr></w:style>";

std::string Parrafo(std::string_view propiedades, std::string_view deTirada, std::string_view texto) {
    return "<w:p><w:pPr>" + std::string(propiedades) + "</w:pPr><w:r><w:rPr>" + std::string(deTirada) +
           "</w:rPr><w:t>" + std::string(texto) + "</w:t></w:r></w:p>";
}

struct TCaso {
    std::string Cuerpo;
    std::string Texto;
};

void Comprueba(std::string_view estilos, const std::vector<TCaso>& casos) {
    const TCarpeta carpeta;
    const auto fichero = carpeta / "oculto.docx";
    for (const auto& caso : casos) {
        SCOPED_TRACE(caso.Cuerpo);
        EscribeFichero(fichero, Comprime(PartesDocumento(DocumentoXml(caso.Cuerpo), estilos)));
        EXPECT_EQ(Visible(TextoDe(fichero)), Visible(caso.Texto));
    }
}

TEST(OcultoDocx, EnLaTiradaYEnLaMarca) {
    constexpr auto MARCA = "<w:rPr><w:vanish/></w:rPr>";
    Comprueba(
        ESTILOS,
        {
            {Parrafo("", "<w:vanish/>", "a"), "\r"},
            {Parrafo("", "<w:vanish w:val=\"true\"/>", "a"), "\r"},
            {Parrafo("", "<w:vanish w:val=\"false\"/>", "a"), "a\r"},
            {Parrafo("", "<w:vanish w:val=\"off\"/>", "a"), "a\r"},
            {Parrafo("", "<w:webHidden/>", "a"), "a\r"},
            {Parrafo("", "<w:rPrChange w:id=\"1\"><w:rPr><w:vanish/></w:rPr></w:rPrChange>", "a"), "a\r"},
            {Parrafo(MARCA, "", "a") + Parrafo("", "", "b"), "ab\r"},
            {Parrafo("<w:rPr><w:vanish/><w:specVanish/></w:rPr>", "", "a") + Parrafo("", "", "b"), "ab\r"},
            {Parrafo("", "", "a") + Parrafo(MARCA, "<w:vanish/>", "b") + Parrafo("", "", "c"), "a\rc\r"},
        });
}

TEST(OcultoDocx, PorLosEstilos) {
    const auto estilo = [](std::string_view nombre) {
        return "<w:pStyle w:val=\"" + std::string(nombre) + "\"/>";
    };
    constexpr auto CARACTER = "<w:rStyle w:val=\"Oculto\"/>";
    const auto siguiente = Parrafo("", "", "z");
    Comprueba(ESTILOS,
              {
                  {Parrafo("", CARACTER, "a"), "\r"},
                  {Parrafo("", "<w:rStyle w:val=\"Nadie\"/>", "a"), "a\r"},
                  // the whole paragraph, its mark included
                  {Parrafo(estilo("Base"), "", "a") + siguiente, "z\r"},
                  {Parrafo(estilo("Nota"), "", "a") + siguiente, "z\r"},
                  {Parrafo(estilo("Vista"), "", "a") + siguiente, "a\rz\r"},
                  {Parrafo(estilo("Giro1"), "", "a") + siguiente, "a\rz\r"},
                  // the two kinds of style undo each other; what the run itself says is final
                  {Parrafo(estilo("Base"), CARACTER, "a") + siguiente, "az\r"},
                  {Parrafo(estilo("Base"), "<w:vanish w:val=\"0\"/>", "a") + siguiente, "az\r"},
                  {Parrafo(estilo("Base"), std::string(CARACTER) + "<w:vanish/>", "a") + siguiente, "z\r"},
              });
}

TEST(OcultoDocx, PorLaTabla) {
    const auto tabla = [](std::string_view parrafo) {
        return "<w:tbl><w:tblPr><w:tblStyle w:val=\"TablaOculta\"/></w:tblPr><w:tr><w:tc>" +
               std::string(parrafo) + "</w:tc></w:tr></w:tbl><w:p/>";
    };
    Comprueba(ESTILOS, {{tabla(Parrafo("", "", "a")), "\r\a\r\a\r"},
                        {tabla(Parrafo("", "<w:rStyle w:val=\"Oculto\"/>", "a")), "a\r\a\r\a\r"}});
}

TEST(OcultoDocx, PorDefectoDelDocumentoODelEstiloNormal) {
    const auto visible = Parrafo("<w:rPr><w:vanish w:val=\"0\"/></w:rPr>", "<w:vanish w:val=\"0\"/>", "b");
    const std::vector<TCaso> casos = {{Parrafo("", "", "a") + visible, "b\r"}};
    Comprueba("<w:docDefaults><w:rPrDefault><w:rPr><w:vanish/></w:rPr></w:rPrDefault></w:docDefaults>",
              casos);
    Comprueba(
        "<w:style w:type=\"paragraph\" w:default=\"1\" w:styleId=\"N\"><w:rPr><w:vanish/></w:rPr></w:style>",
        casos);
}

}  // namespace
}  // namespace analizador::pruebas
