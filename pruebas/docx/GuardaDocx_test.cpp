#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include "adaptadores/docx/FicheroDocx.h"
#include "plataforma/Ansi.h"
#include "pruebas/docx/ConstruyeDocx.h"

namespace analizador::pruebas {
namespace {

constexpr std::string_view ESCRITURA = "ESCRITURA_Nº"_ansi;
constexpr std::string_view ENE = "Ñ"_ansi;

std::string Inicio(int id, std::string_view nombre) {
    return "<w:bookmarkStart w:id=\"" + std::to_string(id) + "\" w:name=\"" + std::string(nombre) + "\"/>";
}

std::string Fin(int id) {
    return "<w:bookmarkEnd w:id=\"" + std::to_string(id) + "\"/>";
}

std::string ParteDe(const std::filesystem::path& fichero, const std::string& nombre) {
    for (const auto& [parte, contenido] : Descomprime(fichero))
        if (parte == nombre) return contenido;
    return {};
}

std::string Principal(const std::filesystem::path& fichero) {
    return ParteDe(fichero, "word/document.xml");
}

// The body of a main part that DocumentoXml made; all else has to be as it was.
std::string Cuerpo(const std::string& principal) {
    const auto vacio = DocumentoXml("");
    const auto corte = vacio.find("</w:body>");
    EXPECT_TRUE(principal.starts_with(vacio.substr(0, corte)));
    EXPECT_TRUE(principal.ends_with(vacio.substr(corte)));
    return principal.substr(corte, principal.size() - vacio.size());
}

struct TCaso {
    std::string_view Nombre;
    std::string Antes;  // bodies
    std::vector<TMarcador> Marcadores;
    std::string Despues;
};

TEST(GuardaDocx, SoloAnadeLosMarcadores) {
    const std::string tirada = "<w:r w:rsidR=\"00A1\"><w:rPr><w:b/><w:lang w:val=\"es-ES\"/></w:rPr>";
    const std::vector<TCaso> casos = {
        {"at the ends of a paragraph: no run is split",
         "<w:p><w:pPr/><w:r><w:t>abc</w:t></w:r></w:p>",
         {{"M", {0, 3}}},
         "<w:p><w:pPr/>" + Inicio(1, "M") + "<w:r><w:t>abc</w:t></w:r>" + Fin(1) + "</w:p>"},
        {"the halves of a run keep its attributes and properties",
         "<w:p>" + tirada + "<w:t>abc</w:t></w:r></w:p>",
         {{"M", {1, 2}}},
         "<w:p>" + tirada + "<w:t xml:space=\"preserve\">a</w:t></w:r>" + Inicio(1, "M") + tirada +
             "<w:t xml:space=\"preserve\">b</w:t></w:r>" + Fin(1) + tirada +
             "<w:t xml:space=\"preserve\">c</w:t></w:r></w:p>"},
        {"between the elements of a run",
         "<w:p><w:r><w:t>a</w:t><w:tab/><w:br/></w:r></w:p>",
         {{"M", {1, 2}}},
         "<w:p><w:r><w:t>a</w:t></w:r>" + Inicio(1, "M") + "<w:r><w:tab/></w:r>" + Fin(1) +
             "<w:r><w:br/></w:r></w:p>"},
        {"an empty paragraph is opened",
         "<w:p w:rsidR=\"1\"/><w:p/>",
         {{"M", {0, 1}}},
         "<w:p w:rsidR=\"1\">" + Inicio(1, "M") + "</w:p><w:p>" + Fin(1) + "</w:p>"},
        {"one of the same name goes, in any case, with its end",
         "<w:p>" + Inicio(7, "finca_1") + "<w:r><w:t>a</w:t></w:r>" + Fin(7) + Inicio(3, "OTRO") + Fin(3) +
             "</w:p>",
         {{"FINCA_1", {1, 1}}},
         "<w:p><w:r><w:t>a</w:t></w:r>" + Inicio(3, "OTRO") + Fin(3) + Inicio(8, "FINCA_1") + Fin(8) +
             "</w:p>"},
        {"one that is there just so stays as it is",
         "<w:p>" + Inicio(7, "M") + "<w:r><w:t>a</w:t></w:r>" + Fin(7) + "</w:p>",
         {{"M", {0, 1}}, {"N", {0, 0}}},
         "<w:p>" + Inicio(7, "M") + Inicio(8, "N") + Fin(8) + "<w:r><w:t>a</w:t></w:r>" + Fin(7) + "</w:p>"},
        {"at the end of the text, before the section's properties",
         "<w:p><w:r><w:t>a</w:t></w:r></w:p><w:sectPr/>",
         {{"M", {0, 2}}},
         "<w:p>" + Inicio(1, "M") + "<w:r><w:t>a</w:t></w:r></w:p>" + Fin(1) + "<w:sectPr/>"},
        {"blanks that did not count do not begin to",
         "<w:p><w:r><w:t> a b </w:t></w:r></w:p>",
         {{"M", {2, 3}}},
         "<w:p><w:r><w:t xml:space=\"preserve\">a </w:t></w:r>" + Inicio(1, "M") +
             "<w:r><w:t xml:space=\"preserve\">b</w:t></w:r>" + Fin(1) + "</w:p>"},
        {"comments, references and a greater-than sign in an attribute",
         "<w:p><!-- <w:r> --><w:r w:x=\"a>b\"><w:t>&amp;&#xF1;a</w:t></w:r></w:p>",
         {{"M", {1, 2}}},
         "<w:p><!-- <w:r> --><w:r w:x=\"a>b\"><w:t xml:space=\"preserve\">&amp;</w:t></w:r>" +
             Inicio(1, "M") + "<w:r w:x=\"a>b\"><w:t xml:space=\"preserve\">&#xF1;</w:t></w:r>" + Fin(1) +
             "<w:r w:x=\"a>b\"><w:t xml:space=\"preserve\">a</w:t></w:r></w:p>"},
        {"a name outside ASCII",
         "<w:p/>",
         {{std::string(ESCRITURA), {0, 0}}},
         "<w:p>" + Inicio(1, "ESCRITURA_Nº") + Fin(1) + "</w:p>"},
    };
    const TCarpeta carpeta;
    const auto fichero = carpeta / "guarda.docx";
    for (auto caso : casos) {
        SCOPED_TRACE(caso.Nombre);
        EscribeDocumento(fichero, caso.Antes);
        TFicheroDocx documento(fichero);
        const auto texto = documento.Contenido().Texto;
        documento.Guarda(caso.Marcadores, fichero);
        EXPECT_EQ(Cuerpo(Principal(fichero)), caso.Despues);
        EXPECT_EQ(documento.Contenido().Texto, texto);
        EXPECT_EQ(TextoDe(fichero), texto);
    }
}

// Something of everything.
const std::vector<std::string>& CuerposVarios() {
    static const std::vector<std::string> CUERPOS = {
        "",
        "<w:p/>",
        "<w:p><w:r><w:t xml:space=\"preserve\">a b "
        "</w:t><w:tab/><w:t>c&lt;d</w:t></w:r></w:p><w:p/><w:sectPr/>",
        "<w:tbl><w:tr><w:tc><w:p><w:r><w:t>ab</w:t></w:r></w:p></w:tc><w:tc/></w:tr></w:tbl>",
        "<w:p><w:pPr><w:rPr><w:del "
        "w:id=\"5\"/></w:rPr></w:pPr><w:r><w:t>a</w:t></w:r></w:p><w:tbl><w:tr><w:tc><w:tbl>"
        "<w:tr><w:tc><w:p/></w:tc></w:tr></w:tbl><w:p/></w:tc></w:tr></w:tbl><w:p/>",
        "<w:p><w:r><w:fldChar w:fldCharType=\"begin\"/><w:instrText>X</w:instrText><w:fldChar "
        "w:fldCharType=\"separate\"/><w:t>ab</w:t><w:fldChar "
        "w:fldCharType=\"end\"/></w:r><w:hyperlink><w:r><w:t>cd</w:t>"
        "</w:r></w:hyperlink></w:p>",
        "<w:p><w:r><mc:AlternateContent><mc:Choice "
        "Requires=\"w14\"><w:t>ab</w:t></mc:Choice><mc:Fallback><w:t>zz</w:t>"
        "</mc:Fallback></mc:AlternateContent></w:r><m:oMath><m:r><m:rPr/><w:rPr/><m:t>xy</m:t></m:r></"
        "m:oMath></w:p>",
        "<w:p><w:r><w:ruby><w:rubyPr/><w:rt/><w:rubyBase><w:r><w:t>ab</w:t></w:r></w:rubyBase></w:ruby></"
        "w:r><w:del "
        "w:id=\"1\"><w:r><w:delText>x</w:delText></w:r></w:del><w:ins "
        "w:id=\"2\"><w:r><w:t>cd</w:t></w:r></w:ins></w:p>",
        "<w:p><w:r><w:t> <![CDATA[a <b]]> c<!-- no -->d "
        "</w:t></w:r><w:r><w:rPr><w:vanish/></w:rPr><w:t>no</w:t></w:r>"
        "<w:r><w:t>n</w:t></w:r><w:r><w:t>\u0303e😀&#x1F600;</w:t></w:r></w:p>",
        "<w:sdt><w:sdtContent><w:p><w:sdt><w:sdtContent><w:r><w:t>ab</w:t></w:r></w:sdtContent></w:sdt></w:p>"
        "</w:sdtContent></w:sdt><p "
        "xmlns=\"http://schemas.openxmlformats.org/wordprocessingml/2006/main\"><r><t>cd</t></r></p>",
        "<w:p><w:pPr><w:rPr><w:vanish/></w:rPr></w:pPr><w:r><w:t>a</w:t></w:r></w:p>",
    };
    return CUERPOS;
}

// Where the two ends may come out: not in the middle of a mark, of a pair or beyond the last CR of the file.
bool EsCortePosible(const std::string& texto, int posicion) {
    const auto i = static_cast<std::size_t>(posicion);
    return i == 0 || i >= texto.size() || texto[i] != '\a';
}

TEST(GuardaDocx, CualquierIntervaloSeLeeIgual) {
    const TCarpeta carpeta;
    const auto original = carpeta / "original.docx";
    const auto guardado = carpeta / "guardado.docx";
    for (const auto& cuerpo : CuerposVarios()) {
        SCOPED_TRACE(cuerpo);
        EscribeDocumento(original, cuerpo);
        TFicheroDocx documento(original);
        const auto texto = documento.Contenido().Texto;
        const auto longitud = static_cast<int>(texto.size());
        for (int inicio = 0; inicio < longitud; ++inicio)
            for (int fin = inicio; fin < longitud; ++fin) {
                documento.Guarda({{"M", {inicio, fin}}}, guardado);
                const auto leido = TFicheroDocx(guardado).Contenido();
                ASSERT_EQ(Visible(leido.Texto), Visible(texto));
                ASSERT_EQ(leido.Marcadores.size(), 1U);
                const auto intervalo = leido.Marcadores[0].Intervalo;
                // A pair of units shows as two question marks in these documents.
                const bool enPareja = texto.find("??") != std::string::npos;
                if (enPareja) continue;
                if (EsCortePosible(texto, inicio)) {
                    EXPECT_EQ(intervalo.Inicio, inicio);
                }
                if (EsCortePosible(texto, fin)) {
                    EXPECT_EQ(intervalo.Fin, fin);
                }
            }
    }
}

TEST(GuardaDocx, MuchosALaVezYOtraVezEncima) {
    const TCarpeta carpeta;
    const auto fichero = carpeta / "muchos.docx";
    for (const auto& cuerpo : CuerposVarios()) {
        SCOPED_TRACE(cuerpo);
        EscribeDocumento(fichero, cuerpo);
        TFicheroDocx documento(fichero);
        const auto texto = documento.Contenido().Texto;
        const auto longitud = static_cast<int>(texto.size());
        for (int vez = 0; vez < 3; ++vez) {
            std::vector<TMarcador> marcadores;
            for (int i = 0; i < longitud; ++i)
                marcadores.push_back({"M" + std::to_string(i), {(i * 5 + vez) % (i + 1), i}});
            documento.Guarda(marcadores, fichero);
            EXPECT_EQ(documento.Contenido().Marcadores.size(), marcadores.size());
            EXPECT_EQ(Visible(TextoDe(fichero)), Visible(texto));
        }
    }
}

TEST(GuardaDocx, LaMarcaDeCeldaEsUnaPosicion) {
    const TCarpeta carpeta;
    const auto fichero = carpeta / "celda.docx";
    EscribeDocumento(fichero,
                     "<w:tbl><w:tr><w:tc><w:p><w:r><w:t>a</w:t></w:r></w:p></w:tc></w:tr></w:tbl><w:p/>");
    TFicheroDocx documento(fichero);  // a CR 7 CR 7 CR
    documento.Guarda({{"A", {0, 2}}, {"B", {2, 4}}, {"C", {2, 2}}}, fichero);
    const std::vector<TMarcador> esperados = {{"A", {0, 3}}, {"B", {1, 5}}, {"C", {1, 1}}};
    auto leidos = documento.Contenido().Marcadores;
    std::ranges::sort(leidos, {}, &TMarcador::Nombre);
    EXPECT_EQ(leidos, esperados);
}

TEST(GuardaDocx, UnParDeUnidadesNoSeParte) {
    const TCarpeta carpeta;
    const auto fichero = carpeta / "par.docx";
    EscribeDocumento(fichero, "<w:p><w:r><w:t>a😀&#x1F600;b</w:t></w:r></w:p>");
    TFicheroDocx documento(fichero);
    documento.Guarda({{"A", {2, 4}}, {"B", {2, 2}}, {"C", {3, 5}}}, fichero);
    const std::vector<TMarcador> esperados = {{"A", {1, 5}}, {"B", {1, 1}}, {"C", {3, 5}}};
    auto leidos = documento.Contenido().Marcadores;
    std::ranges::sort(leidos, {}, &TMarcador::Nombre);
    EXPECT_EQ(leidos, esperados);
}

TEST(GuardaDocx, LasDemasPartesQuedanByteAByteYEnSuOrden) {
    auto partes = PartesDocumento(DocumentoXml("<w:p><w:r><w:t>abc</w:t></w:r></w:p>"));
    partes.insert(partes.begin(), {"docProps/foto.bin", std::string("\0\1\2\xFF", 4)});
    partes.emplace_back("word/vacia.xml", "");
    const TCarpeta carpeta;
    const auto fichero = carpeta / "partes.docm";
    const auto antes = Comprime(partes);
    EscribeFichero(fichero, antes);
    TFicheroDocx(fichero).Guarda({{"M", {1, 2}}}, fichero);

    const auto despues = Descomprime(fichero);
    ASSERT_EQ(despues.size(), partes.size());
    for (std::size_t i = 0; i < partes.size(); ++i) {
        EXPECT_EQ(despues[i].first, partes[i].first);
        const bool cambia = partes[i].first == "word/document.xml";
        EXPECT_EQ(despues[i].second != partes[i].second, cambia);
    }
    // compressed bytes too: from the first to the main part's header, the file begins as it did
    const auto hasta = antes.find("word/document.xml") - 30;
    EXPECT_EQ(LeeBytes(fichero).substr(0, hasta), antes.substr(0, hasta));
}

TEST(GuardaDocx, EnLaMismaCodificacion) {
    const auto xml = DocumentoXml("<w:p><w:r><w:t>ñ😀</w:t></w:r></w:p>");
    std::string utf16 = "\xFF\xFE";
    for (const char16_t unidad : Utf16DeUtf8(xml)) {
        utf16 += static_cast<char>(static_cast<unsigned char>(unidad & 0xFF));
        utf16 += static_cast<char>(static_cast<unsigned char>(unidad >> 8));
    }
    const TCarpeta carpeta;
    const auto fichero = carpeta / "codificado.docx";
    EscribeFichero(fichero, Comprime(PartesDocumento(utf16)));
    TFicheroDocx(fichero).Guarda({{"M", {0, 1}}}, fichero);
    const auto principal = Principal(fichero);
    EXPECT_TRUE(principal.starts_with("\xFF\xFE"));
    EXPECT_EQ(principal.size() % 2, 0U);
    EXPECT_EQ(TFicheroDocx(fichero).Contenido().Marcadores, (std::vector<TMarcador>{{"M", {0, 1}}}));

    EscribeFichero(fichero, Comprime(PartesDocumento("\xEF\xBB\xBF" + xml)));
    TFicheroDocx(fichero).Guarda({{"M", {0, 1}}}, fichero);
    EXPECT_TRUE(Principal(fichero).starts_with("\xEF\xBB\xBF<?xml"));
}

TEST(GuardaDocx, SinPrefijoPropioLosMarcadoresDeclaranElSuyo) {
    const std::string estricto = "http://purl.oclc.org/ooxml/wordprocessingml/main";
    const TCarpeta carpeta;
    const auto fichero = carpeta / "prefijo.docx";
    EscribeFichero(fichero, Comprime(PartesDocumento("<document xmlns=\"" + estricto +
                                                     "\"><body><p><r><t>abc</t></r></p></body></document>")));
    TFicheroDocx(fichero).Guarda({{"M", {1, 2}}}, fichero);
    EXPECT_NE(Principal(fichero).find("<w:bookmarkStart xmlns:w=\"" + estricto + "\" w:id="),
              std::string::npos);
    EXPECT_EQ(TFicheroDocx(fichero).Contenido().Marcadores, (std::vector<TMarcador>{{"M", {1, 2}}}));
}

TEST(GuardaDocx, LosIdentificadoresSonNuevosAunqueSeAcaben) {
    const TCarpeta carpeta;
    const auto fichero = carpeta / "ids.docx";
    EscribeDocumento(
        fichero, "<w:p>" + Inicio(2147483647, "A") + Fin(2147483647) + Inicio(0, "B") + Fin(0) + "</w:p>");
    TFicheroDocx documento(fichero);
    documento.Guarda({{"C", {0, 0}}, {"D", {0, 0}}}, fichero);
    EXPECT_EQ(documento.Contenido().Marcadores.size(), 4U);
    EXPECT_NE(Principal(fichero).find(Inicio(1, "C")), std::string::npos);
    EXPECT_NE(Principal(fichero).find(Inicio(2, "D")), std::string::npos);
}

TEST(GuardaDocx, RehusaMarcadoresImposibles) {
    const TCarpeta carpeta;
    const auto fichero = carpeta / "imposibles.docx";
    EscribeDocumento(fichero, "<w:p><w:r><w:t>abc</w:t></w:r></w:p>");
    const auto antes = LeeBytes(fichero);
    TFicheroDocx documento(fichero);
    const std::vector<std::pair<TMarcador, std::string>> casos = {
        {{"", {0, 1}}, "un marcador no tiene nombre"},
        {{"A\n", {0, 1}}, "caracteres de control"},
        {{std::string(41, 'A'), {0, 1}}, "demasiado largo"},
        {{std::string(ENE), {-1, 1}}, "el marcador «Ñ» queda fuera del texto"},
        {{"A", {2, 1}}, "queda fuera del texto"},
        {{"A", {0, 5}}, "queda fuera del texto"},
    };
    for (const auto& [marcador, causa] : casos) {
        SCOPED_TRACE(causa);
        try {
            documento.Guarda({marcador}, fichero);
            ADD_FAILURE() << "saved";
        } catch (const ErrorDocumento& error) {
            EXPECT_EQ(std::string(error.what()).find(fichero.string() + ": "), 0U);
            EXPECT_NE(std::string(error.what()).find(causa), std::string::npos) << error.what();
        }
        EXPECT_EQ(LeeBytes(fichero), antes);
    }
}

}  // namespace
}  // namespace analizador::pruebas
