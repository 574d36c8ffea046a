#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "adaptadores/docx/FicheroDocx.h"
#include "plataforma/Ansi.h"
#include "pruebas/docx/ConstruyeDocx.h"

namespace analizador::pruebas {
namespace {

using namespace std::string_view_literals;

constexpr std::string_view UN_PARRAFO = "<w:p><w:r><w:t>Núñez</w:t></w:r></w:p>";
constexpr std::string_view SU_TEXTO = "Núñez\r"_ansi;
constexpr auto OFICINA = "http://schemas.openxmlformats.org/officeDocument/2006/relationships/";
constexpr auto OFICINA_ESTRICTA = "http://purl.oclc.org/ooxml/officeDocument/relationships/";

std::string Relaciones(const std::string& clase, const std::string& destino,
                       const std::string& base = OFICINA) {
    return "<Relationships xmlns=\"http://schemas.openxmlformats.org/package/2006/relationships\">"
           "<Relationship Id=\"r1\" Type=\"" +
           base + clase + "\" Target=\"" + destino + "\"/></Relationships>";
}

std::string Utf16(std::string_view utf8, bool altoPrimero, bool conMarca) {
    std::string bytes;
    const auto anade = [&](char16_t unidad) {
        const auto alto = static_cast<char>(static_cast<unsigned char>(unidad >> 8));
        const auto bajo = static_cast<char>(static_cast<unsigned char>(unidad & 0xFF));
        bytes += altoPrimero ? alto : bajo;
        bytes += altoPrimero ? bajo : alto;
    };
    if (conMarca) anade(0xFEFF);
    for (const char16_t unidad : Utf16DeUtf8(utf8)) anade(unidad);
    return bytes;
}

class PaqueteDocx : public testing::Test {
  protected:
    TFicheroDocx Lee(const std::vector<TParte>& partes) {
        EscribeFichero(Fichero, Comprime(partes));
        return TFicheroDocx(Fichero);
    }

    std::string Rechazo(std::string_view bytes) {
        EscribeFichero(Fichero, bytes);
        return RechazoAlLeer(Fichero);
    }

    // One line that names the file and has the cause.
    void Rehusa(std::string_view bytes, std::string_view causa) {
        const auto mensaje = Rechazo(bytes);
        EXPECT_TRUE(mensaje.starts_with(Fichero.string() + ": ")) << mensaje;
        EXPECT_NE(mensaje.find(causa), std::string::npos) << mensaje << "\nshould say: " << causa;
        EXPECT_EQ(mensaje.find('\n'), std::string::npos);
    }

