#pragma once

// A short deed of two parties, as Word holds it; Windows-1252.

namespace analizador::pruebas {

inline constexpr const char* COMPRAVENTA =
    "NUMERO DOS MIL CINCO.\r"
    "ESCRITURA DE COMPRAVENTA.\r"
    "En Madrid, a dos de marzo de dos mil doce.\r"
    "Ante mi, ALFONSO REQUEJO, Notario de Madrid,\r"
    "COMPARECEN\r"
    "DON JUAN PEREZ GIL, mayor de edad, soltero, vecino de MADRID, con "
    "domicilio en la calle Mayor, 5, con D.N.I. numero 12345678-Z.\r"
    "DON LUIS SANZ RUBIO, mayor de edad, soltero, vecino de MADRID, con domicilio en la calle Mayor, 7, con "
    "D.N.I. numero 00000001-R.\r"
    "INTERVIENEN en su propio nombre.\r"
    "EXPONEN\r"
    "DON JUAN PEREZ GIL vende a DON LUIS SANZ RUBIO, por 1.000,50 EUROS, la finca.\r";

}  // namespace analizador::pruebas
