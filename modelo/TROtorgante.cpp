#include "modelo/TROtorgante.h"

namespace analizador {

namespace {

std::string UneNombre(const std::string& nombre, const std::string& apellidos) {
    return nombre.empty() ? apellidos : nombre + " " + apellidos;
}

void TomaSiVacio(std::string& propio, const std::string& otro) {
    if (propio.empty()) propio = otro;
}

void TomaSiCero(int& propio, int otro) {
    if (propio == 0) propio = otro;
}

}  // namespace

std::string TRPersona::NombreCompleto() const {
    return UneNombre(Nombre, Apellidos);
}

std::string TROtorgante::NombreOtorgante() const {
    return UneNombre(Nombre, Apellidos);
}

std::string TROtorgante::MuestraOtorgante() const {
    std::string linea = Apellidos;
    if (!Nombre.empty()) linea += ", " + Nombre;
    if (!NumDocumento.empty()) linea += " - " + NumDocumento;
    return linea;
}

void TROtorgante::ActualizaValores(const TROtorgante& otro) {
    constexpr int OTRO_DOCUMENTO = 5;
    if (TipoDocumento == 0 || TipoDocumento == OTRO_DOCUMENTO) TipoDocumento = otro.TipoDocumento;
    TomaSiVacio(NumDocumento, otro.NumDocumento);
    TomaSiVacio(Sexo, otro.Sexo);
    TomaSiVacio(Nombre, otro.Nombre);
    TomaSiVacio(Apellidos, otro.Apellidos);
    TomaSiCero(EstadoCivil, otro.EstadoCivil);
    TomaSiCero(Regimen, otro.Regimen);
    TomaSiVacio(Conyuge, otro.Conyuge);
    TomaSiVacio(Vecindad, otro.Vecindad);
    TomaSiVacio(Provincia, otro.Provincia);
    TomaSiVacio(TipoVia, otro.TipoVia);
    TomaSiVacio(Domicilio, otro.Domicilio);
    TomaSiVacio(Numero, otro.Numero);
    TomaSiVacio(CodPostal, otro.CodPostal);
    TomaSiVacio(CodINE, otro.CodINE);
    TomaSiCero(CodPais, otro.CodPais);
    TomaSiVacio(Pais, otro.Pais);
    // The later mention decides these outright: what was held is forgotten first.
    IntervencionINTI = otro.IntervencionINTI;
    IntervencionVRK = otro.IntervencionVRK;
    Residente = otro.Residente;
    Nacionalidad = otro.Nacionalidad;
    LugarNacimiento = otro.LugarNacimiento;
    PaisNacimiento = otro.PaisNacimiento;
    ProvinciaNacimiento = otro.ProvinciaNacimiento;
    FechaNacimiento = otro.FechaNacimiento;
    Padre = otro.Padre;
    Madre = otro.Madre;
}

}  // namespace analizador