    TCarpeta Carpeta;
    std::filesystem::path Fichero = Carpeta / "escritura.docx";
};

TEST_F(PaqueteDocx, LaParteCuyoNombreDanLasRelaciones) {
    const std::vector<std::pair<std::string, std::string>> casos = {
        {"otra/principal.xml", "otra/principal.xml"},        {"/otra/principal.xml", "otra/principal.xml"},
        {"./x/../otra/principal.xml", "otra/principal.xml"}, {"/otra/mi%20parte.xml", "otra/mi parte.xml"},
        {"Otra/PRINCIPAL.xml", "otra/principal.xml"},        {"principal.xml", "principal.xml"},
    };
    for (const auto& [destino, nombre] : casos) {
        SCOPED_TRACE(destino);
        const auto documento =
            Lee({{"_rels/.rels", Relaciones("officeDocument", destino)}, {nombre, DocumentoXml(UN_PARRAFO)}});
        EXPECT_EQ(documento.Contenido().Texto, SU_TEXTO);
    }
}

TEST_F(PaqueteDocx, SinRelacionLaDelTipoDeDocumento) {
    auto partes = PartesDocumento(DocumentoXml(UN_PARRAFO));
    partes.erase(partes.begin() + 1);
    EXPECT_EQ(Lee(partes).Contenido().Texto, SU_TEXTO);
}

TEST_F(PaqueteDocx, LosAjustesPorSuRelacionEnLaFormaEstricta) {
    const std::string estricto = "http://purl.oclc.org/ooxml/wordprocessingml/main";
    const auto documento = Lee({
        {"_rels/.rels", Relaciones("officeDocument", "a/b/doc.xml", OFICINA_ESTRICTA)},
        {"a/b/doc.xml",
         "<document xmlns=\"" + estricto + "\"><body><p><r><t>A</t></r></p></body></document>"},
        {"a/b/_rels/doc.xml.rels", Relaciones("settings", "../ajustes.xml", OFICINA_ESTRICTA)},
        {"a/ajustes.xml", "<q:settings xmlns:q=\"" + estricto +
                              "\"><q:docVars><q:docVar q:name=\"N\" q:val=\"V\"/></q:docVars></q:settings>"},
    });
    EXPECT_EQ(documento.Contenido().Texto, "A\r");
    EXPECT_EQ(documento.Contenido().Variables, (std::vector<TVariable>{{"N", "V"}}));
}

TEST_F(PaqueteDocx, LosPrefijosDanIgual) {
    const std::string w(ESPACIO_W);
    const std::vector<std::string> principales = {
        "<zz:document xmlns:zz=\"" + w +
            "\"><zz:body><zz:p><zz:r><zz:t>Núñez</zz:t></zz:r></zz:p></zz:body></zz:document>",
        "<document xmlns=\"" + w + "\"><body><p><r><t>Núñez</t></r></p></body></document>",
        // another namespace under the usual prefix, the right one under another declared inside
        "<a:document xmlns:a=\"" + w +
            "\" xmlns:w=\"urn:otro\"><a:body><w:p><w:r><w:t>no</w:t></w:r></w:p>"
            "<p xmlns=\"" +
            w + "\"><r><t>Núñez</t></r></p></a:body></a:document>",
    };
    for (const auto& principal : principales) {
        SCOPED_TRACE(principal);
        EXPECT_EQ(Lee(PartesDocumento(principal)).Contenido().Texto, SU_TEXTO);
    }
}

TEST_F(PaqueteDocx, LasCodificacionesDeXml) {
    const auto xml = DocumentoXml(UN_PARRAFO);
    const auto desdeRaiz = xml.substr(xml.find("<w:document"));
    const std::vector<std::string> principales = {
        "\xEF\xBB\xBF" + xml,           Utf16(xml, false, true),       Utf16(xml, true, true),
        Utf16(desdeRaiz, false, false), Utf16(desdeRaiz, true, false), desdeRaiz,
    };
    for (std::size_t i = 0; i < principales.size(); ++i) {
        SCOPED_TRACE(i);
        EXPECT_EQ(Lee(PartesDocumento(principales[i])).Contenido().Texto, SU_TEXTO);
    }
}

TEST_F(PaqueteDocx, RehusaLoQueNoEsUnDocumento) {
    const auto ole = [](std::string_view flujo) {
        std::string bytes = "\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1" + std::string(600, '\0');
        return bytes + Utf16(flujo, false, false) + std::string(600, '\0');
    };
    Rehusa("", "el fichero está vacío");
    Rehusa("En Madrid, mi residencia", "no es un documento de Word");
    Rehusa(ole("EncryptedPackage"), "está cifrado con contraseña");
    Rehusa(ole("WordDocument"), "documento de Word antiguo (.doc)");
    Rehusa(ole("Workbook"), "sino un fichero de otro programa");
    Rehusa(Comprime({{"foto.jpg", "x"}}), "otra clase de archivo comprimido");
    Rehusa(Comprime({{"mimetype", "application/vnd.oasis.opendocument.text"}, {"content.xml", "<a/>"}}),
           "OpenDocument");
    const std::string tipos =
        "<Types xmlns=\"http://schemas.openxmlformats.org/package/2006/content-types\"><Override "
        "PartName=\"/xl/workbook.xml\" ContentType=\"application/"
        "vnd.openxmlformats-officedocument.spreadsheetml.sheet.main+xml\"/></Types>";
    Rehusa(Comprime({{"[Content_Types].xml", tipos},
                     {"_rels/.rels", Relaciones("officeDocument", "xl/workbook.xml")},
                     {"xl/workbook.xml", "<workbook/>"}}),
           "es una hoja de cálculo");
    Rehusa(Comprime(PartesDocumento("<w:otro xmlns:w=\"" + std::string(ESPACIO_W) + "\"/>")),
           "no tiene cuerpo de documento");
    Rehusa(Comprime({{"_rels/.rels", Relaciones("officeDocument", "word/no.xml")}}),
           "falta la parte principal «word/no.xml»");
}

TEST_F(PaqueteDocx, NombraLaParteQueFaltaEnUnaLineaYNoMuyLarga) {
    const std::string largo(200, 'x');
    for (const auto& [destino, citada] : std::vector<std::pair<std::string, std::string>>{
             {"word/d&#10;1.xml", "«word/d?1.xml»"},
             {"word/d%0D%0A1.xml", "«word/d??1.xml»"},
             {"word/&#x7F;&#x85;&#x9B;&#x2028;&#x2029;&#x202E;1.xml", "«word/??????1.xml»"},
             {"word/\xC3\x28.xml", "«word/?(.xml»"},
             {"word/Ñandú€.xml", "«word/Ñandú€.xml»"},
             {"word/" + largo + ".xml", "«word/" + largo.substr(0, 155) + "…»"}})
        Rehusa(Comprime({{"_rels/.rels", Relaciones("officeDocument", destino)}}),
               "falta la parte principal " + citada);
}

TEST_F(PaqueteDocx, RehusaLoQueNoSePuedeLeer) {
    EXPECT_NE(RechazoAlLeer(Carpeta.GetRuta() / u8"no está.docx").find("no está.docx: el fichero no existe"),
              std::string::npos);
    EXPECT_NE(RechazoAlLeer(Carpeta.GetRuta()).find("es una carpeta"), std::string::npos);
#ifndef _WIN32
    EXPECT_NE(RechazoAlLeer("/dev/null").find("no es un fichero que se pueda leer"), std::string::npos);
#endif
    const auto dosLineas = RechazoAlLeer(Carpeta / "una\notra.docx");
    EXPECT_EQ(dosLineas.find('\n'), std::string::npos);
    EXPECT_NE(dosLineas.find("una?otra.docx"), std::string::npos);
}

TEST_F(PaqueteDocx, RehusaElXmlMaloYNombraLaParte) {
    const auto rehusa = [&](const std::string& principal, std::string_view causa) {
        SCOPED_TRACE(principal.substr(0, 80));
        Rehusa(Comprime(PartesDocumento(principal)), causa);
    };
    constexpr auto PARTE = "la parte «word/document.xml» ";
    const auto xml = DocumentoXml(UN_PARRAFO);
    rehusa(xml.substr(0, xml.size() - 20), std::string(PARTE) + "no es XML bien formado");
    rehusa("", std::string(PARTE) + "no es XML bien formado");
    rehusa("<!DOCTYPE x [<!ENTITY a \"aaaa\"><!ENTITY b \"&a;&a;\">]>" + xml.substr(xml.find("<w:document")),
           "declara un tipo de documento");
    rehusa("<?xml version='1.0' encoding='ISO-8859-1'?><a/>", "codificación de texto que no se admite");
    rehusa(std::string("\xFF\xFE<\0a", 5), "no es un texto UTF-16 correcto");
    std::string hondo;
    for (int i = 0; i < 100'000; ++i) hondo += "<w:sdt>";
    for (int i = 0; i < 100'000; ++i) hondo += "</w:sdt>";
    rehusa(DocumentoXml(hondo), "tiene elementos anidados en exceso");
    std::string espacios = "<a";
    for (int i = 0; i < 1000; ++i) espacios += " xmlns:p" + std::to_string(i) + "=\"u\"";
    rehusa(espacios + "/>", "declara espacios de nombres en exceso");
    Rehusa(Comprime(PartesDocumento(DocumentoXml(""), "<roto>")),
           "la parte «word/styles.xml» no es XML bien formado");
    Rehusa(Comprime(PartesDocumento(DocumentoXml(""), "", "<roto>")),
           "la parte «word/settings.xml» no es XML");
}

TEST_F(PaqueteDocx, RehusaLoQueSeExpandeSinMedida) {
    const auto bomba = DocumentoXml("<w:p><w:r><w:t>" + std::string(40'000'000, 'a') + "</w:t></w:r></w:p>");
    const auto bytes = Comprime(PartesDocumento(bomba));
    ASSERT_LT(bytes.size(), 200'000U);
    Rehusa(bytes, "la parte «word/document.xml» se expande de forma desmesurada");
}

std::string Veces(std::string_view trozo, std::size_t veces) {
    std::string todo;
    for (std::size_t i = 0; i < veces; ++i) todo += trozo;
    return todo;
}

TEST_F(PaqueteDocx, RehusaElTextoQueNoEsDeUnaEscritura) {
    const auto conTexto = [](std::size_t letras) {
        return Comprime(PartesDocumento(
            DocumentoXml("<w:p><w:r><w:t>" + std::string(letras, 'a') + "</w:t></w:r></w:p>")));
    };
    EXPECT_EQ(Rechazo(conTexto(5'999'999)), "") << "with its paragraph's end, the longest one";
    Rehusa(conTexto(6'000'000), "su texto es demasiado largo");

    const auto conParrafos = [](std::size_t parrafos) {
        return Comprime(PartesDocumento(DocumentoXml(Veces("<w:p/>", parrafos))));
    };
    EXPECT_EQ(Rechazo(conParrafos(300'000)), "");
    Rehusa(conParrafos(300'001), "tiene demasiados párrafos");
}

TEST_F(PaqueteDocx, RehusaLoQueNoCabeEnLaMemoriaQueSePermite) {
    constexpr auto CAUSA = "la parte «word/document.xml» tiene demasiados elementos";
    EXPECT_EQ(Rechazo(Comprime(PartesDocumento(DocumentoXml(Veces("<a/>", 1'000'000))))), "");
    Rehusa(Comprime(PartesDocumento(DocumentoXml(Veces("<a/>", 2'500'000)))), CAUSA);
    Rehusa(Comprime(PartesDocumento(DocumentoXml("<a" + Veces(" b=''", 9'000'000) + "/>"), "", "")),
           "desmesurada");
}

// The central directory's field at `desplazamiento` of the entry of that name.
std::size_t EnDirectorio(const std::string& bytes, const std::string& nombre, std::size_t desplazamiento) {
    auto posicion = bytes.find("PK\x01\x02");
    while (bytes.compare(posicion + 46, nombre.size(), nombre) != 0)
        posicion = bytes.find("PK\x01\x02", posicion + 4);
    return posicion + desplazamiento;
}

TEST_F(PaqueteDocx, NoSeFiaDeLosTamanosDeclarados) {
    auto bytes = Comprime(PartesDocumento(DocumentoXml(UN_PARRAFO)));
    for (std::size_t i = 0; i < 4; ++i)  // says that it inflates to 2 GiB
        bytes[EnDirectorio(bytes, "word/document.xml", 24 + i)] = i == 3 ? '\x7F' : '\0';
    Rehusa(bytes, "word/document.xml");

    const auto grande = DocumentoXml("<w:p><w:r><w:t>" + std::string(40'000'000, 'a') + "</w:t></w:r></w:p>");
    bytes = Comprime(PartesDocumento(grande));
    for (std::size_t i = 0; i < 4; ++i)  // says that it inflates to 1 KiB
        bytes[EnDirectorio(bytes, "word/document.xml", 24 + i)] = i == 1 ? '\x04' : '\0';
    Rehusa(bytes, "word/document.xml");
}

TEST_F(PaqueteDocx, RehusaLasPartesCifradas) {
    auto bytes = Comprime(PartesDocumento(DocumentoXml(UN_PARRAFO)));
    const auto marcas = EnDirectorio(bytes, "word/document.xml", 8);
    bytes[marcas] = static_cast<char>(bytes[marcas] | 1);
    const auto local = bytes.find("word/document.xml") - 30 + 6;
    bytes[local] = static_cast<char>(bytes[local] | 1);
    Rehusa(bytes, "la parte «word/document.xml» está cifrada");
}

// The same archive, its document.xml said to be compressed with that method.
std::string ConMetodo(std::string bytes, char metodo) {
    bytes[EnDirectorio(bytes, "word/document.xml", 10)] = metodo;
    bytes[bytes.find("word/document.xml") - 30 + 8] = metodo;
    return bytes;
}

// The same archive, its document.xml said to be ciphered with AES: a method and an extra field of its own.
std::string ConAes(const std::string& sinCifrar) {
    constexpr auto CAMPO = "\x01\x99\x07\x00\x02\x00\x41\x45\x03\x08\x00"sv;
    constexpr std::string_view NOMBRE = "word/document.xml";
    auto bytes = ConMetodo(sinCifrar, 99);
    const auto marcas = EnDirectorio(bytes, std::string(NOMBRE), 8);
    bytes[marcas] = static_cast<char>(bytes[marcas] | 1);
    bytes[marcas + 22] = static_cast<char>(bytes[marcas + 22] + static_cast<char>(CAMPO.size()));
    bytes.insert(marcas - 8 + 46 + NOMBRE.size(), CAMPO);
    const auto largoDelDirectorio = bytes.rfind("PK\x05\x06") + 12;
    bytes[largoDelDirectorio] =
        static_cast<char>(bytes[largoDelDirectorio] + static_cast<char>(CAMPO.size()));
    return bytes;
}

// Whatever libzip was built with.
TEST_F(PaqueteDocx, RehusaLasCompresionesYCifradosDeOtros) {
    const auto bytes = Comprime(PartesDocumento(DocumentoXml(UN_PARRAFO)));
    constexpr char BZIP2 = 12, LZMA = 14, ZSTD = 93, XZ = 95;
    for (const char metodo : {BZIP2, LZMA, ZSTD, XZ})
        Rehusa(ConMetodo(bytes, metodo), "la parte «word/document.xml» usa una compresión que no se admite");
    Rehusa(ConAes(bytes), "la parte «word/document.xml» está cifrada");
}

// Reads what is left of a document: its content or a refusal, and nothing else.
void LeeDanado(const std::filesystem::path& fichero, std::string_view bytes) {
    EscribeFichero(fichero, bytes);
    try {
        EXPECT_TRUE(TFicheroDocx(fichero).Contenido().Texto.ends_with('\r'));
    } catch (const ErrorDocumento& error) {
        EXPECT_TRUE(std::string_view(error.what()).starts_with(fichero.string() + ": "));
    }
}

std::string Completo() {
    return Comprime(PartesDocumento(
        DocumentoXml(
            "<w:p><w:bookmarkStart w:id=\"0\" "
            "w:name=\"A\"/><w:r><w:rPr><w:vanish/></w:rPr><w:t>Uno</w:t></w:r>"
            "<w:r><w:fldChar w:fldCharType=\"begin\"/></w:r><w:bookmarkEnd w:id=\"0\"/></w:p><w:tbl><w:tr>"
            "<w:tc><w:p/></w:tc></w:tr></w:tbl>"),
        "<w:style w:type=\"paragraph\" w:styleId=\"A\"><w:basedOn w:val=\"B\"/></w:style>",
        "<w:docVars><w:docVar w:name=\"N\" w:val=\"V\"/></w:docVars>"));
}

TEST_F(PaqueteDocx, TruncadoPorCualquierSitioSeRehusa) {
    const auto bytes = Completo();
    for (std::size_t longitud = 4; longitud < bytes.size(); longitud += 7) {
        const auto mensaje = Rechazo(std::string_view(bytes).substr(0, longitud));
        ASSERT_NE(mensaje.find("el documento está truncado o dañado"), std::string::npos)
            << longitud << mensaje;
    }
}

TEST_F(PaqueteDocx, ConBytesCambiadosNuncaCae) {
    const auto bytes = Completo();
    std::uint32_t azar = 12345;
    const auto siguiente = [&] { return (azar = azar * 1664525U + 1013904223U) >> 8; };
    for (int vez = 0; vez < 600; ++vez) {
        auto danado = bytes;
        for (unsigned i = 0; i <= siguiente() % 4; ++i)
            danado[siguiente() % danado.size()] = static_cast<char>(siguiente() & 0xFF);
        LeeDanado(Fichero, danado);
    }
}

TEST_F(PaqueteDocx, ConXmlCambiadoNuncaCae) {
    const auto xml = DocumentoXml(
        "<w:p><w:pPr><w:rPr><w:del/></w:rPr></w:pPr><w:bookmarkStart w:id=\"0\" "
        "w:name=\"A\"/><w:r><w:t>Uno</w:t>"
        "<w:fldChar "
        "w:fldCharType=\"end\"/></w:r></w:p><w:tbl><w:tr><w:tc><w:p/></w:tc></w:tr></w:tbl><w:p/>");
    constexpr std::string_view SIGNOS = "<>/\"' :w&;\0pr"sv;
    std::uint32_t azar = 4321;
    const auto siguiente = [&] { return (azar = azar * 1664525U + 1013904223U) >> 8; };
    for (int vez = 0; vez < 600; ++vez) {
        auto danado = xml;
        for (unsigned i = 0; i <= siguiente() % 3; ++i)
            danado[siguiente() % danado.size()] = SIGNOS[siguiente() % SIGNOS.size()];
        LeeDanado(Fichero, Comprime(PartesDocumento(danado)));
    }
}

}  // namespace
}  // namespace analizador::pruebas
