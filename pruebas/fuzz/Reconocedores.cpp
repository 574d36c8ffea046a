#include <array>
#include <concepts>
#include <type_traits>

#include "analizador/ConstAnalizador.h"
#include "plataforma/FicheroIni.h"
#include "plataforma/Rut.h"
#include "pruebas/fuzz/Fuzzers.h"
#include "pruebas/fuzz/OficinaAlAzar.h"
#include "rutinas/RutAnalizador.h"

namespace analizador {

namespace {

// What the recognisers said of one text, as one text to be compared with what they say the next time.
class TActa {
  public:
    explicit TActa(std::string_view texto) : texto_(texto) {}

    template <class T>
    requires std::integral<T> || std::is_enum_v<T>
    void Anota(T valor) { dicho_ += std::to_string(static_cast<long>(valor)) + "|"; }
    void Anota(std::string_view texto) { dicho_.append(texto).append("|"); }
    void Anota(const std::string& texto) { Anota(std::string_view(texto)); }
    void Anota(const Tramo& tramo) {
        Exige(tramo.Primera <= texto_.size() && tramo.Longitud <= texto_.size() - tramo.Primera,
              "a fact was read outside the text");
        Anota(tramo.Primera);
        Anota(tramo.Longitud);
    }
    // A position counted from 1, or 0.
    void AnotaPosicion(int posicion) {
        Exige(posicion >= 0 && posicion <= static_cast<int>(texto_.size()), "a position outside the text");
        Anota(posicion);
    }
    // A view into the text given.
    void AnotaVista(std::string_view vista) {
        Exige(vista.empty() || (vista.data() >= texto_.data() &&
                                vista.data() + vista.size() <= texto_.data() + texto_.size()),
              "a view outside the text");
        Anota(vista);
    }
    void Anota(const TFecha& fecha) {
        Exige(fecha.ok(), "a date that is none");
        Anota(static_cast<int>(fecha.year()));
        Anota(static_cast<unsigned>(fecha.month()));
        Anota(static_cast<unsigned>(fecha.day()));
    }
    void Anota(const TRPersona& persona) {
        Anota(persona.Sexo);
        Anota(persona.NombreCompleto());
    }
    void Anota(const TRDocumento& documento) {
        Anota(documento.TipoDocumento);
        Anota(documento.Numero);
    }
    void Anota(const TRPais& pais) {
        AnotaPosicion(pais.Posicion);
        Anota(pais.Nombre);
        Anota(pais.Codigo);
    }
    void Anota(const TLugar& lugar) {
        Anota(lugar.Codigo);
        Anota(lugar.Abreviatura);
    }
    template <class T>
    void Anota(const std::optional<T>& valor) {
        if (valor) Anota(*valor);
    }
    template <class T>
    void Anota(const THallazgo<T>& hallazgo) {
        Anota(hallazgo.Valor);
        Anota(hallazgo.Donde);
    }
    template <class T>
    void Anota(const std::vector<T>& valores) {
        for (const auto& valor : valores) Anota(valor);
    }

    [[nodiscard]] const std::string& Dicho() const { return dicho_; }

