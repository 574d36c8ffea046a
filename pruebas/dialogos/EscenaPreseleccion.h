#pragma once

#include <cstddef>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>
#include <utility>
#include <vector>

#include "dialogos/FicherosParaVer.h"
#include "dialogos/ListaConceptosPreseleccionados.h"
#include "plataforma/Mensaje.h"
#include "plataforma/Visor.h"
#include "pruebas/comun/ConfigDePrueba.h"
#include "pruebas/comun/TablasDePrueba.h"

namespace analizador {

using TTextos = std::vector<std::string>;
using TPosiciones = std::vector<std::size_t>;

// Message boxes answered beforehand, which keep what they said.
struct TMensajesContestados : TMensajes {
    std::vector<std::pair<std::string, std::string>> Mostrados;
    std::vector<std::pair<std::string, std::string>> Preguntas;
    std::function<void()> AlMostrar;
    std::vector<bool> Respuestas;  // one for each question, in order; then no

    void Muestra(std::string_view titulo, std::string_view texto) override {
        Mostrados.emplace_back(titulo, texto);
        if (AlMostrar) AlMostrar();
    }
    [[nodiscard]] bool Pregunta(std::string_view titulo, std::string_view texto) override {
        const std::size_t cual = Preguntas.size();
        Preguntas.emplace_back(titulo, texto);
        return cual < Respuestas.size() && Respuestas[cual];
    }
};

inline std::string BytesDe(const std::filesystem::path& fichero) {
    std::ifstream entrada(fichero, std::ios::binary);
    return {std::istreambuf_iterator<char>(entrada), {}};
}

// How many files of a prefix stand where temporary files go.
inline std::size_t Cuantos(std::string_view prefijo) {
    const std::filesystem::path uno = EscribeFicheroTemporal("MIRA", "txt", "");
    std::size_t cuenta = 0;
    for (const auto& entrada : std::filesystem::directory_iterator(uno.parent_path()))
        if (entrada.path().filename().string().starts_with(prefijo)) ++cuenta;
    std::filesystem::remove(uno);
    return cuenta;
}

// An XML as the session hands it over, and as it is shown.
inline const std::string XML = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\r\n<a>\xF1</a>";
inline const std::string XML_UTF8 = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\r\n<a>ñ</a>";

// Viewers that keep what they were shown; the report files are removed with them.
struct TVisoresDePrueba : TVisores {
    struct TXmlVisto {
        TComponente* Propietario;
        std::filesystem::path Fichero;
        std::string Bytes, Titulo;
    };
    bool HayPrograma = true;
    std::vector<std::filesystem::path> Textos;
    TTextos BytesTextos;
    std::vector<TXmlVisto> Xmls;

    TVisoresDePrueba() = default;
    ~TVisoresDePrueba() override {
        std::error_code nada;
        for (const auto& fichero : Textos) std::filesystem::remove(fichero, nada);
    }
    TVisoresDePrueba(const TVisoresDePrueba&) = delete;
    TVisoresDePrueba& operator=(const TVisoresDePrueba&) = delete;

