#include "pruebas/ataques/Semillas.h"

#include <algorithm>
#include <filesystem>

namespace analizador::pruebas {

namespace {

constexpr std::string_view RELACIONES =
    "http://schemas.openxmlformats.org/officeDocument/2006/relationships/";

// What a word processor puts between two paragraphs of a deed, and inside them.
std::string Adornos() {
    return R"(<w:p w:rsidR="00AB12CD" w:rsidRDefault="00AB12CD"><w:pPr><w:pStyle w:val="Normal"/><w:keepNext/>
<w:spacing w:after="0" w:line="360" w:lineRule="auto"/><w:rPr><w:rFonts w:ascii="Arial" w:hAnsi="Arial"/></w:rPr></w:pPr>
<w:bookmarkStart w:id="1" w:name="_GoBack"/><w:proofErr w:type="spellStart"/><w:r><w:rPr><w:b/></w:rPr>
<w:t xml:space="preserve">Folios de papel </w:t></w:r><w:proofErr w:type="spellEnd"/><w:bookmarkEnd w:id="1"/>
<w:ins w:id="2" w:author="Oficial" w:date="2023-01-01T00:00:00Z"><w:r><w:t>timbrado </w:t></w:r></w:ins>
<w:del w:id="3" w:author="Oficial" w:date="2023-01-01T00:00:00Z"><w:r><w:delText>corriente</w:delText></w:r></w:del>
<w:r><w:fldChar w:fldCharType="begin"/></w:r><w:r><w:instrText xml:space="preserve"> PAGE </w:instrText></w:r>
<w:r><w:fldChar w:fldCharType="separate"/></w:r><w:r><w:t>7</w:t></w:r><w:r><w:fldChar w:fldCharType="end"/></w:r>
<w:r><w:footnoteReference w:id="1"/></w:r><w:r><w:noBreakHyphen/><w:tab/><w:br w:type="page"/></w:r></w:p>
<w:tbl><w:tblPr><w:tblStyle w:val="Tablaconcuadrcula"/></w:tblPr><w:tblGrid><w:gridCol w:w="4000"/></w:tblGrid>
<w:tr><w:tc><w:tcPr><w:tcW w:w="4000" w:type="dxa"/></w:tcPr><w:p><w:r><w:t>Precio</w:t></w:r></w:p></w:tc></w:tr></w:tbl>
<w:sdt><w:sdtPr><w:tag w:val="protocolo"/></w:sdtPr><w:sdtContent><w:p><w:hyperlink w:anchor="_GoBack"><w:r>
<w:t>1.236</w:t></w:r></w:hyperlink></w:p></w:sdtContent></w:sdt>
<w:p><w:r><mc:AlternateContent><mc:Choice Requires="wps"><w:drawing/></mc:Choice><mc:Fallback><w:pict/></mc:Fallback>
</mc:AlternateContent></w:r><m:oMath><m:r><m:t>x+1</m:t></m:r></m:oMath>
<w:r><w:rPr><w:vanish/></w:rPr><w:t>oculto</w:t></w:r></w:p>)";
}

// The paragraphs of an example, the text of its runs cut where a spelling checker cuts it.
std::string CuerpoTrabajado(const std::string& xml) {
    const auto inicio = xml.find("<w:body>") + std::string_view("<w:body>").size();
    auto cuerpo = xml.substr(inicio, xml.find("</w:body>") - inicio);
    constexpr std::string_view CORTE =
        "</w:t></w:r><w:proofErr w:type=\"spellStart\"/><w:r w:rsidRPr=\"00112233\"><w:t "
        "xml:space=\"preserve\">";
    constexpr std::size_t CADA = 400;
    std::size_t anterior = 0;
    for (auto en = cuerpo.find(", "); en != std::string::npos; en = cuerpo.find(", ", en + 1)) {
        const bool enTexto = cuerpo.rfind("<w:t ", en) != std::string::npos &&
                             cuerpo.find('<', en) == cuerpo.find("</w:t>", en);
        if (!enTexto || en < anterior + CADA) continue;
        cuerpo.insert(en, CORTE);
        en += CORTE.size();
        anterior = en;
    }
    const auto adornos = Adornos();
    for (auto en = cuerpo.find("</w:p>"); en != std::string::npos; en = cuerpo.find("</w:p>", en + 6000))
        cuerpo.insert(en + 6, adornos), en += adornos.size();
    return cuerpo;
}

std::string ParteSuelta(std::string_view nombre, std::string_view contenido) {
    return "<w:" + std::string(nombre) + " xmlns:w=\"" + std::string(ESPACIO_W) + "\">" +
           std::string(contenido) + "</w:" + std::string(nombre) + ">";
}

TPartes DocumentoTrabajado(const TPartes& ejemplo) {
    TPartes copia = ejemplo;
    auto partes = PartesDocumento(
        DocumentoXml(CuerpoTrabajado(Parte(copia, PRINCIPAL))),
        "<w:docDefaults><w:rPrDefault><w:rPr><w:lang w:val=\"es-ES\"/></w:rPr></w:rPrDefault></w:docDefaults>"
        "<w:style w:type=\"paragraph\" w:default=\"1\" w:styleId=\"Normal\"><w:name "
        "w:val=\"Normal\"/></w:style>"
        "<w:style w:type=\"table\" w:styleId=\"Tablaconcuadrcula\"><w:basedOn "
        "w:val=\"Tablanormal\"/></w:style>"
        "<w:style w:type=\"table\" w:default=\"1\" w:styleId=\"Tablanormal\"/>",
        "<w:trackRevisions/><w:docVars><w:docVar w:name=\"PROTOCOLO\" w:val=\"1236\"/></w:docVars>");
    for (const char* parte : {"footnotes", "comments", "numbering", "fontTable", "webSettings", "header1"}) {
        auto& relaciones = Parte(partes, "word/_rels/document.xml.rels");
        relaciones.insert(relaciones.find("</Relationships>"),
                          "<Relationship Id=\"r" + std::string(parte) + "\" Type=\"" +
                              std::string(RELACIONES) + parte + "\" Target=\"" + parte + ".xml\"/>");
        partes.emplace_back("word/" + std::string(parte) + ".xml", ParteSuelta(parte, "<w:p/>"));
    }
    partes.emplace_back("docProps/core.xml", "<cp:coreProperties xmlns:cp=\"urn:cp\"/>");
    partes.emplace_back("docProps/app.xml", "<Properties><Application>x</Application></Properties>");
    partes.emplace_back("customXml/item1.xml", "<datos/>");
    partes.emplace_back("word/media/image1.png", TAzar(1).Bytes(20'000));
    return partes;
}

std::vector<std::pair<std::string, TPartes>> LeeSemillas() {
    std::vector<std::filesystem::path> ejemplos;
    for (const auto& entrada : std::filesystem::directory_iterator(CARPETA_EJEMPLOS))
        if (entrada.path().extension() == ".docx") ejemplos.push_back(entrada.path());
    std::ranges::sort(ejemplos);
    std::vector<std::pair<std::string, TPartes>> semillas;
    for (const auto& ejemplo : ejemplos) {
        semillas.emplace_back(ejemplo.stem().string(), Descomprime(ejemplo));
        semillas.emplace_back(ejemplo.stem().string() + ", trabajada",
                              DocumentoTrabajado(semillas.back().second));
    }
    return semillas;
}

}  // namespace

const std::vector<std::pair<std::string, TPartes>>& Semillas() {
    static const auto SEMILLAS = LeeSemillas();
    return SEMILLAS;
}

}  // namespace analizador::pruebas