  private:
    std::string_view texto_;
    std::string dicho_;
};

void AnotaPalabras(TActa& acta, std::string_view texto) {
    const auto fichero = AbreFicheroIni(TOKENS_INI());
    const auto& secciones = fichero->Secciones();
    const std::string& seccion = secciones[texto.size() % secciones.size()].Nombre;
    acta.Anota(ListaTokens(seccion));
    for (const bool plegado : {false, true})
        for (const bool ultima : {false, true})
            for (const bool primera : {false, true}) {
                const TToken token = ContieneToken(seccion, texto, {plegado, ultima, primera});
                acta.AnotaPosicion(token.Posicion);
                acta.Anota(token.Entrada);
                acta.Anota(token.Numero);
                if (token.Posicion != 0)
                    Exige(token.Entrada.size() < texto.size() + 2 - static_cast<std::size_t>(token.Posicion),
                          "a token beyond the end");
            }
    for (const TPalabra& palabra : {PrimeraPalabra(texto), UltimaPalabra(texto)}) {
        acta.AnotaVista(palabra.Palabra);
        acta.AnotaVista(palabra.Resto);
        acta.Anota(EsPalabraNumero(palabra.Palabra));
        acta.Anota(EsNumeroEntero(palabra.Palabra));
    }
    for (const TNumeroLeido& numero : {NumeroInicial(texto), NumeroFinal(texto)}) {
        acta.Anota(numero.Numero);
        acta.AnotaVista(numero.Resto);
        acta.Anota(numero.Donde);
    }
}

void AnotaPersonas(TActa& acta, std::string_view texto) {
    const TTratamiento tratamiento = BuscaTratamiento(texto);
    acta.AnotaPosicion(tratamiento.Posicion);
    acta.Anota(tratamiento.Tratamiento);
    acta.Anota(tratamiento.Donde);
    const TNombreSeparado nombre = SeparaNombreApellidos(texto);
    acta.Anota(nombre.Nombre);
    acta.Anota(nombre.Apellidos);
    acta.Anota(BuscaPersonas(texto));
    acta.Anota(BuscaDocumentos(texto));
    acta.Anota(BuscaCif(texto));
    acta.Anota(EsCliente(texto));
    acta.Anota(EsUnParrafoDeRepresentacion(texto));
    for (const TSociedadHallada& sociedad : BuscaSociedades(texto)) {
        acta.Anota(sociedad.Sociedad.Apellidos);
        acta.Anota(sociedad.Sociedad.NumDocumento);
        acta.Anota(sociedad.Nombre);
        acta.Anota(sociedad.Documento);
    }
}

void AnotaCircunstancias(TActa& acta, std::string_view texto) {
    const TVecindad vecindad = BuscaVecindad(texto);
    acta.Anota(vecindad.Municipio);
    acta.Anota(vecindad.CodPostal);
    const TDomicilio domicilio = BuscaDomicilio(texto);
    acta.Anota(domicilio.TipoVia);
    acta.Anota(domicilio.Via);
    acta.Anota(domicilio.Numero);
    acta.Anota(BuscaDomicilioExtranjero(texto));
    const TEstadoCivil estado = BuscaEstadoCivil(texto);
    acta.Anota(estado.Estado);
    acta.Anota(estado.Regimen);
    acta.Anota(BuscaRegimenMatrimonial(texto));
    const TNacimiento nacimiento = BuscaLugaryFechaNacimiento(texto);
    acta.Anota(nacimiento.Lugar);
    acta.Anota(nacimiento.Provincia);
    acta.Anota(nacimiento.Pais);
    acta.Anota(nacimiento.Fecha);
    const TPadres padres = BuscaPadres(texto);
    acta.Anota(padres.Padre);
    acta.Anota(padres.Madre);
    const TExtranjeria extranjeria = CompruebaExtranjeros(texto);
    acta.Anota(extranjeria.Espannol);
    acta.Anota(extranjeria.Pais);
    acta.Anota(extranjeria.CodPais);
    acta.Anota(extranjeria.Paises);
}

// The parties that the text itself names, looked for in it.
void AnotaIntervenciones(TActa& acta, std::string_view texto) {
    ListaTextos<TROtorgante> lista;
    for (const auto& persona : BuscaPersonas(texto)) {
        auto otorgante = std::make_unique<TROtorgante>();
        otorgante->Nombre = persona.Valor.Nombre;
        otorgante->Apellidos = persona.Valor.Apellidos;
        const auto documentos = BuscaDocumentos(texto);
        if (!documentos.empty()) otorgante->NumDocumento = documentos.front().Valor.Numero;
        std::string nombre = otorgante->NombreOtorgante();
        acta.Anota(BuscaIntervencionVenden(texto, nombre));
        acta.Anota(BuscaIntervencionParteDeudora(texto, nombre));
        lista.Anade(std::move(nombre), std::move(otorgante));
    }
    acta.Anota(BuscaIntervencionVenden(texto, texto.substr(texto.size() / 2, 3)));
    const TROtorgante* const hallado = Otorgante(texto, lista);
    acta.Anota(hallado != nullptr);
    Exige((hallado != nullptr) == EsUnOtorgante(texto, lista), "a party is found and is none");
    acta.Anota(EsUnDocumentoDeOtorgante(texto, lista));
}

void AnotaOperacion(TActa& acta, std::string_view texto) {
    std::vector<std::string> plazos, taes, cuantias;
    ListaTextos<TRConcepto> conceptos;
    acta.Anota(BuscaPlazo(texto, plazos));
    acta.Anota(BuscaTAE(texto, taes));
    acta.Anota(BuscaCuantias(texto, cuantias));
    acta.Anota(BuscaConceptos(texto, conceptos));
    acta.Anota(BuscaTipoInteres(Pliega(texto)));
    for (const auto& textos : {plazos, taes, cuantias}) acta.Anota(textos);
    for (const auto& linea : conceptos) acta.Anota(linea.Texto);
}

void AnotaCabecera(TActa& acta, std::string_view texto) {
    acta.AnotaPosicion(PosicionPunto(texto));
    acta.Anota(BuscaNumeroProtocolo(texto));
    const TLugarFecha lugarFecha = BuscaLugarFecha(texto);
    acta.Anota(lugarFecha.Lugar);
    acta.Anota(lugarFecha.Fecha);
    const TNotario notario = BuscaNotario(texto);
    acta.Anota(notario.Notario);
    acta.Anota(notario.Sustituto);
}

using TGrupo = void (*)(TActa&, std::string_view);
constexpr std::array<TGrupo, 6> GRUPOS = {AnotaPalabras,       AnotaPersonas,  AnotaCircunstancias,
                                          AnotaIntervenciones, AnotaOperacion, AnotaCabecera};

std::string Lee(TGrupo grupo, std::string_view texto) {
    TActa acta(texto);
    grupo(acta, texto);
    return acta.Dicho();
}

}  // namespace

void FuzzReconocedores(std::string_view bytes) {
    if (bytes.size() < 2) return;
    const auto eleccion = static_cast<unsigned char>(bytes[0]);
    const TGrupo grupo = GRUPOS.at(static_cast<unsigned char>(bytes[1]) % GRUPOS.size());
    const std::string texto = EligeOficina(eleccion).Texto(bytes.substr(2));
    const std::string dicho = Lee(grupo, texto);
    if ((eleccion & 64U) != 0)
        Exige(Lee(grupo, texto) == dicho, "the recognisers say something else the second time");
}

}  // namespace analizador
