#include "modelo/ClaseParrafoClientes.h"

#include <optional>
#include <type_traits>
#include <utility>

#include "analizador/ConstAnalizador.h"
#include "plataforma/Rnumcad.h"
#include "plataforma/Rut.h"

namespace analizador {

namespace {

constexpr int REPRESENTADO = 5;

void RecortaTexto(std::string& texto) {
    texto = std::string(Recorta(texto));
}

// Gives a field its value, and its origin when it was read at all.
template <class T>
void Pon(TOtorganteHallado& hallado, T TROtorgante::*campo, const char* nombre, const T& valor,
         TOrigen origen) {
    T& destino = hallado.Otorgante.*campo;
    destino = valor;
    if constexpr (std::is_same_v<T, std::string>) RecortaTexto(destino);
    if (destino != T{} && origen.Donde.Longitud != 0) hallado.Origenes.insert_or_assign(nombre, origen);
}

// As it stands in the list of spouses: surnames first.
std::string NombreDeConyuge(const TRPersona& persona) {
    return persona.Apellidos + ", " + persona.Nombre;
}

// The k-th document (from 0) of the kinds that persons have, else the k-th of any kind. There are more than
// k.
const THallazgo<TRDocumento>& DocumentoDePersona(const std::vector<THallazgo<TRDocumento>>& documentos,
                                                 std::size_t k) {
    constexpr int NIF = 1;
    constexpr int NIE = 3;
    std::size_t anteriores = 0;
    for (const auto& documento : documentos) {
        const int tipo = documento.Valor.TipoDocumento;
        if ((tipo == NIF || tipo == NIE) && anteriores++ == k) return documento;
    }
    return documentos[k];
}

// The form of address right before a name; nowhere when there is none.
Tramo TramoTratamiento(std::string_view texto, std::string_view sexo, Tramo nombre) {
    const std::string plegado = Pliega(texto.substr(0, nombre.Primera));
    const std::string_view antes = RecortaDerecha(plegado);
    Tramo tramo;
    for (const std::string& forma : ListaTokens(CONST_SECCION_SEXOS[sexo == "M" ? 1 : 0]))
        if (antes.ends_with(forma) && forma.size() > tramo.Longitud)
            tramo = {antes.size() - forma.size(), forma.size()};
    return tramo;
}

// A field that the tables settled was read in the paragraph only if that says the same.
void OlvidaSiCambio(TOrigenes& origenes, const char* nombre, std::string_view leido, std::string_view final) {
    if (Pliega(leido) != Pliega(final)) origenes.erase(nombre);
}

void CompletaPostal(TOtorganteHallado& hallado) {
    TROtorgante& otorgante = hallado.Otorgante;
    const std::string vecindad = otorgante.Vecindad;
    const std::string codPostal = otorgante.CodPostal;
    otorgante.CompletaPostal();
    OlvidaSiCambio(hallado.Origenes, "Vecindad", vecindad, otorgante.Vecindad);
    OlvidaSiCambio(hallado.Origenes, "CodPostal", codPostal, otorgante.CodPostal);
}

// Both live in the same place: what the tables gave one of them is the other's too.
void TomaPostal(TOtorganteHallado& hallado, const TOtorganteHallado& otro) {
    hallado.Otorgante.CodINE = otro.Otorgante.CodINE;
    hallado.Otorgante.CodPostal = otro.Otorgante.CodPostal;
    hallado.Otorgante.Provincia = otro.Otorgante.Provincia;
    hallado.Otorgante.Vecindad = otro.Otorgante.Vecindad;
    for (const char* nombre : {"CodPostal", "Vecindad"})
        if (!otro.Origenes.contains(nombre)) hallado.Origenes.erase(nombre);
}

}  // namespace

TClassCliente::TClassCliente(std::string_view texto, int numero) : Texto(texto), NumeroParrafo(numero) {}

void TClassCliente::Desglosa() {
    DesglosaPartes();
    const TEstadoCivil estado = BuscaEstadoCivil(Texto);
    EstadoCivil = estado.Estado;
    Regimen = estado.Regimen;
    TVecindad vecindad = BuscaVecindad(Texto);
    Vecindad = std::move(vecindad.Municipio);
    CodPostal = std::move(vecindad.CodPostal);
    TExtranjeria extranjeria = CompruebaExtranjeros(Texto);
    Residente = extranjeria.Espannol;
    Pais = std::move(extranjeria.Pais);
    CodPais = extranjeria.CodPais;
    Nacionalidades = std::move(extranjeria.Paises);
    DesglosaDomicilio();
}

void TClassCliente::DesglosaPartes() {
    Documentos = BuscaDocumentos(Texto);
    Personas = BuscaPersonas(Texto);
    Sociedades = BuscaSociedades(Texto);
    for (auto& documento : Documentos) RecortaTexto(documento.Valor.Numero);
    for (auto& persona : Personas) {
        RecortaTexto(persona.Valor.Nombre);
        RecortaTexto(persona.Valor.Apellidos);
    }
    for (auto& sociedad : Sociedades) {
        RecortaTexto(sociedad.Sociedad.NumDocumento);
        RecortaTexto(sociedad.Sociedad.Apellidos);
    }
}

void TClassCliente::DesglosaDomicilio() {
    TDomicilio domicilio;
    if (Residente)
        domicilio = BuscaDomicilio(Texto);
    else
        domicilio.Via = BuscaDomicilioExtranjero(Texto);
    TipoVia = std::move(domicilio.TipoVia);
    Domicilio = std::move(domicilio.Via);
    Numero = std::move(domicilio.Numero);
}

TOrigen TClassCliente::Origen(Tramo tramo) const {
    const std::string_view trozo = Recorta(std::string_view(Texto).substr(tramo.Primera, tramo.Longitud));
    return {NumeroParrafo, {static_cast<std::size_t>(trozo.data() - Texto.data()), trozo.size()}};
}

TOtorganteHallado TClassCliente::ConResidencia() const {
    TOtorganteHallado hallado;
    Pon(hallado, &TROtorgante::Vecindad, "Vecindad", Vecindad.Valor, Origen(Vecindad.Donde));
    Pon(hallado, &TROtorgante::TipoVia, "TipoVia", TipoVia.Valor, Origen(TipoVia.Donde));
    Pon(hallado, &TROtorgante::Domicilio, "Domicilio", Domicilio.Valor, Origen(Domicilio.Donde));
    Pon(hallado, &TROtorgante::Numero, "Numero", Numero.Valor, Origen(Numero.Donde));
    Pon(hallado, &TROtorgante::Pais, "Pais", Pais.Valor, Origen(Pais.Donde));
    hallado.Otorgante.CodPais = CodPais;
    hallado.Otorgante.Residente = Residente;
    return hallado;
}

TOtorganteHallado TClassCliente::ConPersona(std::size_t indice) const {
    TOtorganteHallado hallado = ConResidencia();
    const auto& [persona, nombre] = Personas[indice];
    Pon(hallado, &TROtorgante::Sexo, "Sexo", persona.Sexo,
        Origen(TramoTratamiento(Texto, persona.Sexo, nombre)));
    Pon(hallado, &TROtorgante::Nombre, "Nombre", persona.Nombre, Origen(nombre));
    Pon(hallado, &TROtorgante::Apellidos, "Apellidos", persona.Apellidos, Origen(nombre));
    if (Personas.size() == 2) {
        const auto& [conyuge, donde] = Personas[1 - indice];
        Pon(hallado, &TROtorgante::Conyuge, "Conyuge", NombreDeConyuge(conyuge), Origen(donde));
    }
    const auto& [documento, numero] = DocumentoDePersona(Documentos, indice);
    Pon(hallado, &TROtorgante::TipoDocumento, "TipoDocumento", documento.TipoDocumento, Origen(numero));
    Pon(hallado, &TROtorgante::NumDocumento, "NumDocumento", documento.Numero, Origen(numero));
    if (!Nacionalidades.empty()) {
        const bool unaCadaUno = Nacionalidades.size() == Personas.size();
        const auto& [pais, gentilicio] = Nacionalidades[unaCadaUno ? indice : 0];
        Pon(hallado, &TROtorgante::Nacionalidad, "Nacionalidad", pais.Nombre, Origen(gentilicio));
    }
    Pon(hallado, &TROtorgante::EstadoCivil, "EstadoCivil", EstadoCivil.Valor, Origen(EstadoCivil.Donde));
    Pon(hallado, &TROtorgante::Regimen, "Regimen", Regimen.Valor, Origen(Regimen.Donde));
    Pon(hallado, &TROtorgante::CodPostal, "CodPostal", CodPostal.Valor, Origen(CodPostal.Donde));
    return hallado;
}

void TClassCliente::InsertaOtorgantes(TListaOtorgantes& lista) const {
    if (Personas.empty() || Documentos.empty()) return;
    TOtorganteHallado primero = ConPersona(0);
    if (Residente) CompletaPostal(primero);
    std::optional<TOtorganteHallado> segundo;
    if (Personas.size() == 2 && Documentos.size() > 1) {
        segundo = ConPersona(1);
        if (Residente) TomaPostal(*segundo, primero);
    }
    lista.Anade(std::move(primero));
    if (segundo) lista.Anade(std::move(*segundo));
}

void TClassParrafoConSociedad::RellenaListaOtorgantes(TListaOtorgantes& lista) {
    if (!Sociedades.empty()) lista.Anade(ConSociedad(Sociedades.front()));
    std::erase_if(Personas, [&](const auto& persona) {
        return lista.LineaNombradaEn(persona.Valor.NombreCompleto()).has_value();
    });
    std::erase_if(Documentos,
                  [&](const auto& documento) { return lista.HayDocumentoEn(documento.Valor.Numero); });
    const std::size_t anteriores = lista.Lista.Cuenta();
    InsertaOtorgantes(lista);
    for (std::size_t i = anteriores; i < lista.Lista.Cuenta(); ++i)
        MarcaIntervencion(*lista.Lista[i].Objeto, lista.Origenes[i]);
}

TOtorganteHallado TClassParrafoConSociedad::ConSociedad(const TSociedadHallada& hallada) const {
    const TRSociedad& sociedad = hallada.Sociedad;
    TOtorganteHallado hallado = ConResidencia();
    hallado.Otorgante.Sexo = sociedad.Sexo;
    hallado.Otorgante.Nombre = sociedad.Nombre;
    Pon(hallado, &TROtorgante::Apellidos, "Apellidos", sociedad.Apellidos, Origen(hallada.Nombre));
    Pon(hallado, &TROtorgante::TipoDocumento, "TipoDocumento", sociedad.TipoDocumento,
        Origen(hallada.Documento));
    Pon(hallado, &TROtorgante::NumDocumento, "NumDocumento", sociedad.NumDocumento,
        Origen(hallada.Documento));
    if (Residente) CompletaPostal(hallado);
    MarcaIntervencion(hallado.Otorgante, hallado.Origenes);
    return hallado;
}

void TClassParrafoRepresentacion::Desglosa() {
    TClassParrafoConSociedad::Desglosa();
    Representante = {};
    if (Personas.empty()) return;
    const auto& [persona, nombre] = Personas.front();
    Representante = {std::string(Recorta(persona.NombreCompleto())), nombre};
}

void TClassParrafoRepresentacion::MarcaIntervencion(TROtorgante& otorgante, TOrigenes& /*origenes*/) const {
    otorgante.IntervencionVRK = REPRESENTADO;  // by being in such a paragraph, not by a word of it
}

void TClassParrafoParteDeudora::MarcaIntervencion(TROtorgante& otorgante, TOrigenes& origenes) const {
    const auto hallada = BuscaIntervencionParteDeudora(Texto, otorgante.NombreOtorgante());
    otorgante.IntervencionINTI = hallada.Valor;
    if (hallada.Donde.Longitud != 0) origenes.insert_or_assign("IntervencionINTI", Origen(hallada.Donde));
}

}  // namespace analizador
