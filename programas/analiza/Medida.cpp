#include "programas/analiza/Medida.h"

#include <algorithm>
#include <cmath>

#include "plataforma/Rnumcad.h"
#include "programas/analiza/Columnas.h"
#include "programas/analiza/Hechos.h"
#include "programas/analiza/SalidaJson.h"

namespace analizador {

namespace {

std::optional<double> Parte(int aciertos, int todos) {
    if (todos == 0) return std::nullopt;
    return static_cast<double>(aciertos) / todos;
}

std::string Dicho(const std::string& hecho) {
    return hecho.empty() ? "nada" : "«" + hecho + "»";
}

std::string LineaDeFallo(const std::string& escritura, const TComparacion& c) {
    return escritura + ": " + c.Campo + (c.De.empty() ? "" : " de " + c.De) + ": se esperaba " +
           Dicho(c.Esperado) + ", salió " + Dicho(c.Obtenido);
}

// "97,3 %"
std::string Tanto(std::optional<double> parte) {
    if (!parte) return "-";
    const int decimas = static_cast<int>(std::lround(*parte * 1000));
    return Int_Cad(decimas / 10) + "," + Int_Cad(decimas % 10) + " %";
}

std::vector<std::string> Fila(const TCuenta& c) {
    return {c.Campo,           Int_Cad(c.Aciertos), Int_Cad(c.Sobran),
            Int_Cad(c.Faltan), Tanto(Precision(c)), Tanto(Cobertura(c)),
            Tanto(F1(c))};
}

}  // namespace

std::optional<double> Precision(const TCuenta& cuenta) {
    return Parte(cuenta.Aciertos, cuenta.Aciertos + cuenta.Sobran);
}

std::optional<double> Cobertura(const TCuenta& cuenta) {
    return Parte(cuenta.Aciertos, cuenta.Aciertos + cuenta.Faltan);
}

std::optional<double> F1(const TCuenta& cuenta) {
    return Parte(2 * cuenta.Aciertos, 2 * cuenta.Aciertos + cuenta.Sobran + cuenta.Faltan);
}

// The fields in the order of the output, whatever the first deed gives.
TMedida::TMedida() {
    const auto modelo = nlohmann::ordered_json::parse(LineaJsonModelo());
    for (const auto& [clave, valor] : modelo.items()) {
        if (!valor.is_object()) (void)Cuenta(clave);
        if (valor.is_object())
            for (const auto& interior : valor.items()) (void)Cuenta(clave + "." + interior.key());
        if (clave == "Otorgantes")
            for (const auto& interior : valor.front().items()) (void)Cuenta("Otorgante." + interior.key());
    }
}

TCuenta& TMedida::Cuenta(const std::string& campo) {
    const auto cuenta = std::ranges::find(FCuentas, campo, &TCuenta::Campo);
    if (cuenta != FCuentas.end()) return *cuenta;
    return FCuentas.emplace_back(TCuenta{campo});
}

void TMedida::Juzga(const std::string& escritura, std::string_view hechos, std::string_view obtenido) {
    for (const TComparacion& c : ComparaHechos(LeeHechos(hechos), LeeHechos(obtenido))) {
        TCuenta& cuenta = Cuenta(c.Campo);
        cuenta.Aciertos += c.Acierto ? 1 : 0;
        cuenta.Sobran += !c.Acierto && !c.Obtenido.empty() ? 1 : 0;
        cuenta.Faltan += !c.Acierto && !c.Esperado.empty() ? 1 : 0;
        if (!c.Acierto && !c.Callado) FFallos.push_back(LineaDeFallo(escritura, c));
    }
    ++FEscrituras;
}

std::vector<TCuenta> TMedida::Cuentas() const {
    std::vector<TCuenta> cuentas;
    std::ranges::copy_if(FCuentas, std::back_inserter(cuentas),
                         [](const TCuenta& c) { return c.Aciertos + c.Sobran + c.Faltan > 0; });
    return cuentas;
}

TCuenta TMedida::Total() const {
    TCuenta total{"TOTAL"};
    for (const TCuenta& c : FCuentas) {
        total.Aciertos += c.Aciertos;
        total.Sobran += c.Sobran;
        total.Faltan += c.Faltan;
    }
    return total;
}

std::string InformeMedida(const TMedida& medida) {
    std::vector<std::vector<std::string>> filas = {
        {"dato", "aciertos", "sobran", "faltan", "precisión", "cobertura", "F1"}};
    for (const TCuenta& cuenta : medida.Cuentas()) filas.push_back(Fila(cuenta));
    filas.push_back(Fila(medida.Total()));
    const int n = medida.Escrituras();
    std::string informe =
        Int_Cad(n) + (n == 1 ? " escritura\n\n" : " escrituras\n\n") + EnColumnas(filas, "iddddddd") + "\n";
    if (medida.Fallos().empty()) return informe + "Ningún fallo.\n";
    informe += "Fallos:\n";
    for (const auto& fallo : medida.Fallos()) informe += "  " + fallo + "\n";
    return informe;
}

}  // namespace analizador
