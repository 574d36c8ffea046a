// The report of an analysis: a fixed layout of labelled lines for people.

#include "analizador/Pizarra.h"

#include <array>

#include "analizador/ConstAnalizador.h"
#include "plataforma/Ansi.h"
#include "plataforma/Rnumcad.h"
#include "plataforma/Rut.h"
#include "plataforma/Rvarias.h"

namespace analizador {

namespace {

class TPizarra {
  public:
    explicit TPizarra(std::string& texto) : texto_(texto) {}

    void Linea(std::string_view linea = {}) { texto_.append(linea).append("\r\n"); }
    void Dato(std::string_view rotulo, std::string_view valor) {
        texto_.append(rotulo).append(valor).append("\r\n");
    }
    void DatoSiHay(std::string_view rotulo, std::string_view valor) {
        if (!valor.empty()) Dato(rotulo, valor);
    }

  private:
    std::string& texto_;
};

std::string_view TextoDocumento(int tipo) {
    static constexpr std::array<std::string_view, 5> TEXTOS = {"", "NIF", "CIF", "NIE", "PASAPORTE"};
    return tipo >= 1 && tipo < static_cast<int>(TEXTOS.size()) ? TEXTOS[static_cast<std::size_t>(tipo)]
                                                               : "OTRO TIPO DE DOCUMENTO";
}

// Empty for the codes that have no line.
std::string_view TextoEstadoCivil(int estado) {
    static constexpr std::array<std::string_view, 8> TEXTOS = {"",
                                                               "CA (casado/a)",
                                                               "CS (casado/a segundas nupcias)",
                                                               "DI (divorciado/a)",
                                                               "SJ (separado/a judicialmente)",
                                                               "SO (soltero/a)",
                                                               "VI (viudo/a)",
                                                               "PH (pareja de hecho)"};
    return estado >= 0 && estado < static_cast<int>(TEXTOS.size()) ? TEXTOS[static_cast<std::size_t>(estado)]
                                                                   : "";
}

std::string_view TextoRegimen(int regimen) {
    static constexpr std::array<std::string_view, 5> TEXTOS = {
        "", "G (Gananciales)", "S (Separación de bienes)"_ansi, "P (Participación)"_ansi, "O (Otros)"};
    return regimen >= 0 && regimen < static_cast<int>(TEXTOS.size())
               ? TEXTOS[static_cast<std::size_t>(regimen)]
               : "";
}

std::string TextoFecha(const std::optional<TFecha>& fecha) {
    return fecha ? Fecha_Cad(*fecha) : std::string();
}

void EscribePersona(TPizarra& pizarra, const TROtorgante& otorgante) {
    pizarra.Dato("SEXO         : ", otorgante.Sexo);
    pizarra.Dato("TIP.DOCUMENTO: ", TextoDocumento(otorgante.TipoDocumento));
    pizarra.Dato("NUM.DOCUMENTO: ", otorgante.NumDocumento);
    pizarra.Dato("NOMBRE       : ", otorgante.Nombre);
    pizarra.Dato("APELLIDOS    : ", otorgante.Apellidos);
    pizarra.DatoSiHay("LUGAR NACIMI.: ", otorgante.LugarNacimiento);
    pizarra.DatoSiHay("PROV. NACIMI.: ", otorgante.ProvinciaNacimiento);
    pizarra.DatoSiHay("PAIS  NACIMI.: ", otorgante.PaisNacimiento);
    pizarra.DatoSiHay("FECHA NACIMI.: ", TextoFecha(otorgante.FechaNacimiento));
    pizarra.DatoSiHay("PADRE        : ", otorgante.Padre);
    pizarra.DatoSiHay("MADRE        : ", otorgante.Madre);
    pizarra.DatoSiHay("ESTADO CIVIL : ", TextoEstadoCivil(otorgante.EstadoCivil));
    pizarra.DatoSiHay("REGIMEN MATR.: ", TextoRegimen(otorgante.Regimen));
    pizarra.Dato("CONYUGE      : ", otorgante.Conyuge);
}

void EscribeDomicilio(TPizarra& pizarra, const TROtorgante& otorgante) {
    pizarra.Dato("TIPO VIA     : ", otorgante.TipoVia);
    pizarra.Dato("DOMICILIO    : ", otorgante.Domicilio);
    pizarra.Dato("NUMERO       : ", otorgante.Numero);
    pizarra.Dato("VECINDAD     : ", otorgante.Vecindad);
    pizarra.Dato("PROVINCIA    : ", otorgante.Provincia);
    pizarra.Dato("CODIGO POSTAL: ", otorgante.CodPostal);
    pizarra.Dato("CODIGO INE   : ", otorgante.CodINE);
    pizarra.DatoSiHay("PAIS         : ", otorgante.Pais);
    pizarra.DatoSiHay("NACIONALIDAD : ", otorgante.Nacionalidad);
}

void EscribeOtorgante(TPizarra& pizarra, const TROtorgante& otorgante) {
    EscribePersona(pizarra, otorgante);
    pizarra.Linea();
    EscribeDomicilio(pizarra, otorgante);
    pizarra.Linea();
    pizarra.Dato("INTERV. VRK  : ", TextoIntervencionVRK(otorgante.IntervencionVRK));
    pizarra.Dato("INTERV. INTI : ", Actuacion_INTI(otorgante.IntervencionINTI));
    pizarra.Linea("----------");
}

}  // namespace

std::string TextoPizarra(const TClassAnalizadorAbierto& sesion, const ListaTextos<TRConcepto>& conceptos) {
    std::string texto;
    TPizarra pizarra(texto);
    pizarra.Linea(EsCastellano() ? "ESCRITURA EN CASTELLANO" : "ESCRITURA EN CATALAN");
    pizarra.Dato("NUMERO       : ", Int_Cad(sesion.Cabecera.NumeroProtocolo));
    pizarra.Dato("FECHA        : ", sesion.Cabecera.Fecha);
    pizarra.Dato("LUGAR        : ", sesion.Cabecera.Abreviatura);
    pizarra.Dato("NOTARIO      : ", sesion.Cabecera.Notario);
    pizarra.Dato("SUSTITUTO    : ", sesion.Cabecera.NotarioSustituto);
    pizarra.Dato("EMPLEADO     : ", sesion.Empleado);
    pizarra.Linea();
    pizarra.Linea("CONCEPTOS");
    pizarra.Linea("---------");
    for (const auto& linea : conceptos) pizarra.Linea(linea.Texto);
    pizarra.Linea();
    pizarra.Linea("OTORGANTES");
    pizarra.Linea("----------");
    for (const auto& linea : sesion.Otorgantes.Lista)
        if (linea.Objeto) EscribeOtorgante(pizarra, *linea.Objeto);
    return texto;
}

void TClassAnalizadorAbierto::RellenaPizarra() {
    Pizarra += TextoPizarra(*this, Cabecera.Conceptos);
}

}  // namespace analizador
