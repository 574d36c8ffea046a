#include <gtest/gtest.h>

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "adaptadores/docx/FicheroDocx.h"
#include "plataforma/Ansi.h"
#include "pruebas/docx/ConstruyeDocx.h"

namespace analizador::pruebas {
namespace {

struct TCaso {
    std::string_view Nombre;
    std::string_view Cuerpo;
    std::string_view Texto;
};

void Comprueba(std::span<const TCaso> casos) {
    const TCarpeta carpeta;
    const auto fichero = carpeta / "prueba.docx";
    for (const auto& caso : casos) {
        SCOPED_TRACE(caso.Nombre);
        EscribeDocumento(fichero, caso.Cuerpo);
        EXPECT_EQ(Visible(TextoDe(fichero)), Visible(caso.Texto));
    }
}

TEST(TextoDocx, LosParrafosYSusCaracteres) {
    constexpr TCaso CASOS[] = {
        {"an empty body still has its last paragraph", "", "\r"_ansi},
        {"an empty paragraph", "<w:p/>", "\r"_ansi},
        {"two paragraphs", "<w:p><w:r><w:t>COMPARECEN</w:t></w:r></w:p><w:p><w:r><w:t>Uno</w:t></w:r></w:p>",
         "COMPARECEN\rUno\r"_ansi},
        {"runs join", "<w:p><w:r><w:t>DON </w:t></w:r><w:r><w:t>JO</w:t><w:t>SÉ</w:t></w:r></w:p>",
         "DONJOSÉ\r"_ansi},
        {"blanks at the ends count when preserved",
         "<w:p><w:r><w:t xml:space=\"preserve\"> DON </w:t></w:r><w:r><w:t> JOSÉ </w:t></w:r></w:p>",
         " DON JOSÉ\r"_ansi},
        {"nothing but a blank",
         "<w:p><w:r><w:t>a</w:t><w:t xml:space=\"preserve\"> </w:t><w:t>b</w:t></w:r></w:p>", "a b\r"_ansi},
        {"characters of elements",
         "<w:p><w:r><w:t>a</w:t><w:tab/><w:t>b</w:t><w:br/><w:t>c</w:t><w:br w:type=\"page\"/><w:t>d</w:t>"
         "<w:br w:type=\"column\"/><w:t>e</w:t><w:cr/><w:t>f</w:t><w:noBreakHyphen/><w:t>g</w:t>"
         "<w:softHyphen/><w:t>h</w:t><w:ptab w:alignment=\"left\"/><w:br "
         "w:type=\"textWrapping\"/></w:r></w:p>",
         "a\tb\013c\014d\016e\013f\036g\037h\t\013\r"_ansi},
        {"tabs of the properties are none",
         "<w:p><w:pPr><w:tabs><w:tab w:val=\"left\" "
         "w:pos=\"1\"/></w:tabs></w:pPr><w:r><w:t>a</w:t></w:r></w:p>",
         "a\r"_ansi},
        {"no-break space and typography", "<w:p><w:r><w:t>28.000\u00A0€ – “Sol”…</w:t></w:r></w:p>",
         "28.000\u00A0€ – “Sol”…\r"_ansi},
        {"a foreign accent, a sign without equivalent, one byte a unit",
         "<w:p><w:r><w:t>ōЖ😀</w:t></w:r></w:p>", "o???\r"_ansi},
        {"a combining accent joins the letter of the run before and holds its place",
         "<w:p><w:r><w:t>PEN</w:t></w:r><w:r><w:t>\u0303A</w:t></w:r></w:p>", "PEÑ\037A\r"_ansi},
        {"references and CDATA", "<w:p><w:r><w:t>A &amp; B &#241;<![CDATA[ <C>]]></w:t></w:r></w:p>",
         "A & B ñ <C>\r"_ansi},
        {"line ends inside a text are blanks", "<w:p><w:r><w:t>a\nb</w:t></w:r></w:p>", "a b\r"_ansi},
        {"symbols",
         "<w:p><w:r><w:sym w:font=\"Symbol\" w:char=\"F0B7\"/><w:sym w:font=\"Wingdings\" w:char=\"F0FC\"/>"
         "<w:sym w:font=\"Symbol\" w:char=\"F0B0\"/><w:sym w:font=\"Arial\" w:char=\"00BA\"/>"
         "<w:sym w:font=\"Symbol\" w:char=\"zz\"/></w:r></w:p>",
         "•?°º?\r"_ansi},
        {"ruby gives its base",
         "<w:p><w:r><w:ruby><w:rubyPr/><w:rt><w:r><w:t>arriba</w:t></w:r></w:rt><w:rubyBase><w:r><w:t>base</"
         "w:t>"
         "</w:r></w:rubyBase></w:ruby></w:r></w:p>",
         "base\r"_ansi},
        {"mathematics",
         "<w:p><w:r><w:t>f=</w:t></w:r><m:oMath><m:f><m:fPr><m:ctrlPr><w:rPr/></m:ctrlPr></m:fPr><m:num><m:r>"
         "<m:t>a</m:t></m:r></m:num><m:den><m:r><m:t>b</m:t></m:r></m:den></m:f></m:oMath></w:p>",
         "f=ab\r"_ansi},
        {"text outside runs, and unknown elements, are none",
         "<w:p>x<w:t>y</w:t><w:r>z<w:t>a</w:t><w:otro><w:t>b</w:t></w:otro></w:r></w:p>", "a\r"_ansi},
    };
    Comprueba(CASOS);
}

TEST(TextoDocx, LoQueEnvuelve) {
    constexpr TCaso CASOS[] = {
        {"containers of runs",
         "<w:p><w:hyperlink r:id=\"rId9\"><w:r><w:t>a</w:t></w:r></w:hyperlink><w:smartTag w:element=\"x\">"
         "<w:smartTagPr/><w:r><w:t>b</w:t></w:r></w:smartTag><w:customXml><w:r><w:t>c</w:t></w:r></"
         "w:customXml>"
         "<w:bdo w:val=\"rtl\"><w:r><w:t>d</w:t></w:r></w:bdo><w:dir "
         "w:val=\"rtl\"><w:r><w:t>e</w:t></w:r></w:dir>"
         "<w:sdt><w:sdtPr><w:alias "
         "w:val=\"no\"/></w:sdtPr><w:sdtContent><w:r><w:t>f</w:t></w:r></w:sdtContent>"
         "</w:sdt></w:p>",
         "abcdef\r"_ansi},
        {"containers of blocks",
         "<w:sdt><w:sdtContent><w:p><w:r><w:t>a</w:t></w:r></w:p></w:sdtContent></"
         "w:sdt><w:customXml><w:p><w:r>"
         "<w:t>b</w:t></w:r></w:p></w:customXml>",
         "a\rb\r"_ansi},
        {"what is no part of the main story",
         "<w:p><w:r><w:t>a</w:t><w:footnoteReference w:id=\"2\"/><w:endnoteReference w:id=\"2\"/>"
         "<w:annotationRef/><w:commentReference "
         "w:id=\"1\"/><w:drawing><w:txbxContent><w:p><w:r><w:t>no</w:t></w:r>"
         "</w:p></w:txbxContent></w:drawing><w:pict><w:txbxContent><w:p><w:r><w:t>no</w:t></w:r></w:p>"
         "</w:txbxContent></w:pict><w:object/><w:lastRenderedPageBreak/></w:r><w:proofErr "
         "w:type=\"spellStart\"/>"
         "<w:commentRangeStart w:id=\"1\"/><w:subDoc r:id=\"rId1\"/></w:p><w:altChunk r:id=\"rId2\"/>",
         "a\r"_ansi},
        {"of alternate content the branch that is understood, once",
         "<w:p><w:r><mc:AlternateContent><mc:Choice Requires=\"w14\"><w:t>sí</w:t></mc:Choice><mc:Fallback>"
         "<w:t>no</w:t></mc:Fallback></mc:AlternateContent></w:r></w:p>",
         "sí\r"_ansi},
        {"or else the other",
         "<w:p><w:r><mc:AlternateContent><mc:Choice Requires=\"w14 w16se\"><w:t>no</w:t></mc:Choice>"
         "<mc:Fallback><w:t>sí</w:t></mc:Fallback></mc:AlternateContent></w:r></w:p>",
         "sí\r"_ansi},
        {"an undeclared prefix is not understood",
         "<w:p><mc:AlternateContent><mc:Choice Requires=\"zz\"><w:r><w:t>no</w:t></w:r></mc:Choice>"
         "<mc:Fallback><w:r><w:t>sí</w:t></w:r></mc:Fallback></mc:AlternateContent></w:p>",
         "sí\r"_ansi},
        {"a text box in either branch is out",
         "<w:p><w:r><mc:AlternateContent><mc:Choice "
         "Requires=\"wps\"><w:drawing><w:txbxContent><w:p><w:r><w:t>no"
         "</w:t></w:r></w:p></w:txbxContent></w:drawing></mc:Choice><mc:Fallback><w:pict/></mc:Fallback>"
         "</mc:AlternateContent><w:t>a</w:t></w:r></w:p>",
         "a\r"_ansi},
    };
    Comprueba(CASOS);
}

TEST(TextoDocx, LasTablas) {
    constexpr TCaso CASOS[] = {
        {"cells and rows have their marks, and a last paragraph is added",
         "<w:tbl><w:tblPr/><w:tr><w:tc><w:tcPr/><w:p><w:r><w:t>a</w:t></w:r></w:p></w:tc><w:tc><w:p/></"
         "w:tc></w:tr>"
         "</w:tbl>",
         "a\r\007\r\007\r\007\r"_ansi},
        {"two paragraphs in a cell",
         "<w:tbl><w:tr><w:tc><w:p><w:r><w:t>a</w:t></w:r></w:p><w:p><w:r><w:t>b</w:t></w:r></w:p></w:tc></"
         "w:tr>"
         "</w:tbl><w:p/>",
         "a\rb\r\007\r\007\r"_ansi},
        {"a table within a cell",
         "<w:tbl><w:tr><w:tc><w:tbl><w:tr><w:tc><w:p><w:r><w:t>a</w:t></w:r></w:p></w:tc></w:tr></w:tbl><w:p/"
         ">"
         "</w:tc></w:tr></w:tbl><w:p/>",
         "a\r\007\r\007\r\007\r\007\r"_ansi},
        {"a cell without paragraph, or that ends in a table",
         "<w:p><w:r><w:t>x</w:t></w:r></w:p><w:tbl><w:tr><w:tc/><w:tc><w:tbl><w:tr><w:tc><w:p/></w:tc></w:tr>"
         "</w:tbl></w:tc></w:tr></w:tbl><w:p/>",
         "x\r\r\007\r\007\r\007\r\007\r\007\r"_ansi},
        {"content controls around rows, cells and their paragraphs",
         "<w:tbl><w:sdt><w:sdtContent><w:tr><w:sdt><w:sdtContent><w:tc><w:sdt><w:sdtContent><w:p><w:r><w:t>a<"
         "/w:t>"
         "</w:r></w:p></w:sdtContent></w:sdt></w:tc></w:sdtContent></w:sdt></w:tr></w:sdtContent></w:sdt></"
         "w:tbl>"
         "<w:p/>",
         "a\r\007\r\007\r"_ansi},
        {"deleted rows and cells are out, their row with the last of them",
         "<w:tbl><w:tr><w:trPr><w:del "
         "w:id=\"1\"/></w:trPr><w:tc><w:p><w:r><w:t>a</w:t></w:r></w:p></w:tc></w:tr>"
         "<w:tr><w:tc><w:tcPr><w:cellDel "
         "w:id=\"2\"/></w:tcPr><w:p><w:r><w:t>b</w:t></w:r></w:p></w:tc><w:tc><w:p>"
         "<w:r><w:t>c</w:t></w:r></w:p></w:tc></w:tr><w:tr><w:tc><w:tcPr><w:cellDel "
         "w:id=\"3\"/></w:tcPr><w:p/>"
         "</w:tc></w:tr></w:tbl><w:p/>",
         "c\r\007\r\007\r"_ansi},
        {"a paragraph whose mark is hidden does not join a table",
         "<w:p><w:pPr><w:rPr><w:vanish/></w:rPr></w:pPr><w:r><w:t>a</w:t></w:r></w:p><w:tbl><w:tr><w:tc><w:p/"
         ">"
         "</w:tc></w:tr></w:tbl><w:p/>",
         "a\r\r\007\r\007\r"_ansi},
        {"nor can a cell's mark be hidden",
         "<w:tbl><w:tr><w:tc><w:p><w:pPr><w:rPr><w:vanish/></w:rPr></w:pPr><w:r><w:t>a</w:t></w:r></w:p></"
         "w:tc>"
         "</w:tr></w:tbl><w:p/>",
         "a\r\007\r\007\r"_ansi},
    };
    Comprueba(CASOS);
}

TEST(TextoDocx, LosCampos) {
    constexpr std::string_view INICIO = "<w:r><w:fldChar w:fldCharType=\"begin\"/></w:r>";
    constexpr std::string_view MEDIO = "<w:r><w:fldChar w:fldCharType=\"separate\"/></w:r>";
    constexpr std::string_view FIN = "<w:r><w:fldChar w:fldCharType=\"end\"/></w:r>";
    // Letters and the field's three marks, "{", "|" and "}", a paragraph each "/".
    const auto cuerpo = [&](std::string_view esbozo) {
        std::string xml = "<w:p>";
        for (const char c : esbozo) {
            if (c == '{') xml += INICIO;
            if (c == '|') xml += MEDIO;
            if (c == '}') xml += FIN;
            if (c == '/') xml += "</w:p><w:p>";
            if (c == 'I') xml += "<w:r><w:instrText>DATE</w:instrText></w:r>";
            if (c == 'B') xml += "<w:del w:id=\"1\">" + std::string(FIN) + "</w:del>";
            if (c >= 'a' && c <= 'z') xml += "<w:r><w:t>" + std::string(1, c) + "</w:t></w:r>";
        }
        return xml + "</w:p>";
    };
    struct TCasoCampo {
        std::string_view Esbozo;
        std::string_view Texto;
    };
    const std::vector<TCasoCampo> casos = {
        {"a{I|b}c", "abc\r"},
        {"a{I}c", "ac\r"},
        {"a{Ix}c", "ac\r"},
        {"a{I{I|x}|b}c", "abc\r"},
        {"a{I|b{I|c}d}e", "abcde\r"},
        {"a{I/x|b/c}d", "ab\rcd\r"},
        {"a{I|b", "ab\r"},
        {"a{b", "ab\r"},
        {"a}b|c", "abc\r"},
        {"{a{I|b}c", "abc\r"},
        {"a{I|bBc", "abc\r"},
        {"a{I|b|c}d", "abcd\r"},
    };
    const TCarpeta carpeta;
    const auto fichero = carpeta / "campos.docx";
    for (const auto& caso : casos) {
        SCOPED_TRACE(caso.Esbozo);
        EscribeDocumento(fichero, cuerpo(caso.Esbozo));
        EXPECT_EQ(Visible(TextoDe(fichero)), Visible(caso.Texto));
    }
    constexpr TCaso SIMPLE[] = {
        {"a simple field gives its result",
         "<w:p><w:fldSimple w:instr=\"DATE\"><w:fldData>AAAA</w:fldData><w:r><w:t>hoy</w:t></w:r>"
         "</w:fldSimple></w:p>",
         "hoy\r"_ansi}};
    Comprueba(SIMPLE);
}

TEST(TextoDocx, LasRevisiones) {
    constexpr TCaso CASOS[] = {
        {"inserted and moved here in, deleted and moved away out",
         "<w:p><w:ins w:id=\"1\"><w:r><w:t>a</w:t></w:r><w:del "
         "w:id=\"2\"><w:r><w:delText>x</w:delText></w:r></w:del>"
         "</w:ins><w:del w:id=\"3\"><w:r><w:t>y</w:t><w:delText>y</w:delText><w:tab/></w:r></w:del><w:moveTo "
         "w:id=\"4\"><w:r><w:t>b</w:t></w:r></w:moveTo><w:moveFrom "
         "w:id=\"5\"><w:r><w:t>z</w:t></w:r></w:moveFrom>"
         "</w:p>",
         "ab\r"_ansi},
        {"a deleted paragraph mark joins",
         "<w:p><w:pPr><w:rPr><w:del "
         "w:id=\"1\"/></w:rPr></w:pPr><w:r><w:t>a</w:t></w:r></w:p><w:p><w:r><w:t>b</w:t>"
         "</w:r></w:p>",
         "ab\r"_ansi},
        {"so does one moved away, and not one inserted",
         "<w:p><w:pPr><w:rPr><w:moveFrom "
         "w:id=\"1\"/></w:rPr></w:pPr><w:r><w:t>a</w:t></w:r></w:p><w:p><w:pPr><w:rPr>"
         "<w:ins w:id=\"2\"/></w:rPr></w:pPr><w:r><w:t>b</w:t></w:r></w:p>",
         "ab\r"_ansi},
        {"the last one cannot be deleted",
         "<w:p><w:pPr><w:rPr><w:del w:id=\"1\"/></w:rPr></w:pPr><w:r><w:t>a</w:t></w:r></w:p>", "a\r"_ansi},
        {"a combining accent joins across a deleted mark",
         "<w:p><w:pPr><w:rPr><w:del w:id=\"1\"/></w:rPr></w:pPr><w:r><w:t>n</w:t></w:r></w:p><w:p><w:r>"
         "<w:t>\u0303</w:t></w:r></w:p>",
         "ñ\037\r"_ansi},
        {"blocks inserted and deleted",
         "<w:ins w:id=\"1\"><w:p><w:r><w:t>a</w:t></w:r></w:p></w:ins><w:del "
         "w:id=\"2\"><w:p><w:r><w:t>b</w:t></w:r>"
         "</w:p></w:del>",
         "a\r"_ansi},
    };
    Comprueba(CASOS);
}

TEST(TextoDocx, UnParrafoDeUnMillonDeLetrasEnMilesDeTiradas) {
    constexpr int TIRADAS = 20'000;
    std::string cuerpo = "<w:p>";
    for (int i = 0; i < TIRADAS; ++i)
        cuerpo +=
            "<w:r><w:rPr><w:b/></w:rPr><w:t xml:space=\"preserve\">" + std::string(49, 'a') + " </w:t></w:r>";
    const TCarpeta carpeta;
    EscribeDocumento(carpeta / "largo.docx", cuerpo + "</w:p>");
    EXPECT_EQ(TextoDe(carpeta / "largo.docx").size(), TIRADAS * 50U + 1);
}

}  // namespace
}  // namespace analizador::pruebas
