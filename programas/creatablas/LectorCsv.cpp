#include "programas/creatablas/LectorCsv.h"

#include <algorithm>

namespace analizador {

namespace {

constexpr std::string_view MARCA_UTF8 = "\xEF\xBB\xBF";

}  // namespace

TLectorCsv::TLectorCsv(std::string_view texto) : resto_(texto) {
    if (resto_.starts_with(MARCA_UTF8)) resto_.remove_prefix(MARCA_UTF8.size());
}

bool TLectorCsv::EnFinDeLinea() const {
    return resto_.empty() || resto_.starts_with('\n') || resto_.starts_with("\r\n");
}

void TLectorCsv::PasaFinDeLinea() {
    if (resto_.empty()) return;
    resto_.remove_prefix(resto_.starts_with('\n') ? 1 : 2);
    ++linea_;
}

std::optional<TRegistroCsv> TLectorCsv::Siguiente() {
    while (!resto_.empty() && EnFinDeLinea()) PasaFinDeLinea();
    if (resto_.empty()) return std::nullopt;
    TRegistroCsv registro{linea_, {Campo()}};
    while (resto_.starts_with(',')) {
        resto_.remove_prefix(1);
        registro.Campos.push_back(Campo());
    }
    PasaFinDeLinea();
    return registro;
}

std::string TLectorCsv::Campo() {
    if (resto_.starts_with('"')) return CampoEntreComillas();
    std::size_t fin = 0;
    while (fin < resto_.size() && resto_[fin] != ',' && resto_[fin] != '\n' &&
           !resto_.substr(fin).starts_with("\r\n"))
        ++fin;
    std::string campo(resto_.substr(0, fin));
    resto_.remove_prefix(fin);
    if (campo.find('"') != std::string::npos)
        throw ErrorCsv(linea_, "unas comillas dentro de un campo que no empieza por ellas");
    return campo;
}

std::string TLectorCsv::CampoEntreComillas() {
    const int primera = linea_;
    std::string campo;
    for (;;) {
        resto_.remove_prefix(1);
        const std::size_t comillas = resto_.find('"');
        if (comillas == std::string_view::npos) throw ErrorCsv(primera, "unas comillas que no se cierran");
        campo += resto_.substr(0, comillas);
        linea_ += static_cast<int>(std::count(resto_.begin(), resto_.begin() + comillas, '\n'));
        resto_.remove_prefix(comillas + 1);
        if (!resto_.starts_with('"')) break;
        campo += '"';
    }
    if (!EnFinDeLinea() && !resto_.starts_with(','))
        throw ErrorCsv(linea_, "texto detrás de las comillas que cierran un campo");
    return campo;
}

}  // namespace analizador
