// Parts whose XML is hostile, wrong, or right and out of all proportion.

#include <algorithm>
#include <array>

#include "pruebas/ataques/Mutaciones.h"

namespace analizador::pruebas {

namespace {

using namespace std::string_literals;
using namespace std::string_view_literals;

// One of the parts that a reader looks into; mostly the main one.
std::string& ParteXml(TPartes& partes, TAzar& azar) {
    constexpr std::array<std::string_view, 4> OTRAS = {"word/styles.xml", "word/settings.xml", "_rels/.rels",
                                                       "word/_rels/document.xml.rels"};
    return Parte(partes, azar.Hasta(3) != 0 ? PRINCIPAL : azar.Uno(OTRAS));
}

std::size_t TrasCuerpo(const std::string& xml) {
    const auto cuerpo = xml.find("<w:body>");
    return cuerpo == std::string::npos ? xml.size() : cuerpo + "<w:body>"sv.size();
}

std::string EnElCuerpo(TPartes& partes, const std::string& contenido) {
    auto& xml = Parte(partes, PRINCIPAL);
    xml.insert(TrasCuerpo(xml), contenido);
    return Comprime(partes);
}

std::string Parrafo(std::string_view texto) {
    return "<w:p><w:r><w:t xml:space=\"preserve\">" + std::string(texto) + "</w:t></w:r></w:p>";
}

// The place of some tag, between its "<" and its ">".
struct TEtiqueta {
    std::size_t Inicio;
    std::size_t Fin;
};

TEtiqueta UnaEtiqueta(const std::string& xml, TAzar& azar) {
    const auto inicio = std::min(xml.find('<', azar.Hasta(xml.size())), xml.size());
    return {inicio, std::min(xml.find('>', inicio), xml.size())};
}

std::string Entidades(TPartes partes, TAzar& azar) {
    auto& xml = ParteXml(partes, azar);
    std::string risas = "<!ENTITY e0 \"jajaja\">";
    for (int i = 1; i < 20; ++i)
        risas +=
            "<!ENTITY e" + std::to_string(i) + " \"" + Repite("&e" + std::to_string(i - 1) + ";", 10) + "\">";
    const std::array<std::string, 7> tipos = {
        "<!DOCTYPE a [" + risas + "]>",
        "<!DOCTYPE a [<!ENTITY e19 SYSTEM \"file:///etc/passwd\">]>",
        "<!DOCTYPE a [<!ENTITY e19 SYSTEM \"http://127.0.0.1:1/x\">]>",
        "<!DOCTYPE a [<!ENTITY % p SYSTEM \"file:///etc/passwd\"> %p;]>",
        "<!DOCTYPE a SYSTEM \"file:///dev/zero\">",
        "<!DOCTYPE a [<!ENTITY e19 \"" + Repite("x", azar.Magnitud(1'000'000)) + "\">]>",
        "",  // without any declaration
    };
    const auto declaracion = xml.find("?>");
    xml.insert(declaracion == std::string::npos ? 0 : declaracion + 2, azar.Uno(tipos));
    const auto texto = xml.find("</w:t>");
    xml.insert(std::min(texto, xml.size()), Repite("&e19;", azar.Magnitud(100'000)));
    return Comprime(partes);
}

std::string Hondo(TPartes partes, TAzar& azar) {
    constexpr std::array<std::string_view, 9> NOMBRES = {
        "w:sdt", "w:tbl", "w:tc", "w:ins", "w:hyperlink", "m:oMath", "w:p", "mc:AlternateContent", "w:r"};
    const auto nombre = azar.Uno(NOMBRES);
    const auto veces = azar.Magnitud(200'000);
    auto hondo = Repite("<" + std::string(nombre) + ">", veces);
    if (azar.Hasta(4) != 0) hondo += Repite("</" + std::string(nombre) + ">", veces);
    return EnElCuerpo(partes, hondo);
}

std::string EtiquetasCambiadas(TPartes partes, TAzar& azar) {
    auto& xml = ParteXml(partes, azar);
    for (auto i = azar.Magnitud(8); i > 0; --i) {
        const auto [inicio, fin] = UnaEtiqueta(xml, azar);
        const auto etiqueta = xml.substr(inicio, fin + 1 - inicio);
        const auto otra = UnaEtiqueta(xml, azar);
        if (azar.Hasta(2) == 0) xml.erase(inicio, etiqueta.size());
        xml.insert(std::min(otra.Inicio, xml.size()), etiqueta);
    }
    return Comprime(partes);
}

std::string SignosCambiados(TPartes partes, TAzar& azar) {
    constexpr auto SIGNOS = "<>/\"' :w&;=\0-!?[]pr1\x80\xFF"sv;
    auto& xml = ParteXml(partes, azar);
    for (auto i = azar.Magnitud(32); i > 0 && !xml.empty(); --i)
        xml[azar.Hasta(xml.size())] = SIGNOS[azar.Hasta(SIGNOS.size())];
    return Comprime(partes);
}

std::string AtributosHostiles(TPartes partes, TAzar& azar) {
    auto& xml = ParteXml(partes, azar);
    const std::array<std::string, 9> valores = {"",
                                                "-1",
                                                "99999999999999999999",
                                                "0x7FFFFFFF",
                                                "\xC3\xB1",
                                                "&#0;",
                                                "&lt;w:p/&gt;",
                                                "true",
                                                Repite("v", azar.Magnitud(2'000'000))};
    for (auto i = azar.Magnitud(16); i > 0; --i) {
        const auto en = xml.find("=\"", azar.Hasta(xml.size()));
        if (en == std::string::npos) continue;
        const auto fin = xml.find('"', en + 2);
        if (fin != std::string::npos) xml.replace(en + 2, fin - en - 2, azar.Uno(valores));
    }
    return Comprime(partes);
}

std::string MuchosAtributos(TPartes partes, TAzar& azar) {
    std::string parrafo = "<w:p";
    const auto cuantos = azar.Magnitud(1'000'000);
    const bool espacios = azar.Hasta(2) == 0;
    for (std::size_t i = 0; i < cuantos; ++i)
        parrafo += (espacios ? " xmlns:n" : " w:n") + std::to_string(i) + "=\"\"";
    return EnElCuerpo(partes, parrafo + "/>");
}

// Encodings that are declared and not used, used and not declared, and wrong.
std::string Codificaciones(TPartes partes, TAzar& azar) {
    auto& xml = ParteXml(partes, azar);
    const std::array<std::string, 12> malos = {
        "\xC0\xAF"s, "\xED\xA0\x80"s, "\xF4\x90\x80\x80"s, "\xC3"s, "\x80"s,  "\xFE\xFF"s,
        "\xE2\x82"s, "&#xD800;",      "&#x110000;",        "&#0;",  "&#x1F;", "\0"s};
    const std::array<std::string, 7> marcas = {"\xEF\xBB\xBF"s,
                                               "\xFF\xFE"s,
                                               "\xFE\xFF"s,
                                               "\xFF\xFE\0\0"s,
                                               "\0\0\xFE\xFF"s,
                                               "+/v8-",
                                               "<?xml version='1.0' encoding='windows-1252'?>"};
    if (azar.Hasta(3) == 0) xml.insert(0, azar.Uno(marcas));
    for (auto i = azar.Magnitud(16); i > 0; --i) xml.insert(azar.Hasta(xml.size()), azar.Uno(malos));
    return Comprime(partes);
}

std::string EnUtf16(TPartes partes, TAzar& azar) {
    auto& xml = ParteXml(partes, azar);
    const bool altoPrimero = azar.Hasta(2) == 0;
    std::string unidades = azar.Hasta(2) == 0 ? "" : altoPrimero ? "\xFE\xFF" : "\xFF\xFE";
    for (const char c : xml) unidades += altoPrimero ? std::string{'\0', c} : std::string{c, '\0'};
    for (auto i = azar.Hasta(4); i > 0; --i)  // half a surrogate pair now and then
        unidades[azar.Hasta(unidades.size())] = '\xD8';
    if (azar.Hasta(4) == 0) unidades.pop_back();
    xml = unidades;
    return Comprime(partes);
}

std::string Marcadores(TPartes partes, TAzar& azar) {
    const std::array<std::string, 6> nombres = {
        "CABECERA", "FINCA_1", "", "_GoBack", Repite("m", azar.Magnitud(100'000)), "&#1;"};
    std::string marcas;
    for (auto i = azar.Magnitud(50'000); i > 0; --i) {
        const auto id = std::to_string(azar.Hasta(1000));
        if (azar.Hasta(5) != 0)
            marcas += "<w:bookmarkStart w:id=\"" + id + "\" w:name=\"" + nombres[azar.Hasta(4)] + id + "\"/>";
        if (azar.Hasta(5) != 0) marcas += "<w:bookmarkEnd w:id=\"" + id + "\"/>";
    }
    return EnElCuerpo(partes, marcas + "<w:bookmarkStart w:id=\"7\" w:name=\"" + azar.Uno(nombres) + "\"/>");
}

// Rows and cells without a table, fields that never end, revisions inside each other.
std::string Desordenado(TPartes partes, TAzar& azar) {
    constexpr std::array<std::string_view, 22> TROZOS = {
        "<w:tr>",
        "</w:tr>",
        "<w:tc>",
        "</w:tc>",
        "<w:tbl>",
        "</w:tbl>",
        "<w:p>",
        "</w:p>",
        "<w:r><w:fldChar w:fldCharType=\"begin\"/></w:r>",
        "<w:r><w:fldChar w:fldCharType=\"separate\"/></w:r>",
        "<w:r><w:fldChar w:fldCharType=\"end\"/></w:r>",
        "<w:del>",
        "</w:del>",
        "<w:ins>",
        "</w:ins>",
        "<w:r><w:t> COMPARECEN </w:t></w:r>",
        "<w:r><w:sym w:font=\"Symbol\" w:char=\"F0B7\"/></w:r>",
        "<w:rPr><w:vanish/></w:rPr>",
        "<w:pPr><w:rPr><w:del/></w:rPr></w:pPr>",
        "<w:t>suelto</w:t>",
        "<![CDATA[]]&gt;]]>",
        "<!-- - -->"};
    std::string cuerpo;
    std::vector<std::string> abiertas;
    for (auto i = azar.Magnitud(5'000); i > 0; --i) {
        const auto trozo = azar.Uno(TROZOS);
        const bool cierra = trozo.starts_with("</");
        if (cierra && abiertas.empty()) continue;
        cuerpo += cierra ? abiertas.back() : std::string(trozo);
        if (cierra) abiertas.pop_back();
        if (!cierra && trozo.find('<', 1) == std::string_view::npos && trozo.size() <= 7)
            abiertas.push_back("</" + std::string(trozo.substr(1)));
    }
    for (; !abiertas.empty(); abiertas.pop_back()) cuerpo += abiertas.back();
    return EnElCuerpo(partes, cuerpo);
}

// Words by which an analysis finds what it looks for, over and over.
std::string PalabrasRepetidas(TPartes partes, TAzar& azar) {
    constexpr std::array<std::string_view, 20> PALABRAS = {"DOÑA ",
                                                           "DON ",
                                                           "mayor de edad, ",
                                                           "casado con ",
                                                           "COMPARECEN ",
                                                           "vecino de ",
                                                           "N.I.F. ",
                                                           "12345678-Z ",
                                                           "mil ",
                                                           "millones ",
                                                           "de euros ",
                                                           "(100.000,00 €) ",
                                                           "provincia de ",
                                                           "calle ",
                                                           "número ",
                                                           "FINCA ",
                                                           "en nombre y representación de ",
                                                           "y ",
                                                           ", ",
                                                           "INTERVIENEN: "};
    std::string texto;
    const auto tope = azar.Magnitud(1'000'000);
    const auto palabra = azar.Uno(PALABRAS);
    const bool unaSola = azar.Hasta(2) == 0;
    while (texto.size() < tope) texto += unaSola ? palabra : azar.Uno(PALABRAS);
    if (azar.Hasta(2) == 0) return EnElCuerpo(partes, Parrafo(texto));
    std::string parrafos;
    for (std::size_t en = 0; en < texto.size();) {  // a letter is never cut
        const auto fin = std::min(texto.find(' ', en + azar.Magnitud(500)), texto.size() - 1) + 1;
        parrafos += Parrafo(std::string_view(texto).substr(en, fin - en));
        en = fin;
    }
    return EnElCuerpo(partes, parrafos);
}

std::string TextoEnorme(TPartes partes, TAzar& azar) {
    const std::array<std::string, 6> letras = {"a", "á", " ", "-", azar.Bytes(1) + "x", "&amp;"};
    return EnElCuerpo(partes, Parrafo(Repite(azar.Uno(letras), azar.Magnitud(8'000'000))));
}

// The body of a deed, many times: a lot of sound text.
std::string CuerpoRepetido(TPartes partes, TAzar& azar) {
    const auto& xml = Parte(partes, PRINCIPAL);
    const auto inicio = TrasCuerpo(xml);
    const auto fin = std::min({xml.find("<w:sectPr"), xml.find("</w:body>"), xml.size()});
    const auto cuerpo = fin > inicio ? xml.substr(inicio, fin - inicio) : std::string();
    return EnElCuerpo(partes, Repite(cuerpo, azar.Magnitud(1000)));
}

std::string MuchosElementos(TPartes partes, TAzar& azar) {
    constexpr std::array<std::string_view, 6> ELEMENTOS = {"<w:p/>",
                                                           "<w:r><w:tab/></w:r>",
                                                           "<x/>",
                                                           "<w:tbl><w:tr><w:tc><w:p/></w:tc></w:tr></w:tbl>",
                                                           "<w:p><w:r><w:br/></w:r></w:p>",
                                                           "<w:p w:rsidR=\"00000000\"/>"};
    return EnElCuerpo(partes, Repite(azar.Uno(ELEMENTOS), azar.Magnitud(3'000'000)));
}

// Styles based on each other in a chain or a ring, and document variables without number.
std::string EstilosYVariables(TPartes partes, TAzar& azar) {
    const auto cuantos = azar.Magnitud(100'000);
    const bool anillo = azar.Hasta(2) == 0;
    std::string estilos;
    std::string variables = "<w:docVars>";
    for (std::size_t i = 0; i < cuantos; ++i) {
        const auto base = i + 1 < cuantos ? i + 1 : anillo ? 0 : i;
        estilos += "<w:style w:type=\"paragraph\" w:styleId=\"s" + std::to_string(i) +
                   "\"><w:basedOn w:val=\"s" + std::to_string(base) + "\"/></w:style>";
        variables += "<w:docVar w:name=\"v\" w:val=\"" + std::to_string(i) + "\"/>";
    }
    Parte(partes, "word/styles.xml") = EstilosXml(estilos);
    Parte(partes, "word/settings.xml") = AjustesXml(variables + "</w:docVars>");
    return Comprime(partes);
}

}  // namespace

const std::vector<TClaseMutacion>& MutacionesDeXml() {
    static const std::vector<TClaseMutacion> CLASES = {
        {"entidades", Entidades},
        {"hondo", Hondo},
        {"etiquetas cambiadas", EtiquetasCambiadas},
        {"signos cambiados", SignosCambiados},
        {"atributos hostiles", AtributosHostiles},
        {"muchos atributos", MuchosAtributos},
        {"codificaciones", Codificaciones},
        {"en UTF-16", EnUtf16},
        {"marcadores", Marcadores},
        {"desordenado", Desordenado},
        {"palabras repetidas", PalabrasRepetidas},
        {"texto enorme", TextoEnorme},
        {"cuerpo repetido", CuerpoRepetido},
        {"muchos elementos", MuchosElementos},
        {"estilos y variables", EstilosYVariables},
    };
    return CLASES;
}

}  // namespace analizador::pruebas
