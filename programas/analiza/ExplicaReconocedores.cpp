#include <array>

#include "plataforma/Ansi.h"
#include "plataforma/Rnumcad.h"
#include "plataforma/Rut.h"
#include "programas/analiza/Explicacion.h"
#include "rutinas/RutAnalizador.h"

namespace analizador {

namespace {

std::string Numero(int numero, int ninguno) {
    return numero == ninguno ? "" : Int_Cad(numero);
}

std::string Fecha(const std::optional<TFecha>& fecha) {
    if (!fecha) return "";
    return StrCeros(static_cast<int>(static_cast<unsigned>(fecha->day())), 2) + "/" +
           StrCeros(static_cast<int>(static_cast<unsigned>(fecha->month())), 2) + "/" +
           StrCeros(static_cast<int>(fecha->year()), 4);
}

// Asks one recogniser after another.
class TInterrogador {
  public:
    explicit TInterrogador(std::string_view parrafo) : FParrafo(parrafo) {}

    [[nodiscard]] std::vector<TDevuelto> Pregunta() {
        Cabecera();
        Personas();
        Documentos();
        Domicilio();
        EstadoCivil();
        Nacimiento();
        Extranjeros();
        Intervenciones();
        Prestamo();
        Cuantias();
        return std::move(FDevueltos);
    }

  private:
    // `dato` is UTF-8, `valor` Windows-1252.
    void Pon(const char* reconocedor, const std::string& dato, std::string_view valor, Tramo donde = {}) {
        FDevueltos.push_back({reconocedor, dato, Utf8DeAnsi(valor), donde});
    }
    void Pon(const char* reconocedor, const std::string& dato, const THallazgo<std::string>& hallado) {
        Pon(reconocedor, dato, hallado.Valor, hallado.Donde);
    }
    void Pon(const char* reconocedor, const std::string& dato, const THallazgo<int>& hallado,
             int ninguno = 0) {
        Pon(reconocedor, dato, Numero(hallado.Valor, ninguno), hallado.Donde);
    }
    // A list that came out empty is told once.
    template <class TLista, class TPonUno>
    void PonLista(const char* reconocedor, const TLista& lista, TPonUno ponUno) {
        if (lista.empty()) Pon(reconocedor, "", "");
        for (const auto& uno : lista) ponUno(uno);
    }

    void Cabecera() {
        Pon("BuscaNumeroProtocolo", "", BuscaNumeroProtocolo(FParrafo));
        ListaTextos<TRConcepto> conceptos;
        const auto tramos = BuscaConceptos(FParrafo, conceptos);
        if (tramos.empty()) Pon("BuscaConceptos", "", "");
        std::size_t i = 0;
        for (const auto& linea : conceptos) Pon("BuscaConceptos", "", linea.Objeto->Nombre, tramos.at(i++));
        const TLugarFecha lugarFecha = BuscaLugarFecha(FParrafo);
        if (lugarFecha.Lugar)
            Pon("BuscaLugarFecha", "lugar",
                lugarFecha.Lugar->Valor.Abreviatura + " (" + Int_Cad(lugarFecha.Lugar->Valor.Codigo) + ")",
                lugarFecha.Lugar->Donde);
        else
            Pon("BuscaLugarFecha", "lugar", "");
        Pon("BuscaLugarFecha", "fecha", lugarFecha.Fecha.value_or(THallazgo<std::string>{}));
        const TNotario notario = BuscaNotario(FParrafo);
        Pon("BuscaNotario", "notario", notario.Notario);
        Pon("BuscaNotario", "sustituto", notario.Sustituto);
    }

    void Personas() {
        Pon("EsCliente", "", EsCliente(FParrafo) ? "sí"_ansi : "no");
        Pon("EsUnParrafoDeRepresentacion", "", EsUnParrafoDeRepresentacion(FParrafo) ? "sí"_ansi : "no");
        FPersonas = BuscaPersonas(FParrafo);
        PonLista("BuscaPersonas", FPersonas, [&](const THallazgo<TRPersona>& persona) {
            Pon("BuscaPersonas", persona.Valor.Sexo == "H" ? "hombre" : "mujer",
                persona.Valor.Apellidos + ", " + persona.Valor.Nombre, persona.Donde);
        });
        PonLista("BuscaSociedades", BuscaSociedades(FParrafo), [&](const TSociedadHallada& sociedad) {
            Pon("BuscaSociedades", "nombre", sociedad.Sociedad.Apellidos, sociedad.Nombre);
            Pon("BuscaSociedades", "documento", sociedad.Sociedad.NumDocumento, sociedad.Documento);
        });
        const TPadres padres = BuscaPadres(FParrafo);
        Pon("BuscaPadres", "padre", padres.Padre);
        Pon("BuscaPadres", "madre", padres.Madre);
    }

