// Archives that are sound as archives and whose parts are not a document's.

#include <algorithm>
#include <array>

#include "pruebas/ataques/Mutaciones.h"

namespace analizador::pruebas {

namespace {

using namespace std::string_literals;

TParte& UnaParte(TPartes& partes, TAzar& azar) {
    return partes[azar.Hasta(partes.size())];
}

std::string FaltanPartes(TPartes partes, TAzar& azar) {
    for (auto i = azar.Magnitud(3); i > 0 && partes.size() > 1; --i)
        partes.erase(partes.begin() + static_cast<std::ptrdiff_t>(azar.Hasta(partes.size())));
    return Comprime(partes);
}

std::string ParteVacia(TPartes partes, TAzar& azar) {
    UnaParte(partes, azar).second.clear();
    return Comprime(partes);
}

std::string ParteConOtroContenido(TPartes partes, TAzar& azar) {
    const auto otro = UnaParte(partes, azar).second;
    UnaParte(partes, azar).second = otro;
    return Comprime(partes);
}

std::string ParteConBasura(TPartes partes, TAzar& azar) {
    UnaParte(partes, azar).second = azar.Bytes(azar.Magnitud(100'000));
    return Comprime(partes);
}

// The archive's makers refuse two parts of one name, so one of them is renamed in the bytes.
std::string ParteRepetida(TPartes partes, TAzar& azar) {
    const auto [nombre, contenido] = UnaParte(partes, azar);
    auto otro = nombre;
    otro.back() = '#';
    partes.emplace_back(otro, UnaParte(partes, azar).second);
    auto bytes = Comprime(partes);
    for (auto en = bytes.find(otro); en != std::string::npos; en = bytes.find(otro, en + 1))
        bytes.replace(en, nombre.size(), nombre);
    return bytes;
}

std::string NombreHostil(TAzar& azar) {
    const std::array<std::string, 14> nombres = {
        "../../../../../../tmp/fuera.xml",
        "/etc/passwd",
        "C:\\Windows\\win.ini",
        "..\\..\\fuera.xml",
        "word/../../fuera.xml",
        "word/document.xml/",
        "WORD/DOCUMENT.XML",
        "word//document.xml",
        "word/@@.xml",
        "con\nsalto.xml",
        "\x1B[31mrojo.xml",
        "~$escritura.docx",
        ".~docx-000000000000.tmp",
        Repite("n", azar.Magnitud(60'000)),
    };
    return azar.Uno(nombres);
}

std::string NombresHostiles(TPartes partes, TAzar& azar) {
    if (azar.Hasta(2) == 0)
        UnaParte(partes, azar).first = NombreHostil(azar) + std::to_string(azar.Hasta(10));
    partes.emplace_back(NombreHostil(azar) + "x", "<fuera/>");
    auto bytes = Comprime(partes);  // whose maker takes no name that is not UTF-8
    for (auto en = bytes.find("/@@"); en != std::string::npos; en = bytes.find("/@@", en))
        bytes.replace(en, 3, "/\xC3\x28");
    return bytes;
}

std::string NombreEnOtraCaja(TPartes partes, TAzar& azar) {
    auto& nombre = UnaParte(partes, azar).first;
    for (char& c : nombre)
        if (azar.Hasta(2) == 0 && c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
    return Comprime(partes);
}

std::string OtroOrden(TPartes partes, TAzar& azar) {
    for (auto i = partes.size(); i > 1; --i) std::swap(partes[i - 1], partes[azar.Hasta(i)]);
    return Comprime(partes);
}

std::string MuchasPartes(TPartes partes, TAzar& azar) {
    for (auto i = azar.Magnitud(5'000); i > 0; --i)
        partes.emplace_back("word/media/imagen" + std::to_string(i) + ".png", "x");
    return Comprime(partes);
}

// Where the parts are said to be: nowhere, outside, in themselves, in another program's document.
std::string RelacionesHostiles(TPartes partes, TAzar& azar) {
    const std::array<std::string, 10> destinos = {"file:///etc/passwd",
                                                  "http://127.0.0.1:1/a.xml",
                                                  "../../../etc/passwd",
                                                  "word/document.xml",
                                                  "_rels/.rels",
                                                  "",
                                                  "%00",
                                                  "%2e%2e%2fword%2fdocument.xml",
                                                  "xl/workbook.xml",
                                                  Repite("a/../", azar.Magnitud(50'000))};
    for (auto& [nombre, contenido] : partes) {
        if (!nombre.ends_with(".rels") || azar.Hasta(3) == 0) continue;
        for (auto en = contenido.find("Target=\""); en != std::string::npos;
             en = contenido.find("Target=\"", en + 1))
            if (azar.Hasta(2) == 0)
                contenido.replace(en + 8, contenido.find('"', en + 8) - en - 8, azar.Uno(destinos));
        if (azar.Hasta(3) == 0) {
            const auto relacion = contenido.find("<Relationship ");
            const auto fin = contenido.find("/>", relacion);
            if (relacion != std::string::npos && fin != std::string::npos)
                contenido.insert(
                    fin + 2, Repite(contenido.substr(relacion, fin + 2 - relacion), azar.Magnitud(20'000)));
        }
    }
    return Comprime(partes);
}

std::string TiposHostiles(TPartes partes, TAzar& azar) {
    auto& tipos = Parte(partes, "[Content_Types].xml");
    const std::array<std::string, 4> otros = {"spreadsheetml.", "presentationml.", "text/plain", ""};
    for (auto en = tipos.find("wordprocessingml."); en != std::string::npos;
         en = tipos.find("wordprocessingml.", en + 1))
        if (azar.Hasta(2) == 0) tipos.replace(en, "wordprocessingml."s.size(), azar.Uno(otros));
    if (azar.Hasta(2) == 0)
        std::erase_if(partes, [](const TParte& parte) { return parte.first == "_rels/.rels"; });
    return Comprime(partes);
}

// Much of nothing, which takes next to no room in the file.
std::string Bomba(TPartes partes, TAzar& azar) {
    const std::array<std::string, 6> rellenos = {" ", "a", "<!-- -->", "<w:p/>", "\0"s, "&amp;"};
    const auto& relleno = azar.Uno(rellenos);
    auto& contenido = azar.Hasta(2) == 0 ? Parte(partes, PRINCIPAL) : UnaParte(partes, azar).second;
    contenido.insert(std::min(contenido.find("<w:body>"), contenido.size()),
                     Repite(relleno, azar.Magnitud(64U << 20) / relleno.size()));
    return Comprime(partes);
}

// An archive in the place of a part: the document itself, or a part of parts.
std::string ArchivoDentro(TPartes partes, TAzar& azar) {
    for (auto i = azar.Magnitud(4); i > 0; --i) {
        const auto dentro = Comprime(partes);
        UnaParte(partes, azar).second = dentro;
    }
    return Comprime(partes);
}

}  // namespace

const std::vector<TClaseMutacion>& MutacionesDePartes() {
    static const std::vector<TClaseMutacion> CLASES = {
        {"faltan partes", FaltanPartes},
        {"parte vacía", ParteVacia},
        {"parte con otro contenido", ParteConOtroContenido},
        {"parte con basura", ParteConBasura},
        {"parte repetida", ParteRepetida},
        {"nombres hostiles", NombresHostiles},
        {"nombre en otra caja", NombreEnOtraCaja},
        {"otro orden", OtroOrden},
        {"muchas partes", MuchasPartes},
        {"relaciones hostiles", RelacionesHostiles},
        {"tipos hostiles", TiposHostiles},
        {"bomba", Bomba},
        {"archivo dentro", ArchivoDentro},
    };
    return CLASES;
}

}  // namespace analizador::pruebas
