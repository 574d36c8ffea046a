#include "medidas/EscriturasCrecidas.h"

#include <algorithm>
#include <memory>
#include <utility>

#include "adaptadores/memoria/DocumentoMemoria.h"
#include "plataforma/FicheroIni.h"

namespace analizador {

namespace {

std::string Repite(std::string_view texto, int veces) {
    std::string repetido;
    repetido.reserve(texto.size() * static_cast<std::size_t>(veces));
    for (int i = 0; i < veces; ++i) repetido += texto;
    return repetido;
}

std::string EnUnaLinea(std::string_view texto) {
    std::string linea(texto);
    std::replace(linea.begin(), linea.end(), '\r', ' ');
    return linea;
}

// The paragraphs of a text, each with its end mark.
std::vector<std::string_view> Parrafos(std::string_view texto) {
    std::vector<std::string_view> parrafos;
    while (!texto.empty()) {
        const std::size_t fin = std::min(texto.find('\r'), texto.size() - 1) + 1;
        parrafos.push_back(texto.substr(0, fin));
        texto.remove_prefix(fin);
    }
    return parrafos;
}

// A surname of its own for each number: letters only.
std::string Apellido(int numero) {
    std::string letras = " ";
    for (; numero > 0; numero /= 20) letras += static_cast<char>('B' + numero % 20);
    return letras;
}

void Sustituye(std::string& texto, std::string_view nombre, std::string_view nuevo) {
    for (auto p = texto.find(nombre); p != std::string::npos; p = texto.find(nombre, p + nuevo.size()))
        texto.replace(p, nombre.size(), nuevo);
}

std::string ConOtrosNombres(std::string_view parrafo, const std::vector<std::string>& nombres, int copia) {
    std::string otro(parrafo);
    if (copia > 0)
        for (const std::string& nombre : nombres) Sustituye(otro, nombre, nombre + Apellido(copia));
    return otro;
}

std::string TextoDe(const std::vector<std::string_view>& parrafos, const TOrigen& origen) {
    const std::string_view parrafo = parrafos.at(static_cast<std::size_t>(origen.Parrafo) - 1);
    return std::string(parrafo.substr(origen.Donde.Primera, origen.Donde.Longitud));
}

}  // namespace

TEscrituraEjemplo Ejemplo(std::string texto) {
    TAplicacionMemoria aplicacion(std::make_unique<TDocumentoMemoria>(TContenidoDocumento{texto, {}, {}}));
    TClassAnalizadorAbierto sesion(nullptr, &aplicacion);
    (void)sesion.Analiza(true);

    const auto parrafos = Parrafos(texto);
    std::vector<std::string> nombres;
    for (const TOrigenes& origenes : sesion.OtorgantesEncontrados.Origenes)
        if (const auto origen = origenes.find("Apellidos"); origen != origenes.end())
            nombres.push_back(TextoDe(parrafos, origen->second));
    std::sort(nombres.begin(), nombres.end());
    nombres.erase(std::unique(nombres.begin(), nombres.end()), nombres.end());

    std::vector<std::size_t> principios = {0};
    for (const int inicio : {sesion.InicioComparecientes, sesion.InicioIntervinientes, sesion.InicioExponen})
        if (const auto principio = static_cast<std::size_t>(inicio); principio > principios.back())
            principios.push_back(principio);
    return {std::move(texto), std::move(nombres), std::move(principios)};
}

std::string EscrituraRepetida(const TEscrituraEjemplo& ejemplo, int veces) {
    return Repite(ejemplo.Texto, veces);
}

std::string ParrafosRepetidos(const TEscrituraEjemplo& ejemplo, int veces) {
    std::string texto;
    for (const std::string_view parrafo : Parrafos(ejemplo.Texto)) texto += Repite(parrafo, veces);
    return texto;
}

std::string OtorgantesDistintos(const TEscrituraEjemplo& ejemplo, int veces) {
    std::string texto;
    for (const std::string_view parrafo : Parrafos(ejemplo.Texto))
        for (int i = 0; i < veces; ++i) texto += ConOtrosNombres(parrafo, ejemplo.Nombres, i);
    return texto;
}

std::string UnSoloParrafo(const TEscrituraEjemplo& ejemplo, int veces) {
    return Repite(EnUnaLinea(ejemplo.Texto), veces) + '\r';
}

std::string UnParrafoPorSeccion(const TEscrituraEjemplo& ejemplo, int veces) {
    std::string texto;
    for (std::size_t i = 0; i < ejemplo.Principios.size(); ++i) {
        const std::size_t desde = ejemplo.Principios[i];
        const std::size_t hasta =
            i + 1 < ejemplo.Principios.size() ? ejemplo.Principios[i + 1] : ejemplo.Texto.size();
        texto +=
            Repite(EnUnaLinea(std::string_view(ejemplo.Texto).substr(desde, hasta - desde)), veces) + '\r';
    }
    return texto;
}

std::string EscrituraDeOtorgantes(int otorgantes) {
    std::string comparecen;
    std::string intervienen;
    std::string venden = "Por ello ";
    std::string compran;
    for (int i = 1; i <= otorgantes; ++i) {
        const std::string nombre = "DON JOSE GARCIA" + Apellido(i) + " OCHOA";
        const std::string nif = std::to_string(10000000 + i) + "A";
        comparecen += nombre +
                      ", mayor de edad, soltero, vecino de Madrid, con domicilio en calle Mayor, "
                      "numero 1, con D.N.I. " +
                      nif + ".\r";
        intervienen += " " + nombre + " interviene en nombre y representacion de la sociedad \"CASAS" +
                       Apellido(i) + ", S.L.\", con C.I.F. A58818501.\r";
        (i % 2 == 0 ? compran : venden) += nombre + ", ";
    }
    return "NUMERO UNO.\rCOMPRAVENTA\rEn Madrid, a uno de enero de dos mil veinte.\rCOMPARECEN\r" +
           comparecen + "INTERVIENEN\r" + intervienen + "EXPONEN\r" + venden + "VENDE Y TRANSMITE a " +
           compran + "\r";
}

std::string SoloPalabras(const std::filesystem::path& vocabulario, int veces) {
    const auto fichero = AbreFicheroIni(vocabulario);
    std::string palabras;
    for (const auto& seccion : fichero->Secciones())
        for (const std::string& palabra : fichero->Palabras(seccion.Nombre)) palabras += palabra + ' ';
    return Repite(palabras, veces) + '\r';
}

}  // namespace analizador