    void Documentos() {
        static constexpr std::array<const char*, 6> CLASES = {"ninguno", "NIF",       "CIF",
                                                              "NIE",     "pasaporte", "otro"};
        PonLista("BuscaDocumentos", BuscaDocumentos(FParrafo), [&](const THallazgo<TRDocumento>& documento) {
            Pon("BuscaDocumentos", CLASES.at(static_cast<std::size_t>(documento.Valor.TipoDocumento)),
                documento.Valor.Numero, documento.Donde);
        });
        Pon("BuscaCif", "", BuscaCif(FParrafo));
    }

    void Domicilio() {
        const TVecindad vecindad = BuscaVecindad(FParrafo);
        Pon("BuscaVecindad", "municipio", vecindad.Municipio);
        Pon("BuscaVecindad", "código postal", vecindad.CodPostal);
        const TDomicilio domicilio = BuscaDomicilio(FParrafo);
        Pon("BuscaDomicilio", "clase de vía", domicilio.TipoVia);
        Pon("BuscaDomicilio", "vía", domicilio.Via);
        Pon("BuscaDomicilio", "número", domicilio.Numero);
        Pon("BuscaDomicilioExtranjero", "", BuscaDomicilioExtranjero(FParrafo));
    }

    void EstadoCivil() {
        const TEstadoCivil estado = BuscaEstadoCivil(FParrafo);
        Pon("BuscaEstadoCivil", "estado", estado.Estado);
        Pon("BuscaEstadoCivil", "régimen", estado.Regimen);
        Pon("BuscaRegimenMatrimonial", "", BuscaRegimenMatrimonial(FParrafo));
    }

    void Nacimiento() {
        const TNacimiento nacimiento = BuscaLugaryFechaNacimiento(FParrafo);
        Pon("BuscaLugaryFechaNacimiento", "lugar", nacimiento.Lugar);
        Pon("BuscaLugaryFechaNacimiento", "provincia", nacimiento.Provincia);
        Pon("BuscaLugaryFechaNacimiento", "país", nacimiento.Pais);
        Pon("BuscaLugaryFechaNacimiento", "fecha", Fecha(nacimiento.Fecha.Valor), nacimiento.Fecha.Donde);
    }

    void Extranjeros() {
        const TExtranjeria extranjeria = CompruebaExtranjeros(FParrafo);
        Pon("CompruebaExtranjeros", "reside", extranjeria.Espannol ? "aquí"_ansi : "fuera");
        Pon("CompruebaExtranjeros", "país", extranjeria.Pais);
        for (const auto& pais : extranjeria.Paises)
            Pon("CompruebaExtranjeros", "nombra", pais.Valor.Nombre + " (" + Int_Cad(pais.Valor.Codigo) + ")",
                pais.Donde);
    }

    // Of each person that the paragraph names.
    void Intervenciones() {
        constexpr int NINGUNA = 99;
        for (const auto& persona : FPersonas) {
            const std::string nombre = persona.Valor.NombreCompleto();
            const std::string dato = Utf8DeAnsi(nombre);
            Pon("BuscaIntervencionVenden", dato, BuscaIntervencionVenden(FParrafo, nombre), NINGUNA);
            Pon("BuscaIntervencionParteDeudora", dato, BuscaIntervencionParteDeudora(FParrafo, nombre),
                NINGUNA);
        }
    }

    void Prestamo() {
        std::vector<std::string> plazos;
        PonTodos("BuscaPlazo", BuscaPlazo(FParrafo, plazos), plazos);
        std::vector<std::string> taes;
        PonTodos("BuscaTAE", BuscaTAE(FParrafo, taes), taes);
        Pon("BuscaTipoInteres", "", BuscaTipoInteres(Pliega(FParrafo)));
    }

    void Cuantias() {
        std::vector<std::string> cuantias;
        PonTodos("BuscaCuantias", BuscaCuantias(FParrafo, cuantias), cuantias);
    }

    void PonTodos(const char* reconocedor, const std::vector<Tramo>& tramos,
                  const std::vector<std::string>& valores) {
        if (valores.empty()) Pon(reconocedor, "", "");
        for (std::size_t i = 0; i < valores.size(); ++i) Pon(reconocedor, "", valores[i], tramos.at(i));
    }

    std::string_view FParrafo;
    std::vector<TDevuelto> FDevueltos;
    std::vector<THallazgo<TRPersona>> FPersonas;
};

}  // namespace

std::vector<TDevuelto> ReconocedoresDe(std::string_view parrafo) {
    return TInterrogador(parrafo).Pregunta();
}

}  // namespace analizador
