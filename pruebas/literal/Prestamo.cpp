#include "plataforma/Rut.h"
#include "pruebas/literal/Cortes.h"
#include "rutinas/RutAnalizador.h"

namespace analizador {

using namespace pruebas;

namespace {

// Hands `toma` the text before each mention of the section's words; each time the first entry in file order
// that occurs is the one, and the search goes on after it.
template <class Toma>
void RecorreMenciones(std::string_view seccion, std::string_view parrafo, Toma toma) {
    std::string texto = QuitaCaracteres(Pliega(parrafo), "\t\n\r");
    for (;;) {
        const TToken mencion = ContieneToken(seccion, texto, {.Plegado = false, .PrimeraEntrada = true});
        if (mencion.Posicion == 0) return;
        toma(StrLeft(texto, mencion.Posicion - 1));
        texto = Desde(texto, mencion.Posicion + Largo(mencion.Entrada));
    }
}

}  // namespace

std::vector<Tramo> BuscaPlazo(std::string_view parrafo, std::vector<std::string>& plazos) {
    std::vector<Tramo> tramos;
    RecorreMenciones("MES", parrafo, [&](std::string_view antes) {
        const int plazo = NumeroFinal(antes).Numero;
        if (plazo == -1) return;
        for (const std::string& otro : plazos)
            if (Cad_Int(otro) == plazo) return;
        plazos.push_back(Int_Cad(plazo));
        tramos.emplace_back();
    });
    return tramos;
}

std::vector<Tramo> BuscaTAE(std::string_view parrafo, std::vector<std::string>& taes) {
    std::vector<Tramo> tramos;
    RecorreMenciones("PORCENTAJE", parrafo, [&](std::string_view antes) {
        std::string palabra(UltimaPalabra(antes).Palabra);
        for (char& c : palabra)
            if (c == '.' || c == '\'') c = ',';
        const double tae = RealDeCadena(palabra).value_or(0);
        if (tae <= 0) return;
        for (const std::string& otra : taes)
            if (Cad_Float(otra) == tae) return;
        taes.push_back(Float_Cad(tae));
        tramos.emplace_back();
    });
    return tramos;
}

}  // namespace analizador
