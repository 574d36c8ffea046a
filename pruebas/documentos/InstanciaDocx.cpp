// The contract over real files: each content is written as a document file, runs cut at odd places, read by
// the adapter of such files, and held in memory. A second factory saves its bookmarks into the file first and
// reads that.

#include "adaptadores/docx/FicheroDocx.h"
#include "adaptadores/memoria/DocumentoMemoria.h"
#include "plataforma/Ansi.h"
#include "pruebas/documentos/ContratoDocumento.h"
#include "pruebas/docx/ConstruyeDocx.h"

namespace analizador {
namespace {

constexpr char MARCA_DE_CELDA = 7;
constexpr std::size_t LETRAS_POR_TRAMO = 4;

std::string Escapa(std::string_view utf8) {
    std::string xml;
    for (const char c : utf8) {
        if (c == '<' || c == '>' || c == '&' || c == '"' || c == '\r' || c == '\n' || c == '\t')
            xml += "&#" + std::to_string(static_cast<int>(c)) + ";";
        else
            xml += c;
    }
    return xml;
}

std::string Letra(char c) {
    switch (c) {
        case '\t':
            return "<w:tab/>";
        case '\v':
            return "<w:br/>";
        case '\f':
            return "<w:br w:type=\"page\"/>";
        case 14:
            return "<w:br w:type=\"column\"/>";
        case 30:
            return "<w:noBreakHyphen/>";
        case 31:
            return "<w:softHyphen/>";
        default:
            return "<w:t xml:space=\"preserve\">" + Escapa(Utf8DeAnsi(std::string_view(&c, 1))) + "</w:t>";
    }
}

// Writes a content's text as the body of a document. Tables have two columns.
class TCuerpo {
  public:
    explicit TCuerpo(const TContenidoDocumento& contenido) : FContenido(contenido) {
        const std::string_view texto = contenido.Texto;
        for (std::size_t inicio = 0; inicio < texto.size();) {
            const std::size_t fin = texto.find('\r', inicio);
            const bool celda = fin + 1 < texto.size() && texto[fin + 1] == MARCA_DE_CELDA;
            if (celda)
                CierraCelda(inicio, fin);
            else
                CierraParrafo(inicio, fin);
            inicio = fin + (celda ? 2 : 1);
        }
        CierraTabla();
    }

    [[nodiscard]] const std::string& Xml() const { return FXml; }

  private:
    static constexpr int COLUMNAS = 2;

    void CierraParrafo(std::size_t inicio, std::size_t fin) {
        if (FColumna == 0) CierraTabla();
        (FColumna == 0 ? FXml : FCelda) += Parrafo(inicio, fin);
    }

    void CierraCelda(std::size_t inicio, std::size_t fin) {
        if (FColumna == COLUMNAS) {  // the row's own mark
            FXml += "</w:tr>";
            FColumna = 0;
            return;
        }
        if (!FEnTabla) FXml += "<w:tbl>";
        if (FColumna == 0) FXml += "<w:tr>";
        FEnTabla = true;
        FXml += "<w:tc>" + FCelda + Parrafo(inicio, fin) + "</w:tc>";
        FCelda.clear();
        ++FColumna;
    }

    void CierraTabla() {
        if (FEnTabla) FXml += "</w:tbl>";
        FEnTabla = false;
    }

    [[nodiscard]] std::string Parrafo(std::size_t inicio, std::size_t fin) {
        std::string xml = "<w:p>";
        for (std::size_t i = inicio; i < fin; ++i) {
            const std::string marcas = Marcas(i);
            const bool corta = i == inicio || !marcas.empty() || (i - inicio) % LETRAS_POR_TRAMO == 0;
            if (corta && i != inicio) xml += "</w:r>";
            xml += marcas;
            if (corta) xml += "<w:r>";
            xml += Letra(FContenido.Texto[i]);
        }
        if (fin != inicio) xml += "</w:r>";
        return xml + Marcas(fin) + "</w:p>";
    }

    // The bookmarks that begin or end before the character at `posicion`. Those that end at the document's
    // end, which no character follows, end with its last paragraph.
    [[nodiscard]] std::string Marcas(std::size_t posicion) {
        std::string xml;
        const auto es = [&](int limite) {
            return static_cast<std::size_t>(limite) == posicion ||
                   (posicion + 1 == FContenido.Texto.size() && static_cast<std::size_t>(limite) > posicion);
        };
        for (std::size_t i = 0; i < FContenido.Marcadores.size(); ++i) {
            const auto& [nombre, intervalo] = FContenido.Marcadores[i];
            const std::string id = " w:id=\"" + std::to_string(i) + "\"";
            if (es(intervalo.Inicio)) xml += "<w:bookmarkStart" + id + " w:name=\"" + Escapa(nombre) + "\"/>";
            if (es(intervalo.Fin)) xml += "<w:bookmarkEnd" + id + "/>";
        }
        return xml;
    }

    const TContenidoDocumento& FContenido;
    std::string FXml;
    std::string FCelda;  // what the open cell holds so far
    int FColumna = 0;
    bool FEnTabla = false;
};

std::string Variables(const std::vector<TVariable>& variables) {
    std::string xml = "<w:docVars>";
    for (const auto& [nombre, valor] : variables)
        xml += "<w:docVar w:name=\"" + Escapa(nombre) + "\" w:val=\"" + Escapa(Utf8DeAnsi(valor)) + "\"/>";
    return xml + "</w:docVars>";
}

void Escribe(const std::filesystem::path& fichero, const TContenidoDocumento& contenido) {
    const TCuerpo cuerpo(contenido);
    const auto partes =
        pruebas::PartesDocumento(pruebas::DocumentoXml(cuerpo.Xml()), "", Variables(contenido.Variables));
    pruebas::EscribeFichero(fichero, pruebas::Comprime(partes));
}

std::unique_ptr<TWordDocumentoCustom> DesdeFichero(TContenidoDocumento contenido) {
    const pruebas::TCarpeta carpeta;
    Escribe(carpeta / "a.docx", contenido);
    const TFicheroDocx fichero(carpeta / "a.docx");
    EXPECT_EQ(fichero.Contenido().Texto, contenido.Texto);
    return std::make_unique<TDocumentoMemoria>(fichero.Contenido());
}

std::unique_ptr<TWordDocumentoCustom> DesdeFicheroGuardado(TContenidoDocumento contenido) {
    const pruebas::TCarpeta carpeta;
    const auto marcadores = std::exchange(contenido.Marcadores, {});
    Escribe(carpeta / "a.docx", contenido);
    TFicheroDocx(carpeta / "a.docx").Guarda(marcadores, carpeta / "b.docx");
    const TFicheroDocx fichero(carpeta / "b.docx");
    EXPECT_EQ(fichero.Contenido().Texto, contenido.Texto);
    EXPECT_EQ(fichero.Contenido().Marcadores.size(), marcadores.size());
    return std::make_unique<TDocumentoMemoria>(fichero.Contenido());
}

INSTANTIATE_TEST_SUITE_P(Docx, ContratoDocumento,
                         testing::Values(TFabricaDocumento{"DesdeFichero", DesdeFichero},
                                         TFabricaDocumento{"DesdeFicheroGuardado", DesdeFicheroGuardado}),
                         NombreFabrica);

}  // namespace
}  // namespace analizador