    [[nodiscard]] bool AbreTexto(const std::filesystem::path& fichero) override {
        Textos.push_back(fichero);
        BytesTextos.push_back(BytesDe(fichero));
        return HayPrograma;
    }
    void CreateVisorEmbeddedWB(TComponente* propietario, const std::filesystem::path& fichero,
                               std::string_view titulo) override {
        Xmls.push_back({propietario, fichero, BytesDe(fichero), std::string(titulo)});
    }
};

template <class T>
TTextos Textos(const ListaTextos<T>& lista) {
    TTextos textos;
    for (const auto& linea : lista) textos.push_back(linea.Texto);
    return textos;
}

template <class T>
TTextos Textos(const TListaSeleccion<T>& lista) {
    return Textos(lista.Lineas());
}

inline TTextos Tipos(const TRejillaTipos& rejilla) {
    TTextos tipos;
    for (const auto& fila : rejilla.Filas()) tipos.push_back(fila.Tipo);
    return tipos;
}

// The "TIPO" of the grid's current row.
inline std::string TipoActual(const TRejillaTipos& rejilla) {
    return rejilla.Actual() ? rejilla.Filas()[*rejilla.Actual()].Tipo : "(none)";
}

// A party whom the dialog proposes, listed as "GIL, <nombre> - <documento>".
inline TROtorgante Persona(std::string nombre, std::string documento) {
    TROtorgante otorgante;
    otorgante.TipoDocumento = 1;
    otorgante.NumDocumento = std::move(documento);
    otorgante.Nombre = std::move(nombre);
    otorgante.Apellidos = "GIL";
    otorgante.Domicilio = "MAYOR";
    return otorgante;
}

inline TROtorgante PersonaEnXml(std::string nombre, std::string documento) {
    TROtorgante otorgante = Persona(std::move(nombre), std::move(documento));
    otorgante.EnXML = true;
    return otorgante;
}

// What the dialog needs around it: a table of four types, those of the party details,
// message boxes and viewers.
class TEscenaPreseleccion {
  public:
    TEscenaPreseleccion() {
        Tablas.Pon("TIPOS.DBF", {{"NOMBRE", "NUMEROTIPO", "COD_OFICIA", "PRESTAMO", "CLAVE_INTI", "TIPO"},
                                 {{"Venta de finca", "10", "01001", "F", "D", "VENTA"},
                                  {"Hipoteca", "2", "05001", "T", "C", "PRESTAMO HIPOTECARIO"},
                                  {"Poder", "30", "03001", "F", "A", "PODER"},
                                  {"Personal", "4", "05002", "T", "B", "PRESTAMO"}}});
        Tablas.Pon("PROVIN.DBF", {{"PROVINCIA", "CODIGO", "GRUPO"}, {{"MADRID", "28", "1"}}});
        Tablas.Pon("TIPO_VIA.DBF", {{"CODIGO", "NOMBRE"}, {{"CL", "CALLE"}}});
        Tablas.Pon("TIPO_INT.DBF", {{"CODIGO", "DESCRIPCIO"}, {{"99", "NINGUNA"}}});
    }

    // A dialog with these concepts (all of number 7) and parties found.
    [[nodiscard]] static std::unique_ptr<TFListaConceptosPreseleccionados> Crea(
        const TTextos& conceptos, const std::vector<TROtorgante>& otorgantes = {}, std::string informe = "",
        std::string xml = "") {
        auto dialogo = std::make_unique<TFListaConceptosPreseleccionados>(std::move(informe), std::move(xml));
        ListaTextos<TRConcepto> listaConceptos;
        for (const auto& nombre : conceptos)
            listaConceptos.Anade(nombre, std::make_unique<TRConcepto>(TRConcepto{7, nombre, "01", true}));
        dialogo->CargaListaPosiblesConceptos(listaConceptos);
        ListaTextos<TROtorgante> listaOtorgantes;
        for (const auto& otorgante : otorgantes)
            listaOtorgantes.Anade(otorgante.NombreOtorgante(), std::make_unique<TROtorgante>(otorgante));
        dialogo->CargaListaPosiblesOtorgantes(listaOtorgantes);
        return dialogo;
    }

    // From now on there are no viewers.
    void QuitaVisores() { FInstalaVisores.reset(); }

    TTablasDePrueba Tablas;
    TConfigDePrueba Configuracion;
    TMensajesContestados Mensajes;
    TVisoresDePrueba Visores;

  private:
    InstalaTablas FInstalaTablas{Tablas};
    InstalaConfig FInstalaConfig{Configuracion};
    InstalaMensajes FInstalaMensajes{Mensajes};
    std::optional<InstalaVisores> FInstalaVisores{std::in_place, Visores};
};

}  // namespace analizador
