#include <gtest/gtest.h>

#include <string>

#include "dialogos/InformacionOtorgante.h"
#include "pruebas/comun/Literales.h"

namespace analizador {
namespace {

using enum TControlDatos;

// `|` stands for the cursor.
struct TCaso {
    TControlDatos Control;
    std::string_view Anterior;
    std::string Nuevo;
    std::string Ajustado;
};

std::string ConCursor(const TTecleado& tecleado) {
    std::string texto = tecleado.Texto;
    return texto.insert(tecleado.Cursor, "|");
}

void Comprueba(const TCaso& caso) {
    std::string nuevo = caso.Nuevo;
    const std::size_t cursor = nuevo.find('|');
    ASSERT_NE(cursor, std::string::npos) << caso.Nuevo;
    nuevo.erase(cursor, 1);
    EXPECT_EQ(ConCursor(TFInformacionOtorgante::AjustaTecleado(caso.Control, caso.Anterior, nuevo, cursor)),
              caso.Ajustado)
        << caso.Anterior << " -> " << caso.Nuevo;
}

TEST(AjustaTecleado, SoloLoTecleadoEnMayusculas) {
    const auto t = [](std::string_view texto) { return std::string(texto); };
    const TCaso casos[] = {
        {ENombre, "", "a|", "A|"},
        {ENombre, "Ana", "Anab|", "AnaB|"},
        {ENombre, "ana", "b|ana", "B|ana"},
        {ENombre, "aab", "a|aab", "A|aab"},
        {ENombre, "aab", "aa|ab", "aA|ab"},
        {ENombre, "ana luz", "ana maria| luz", "ana MARIA| luz"},
        {ENombre, "ana luz", "x|", "X|"},  // over a selection
        {ENombre, "ana", "an|", "an|"},
        {ENombre, "ana", "|na", "|na"},
        {ENombre, "ana", "|", "|"},
        {ENombre, "", t("ñáçüàèõ|"_a), t("ÑÁÇÜÀÈÕ|"_a)},
        {EApellidos, "", "uno\tdos\r\n|", "UNO DOS  |"},
        {CBPROVINCIA, "", "madrid [28]|", "MADRID [28]|"},
        {CBPais, "fra", "fran|", "fraN|"},
    };
    for (const TCaso& caso : casos) Comprueba(caso);
}

TEST(AjustaTecleado, CortaLoTecleadoYNoLoCargado) {
    const TCaso casos[] = {
        {ENUMERO, "", "12345|", "1234|"},
        {ENUMERO, "1234", "12345|", "1234|"},
        {ENUMERO, "1234", "129|34", "12|34"},
        {ENUMERO, "12", "1789|2", "178|2"},
        {ENUMERO, "s/n bajo", "s/n bajox|", "s/n bajo|"},
        {ENUMERO, "s/n bajo", "x|s/n bajo", "|s/n bajo"},
        {ENUMERO, "s/n bajo", "s/n baj|", "s/n baj|"},
        {ENUMERO, "s/n bajo", "s/nx|", "s/nX|"},
    };
    for (const TCaso& caso : casos) Comprueba(caso);
}

TEST(AjustaTecleado, CadaLimite) {
    for (const TDescripcionControl& control : ControlesDatos()) {
        if (control.Clase != TClaseControl::Caja) continue;
        const std::string justo(control.Maximo, 'X');
        const std::string largo = justo + "X";
        EXPECT_EQ(TFInformacionOtorgante::AjustaTecleado(control.Control, "", justo, justo.size()).Texto,
                  justo)
            << control.Nombre;
        EXPECT_EQ(TFInformacionOtorgante::AjustaTecleado(control.Control, "", largo, largo.size()).Texto,
                  justo)
            << control.Nombre;
    }
    const std::string libre(300, 'X');
    EXPECT_EQ(TFInformacionOtorgante::AjustaTecleado(CBPais, "", libre, libre.size()).Texto, libre);
}

TEST(AjustaTecleado, FechaConMascara) {
    const TCaso casos[] = {
        {MEFecha_Naci, "  /  /    ", "3|  /  /    ", "3| /  /    "},
        {MEFecha_Naci, "3 /  /    ", "31| /  /    ", "31|/  /    "},
        {MEFecha_Naci, "31/  /    ", "310|/  /    ", "31/0| /    "},
        {MEFecha_Naci, "31/0 /    ", "31/02| /    ", "31/02|/    "},
        {MEFecha_Naci, "31/02/200 ", "31/02/2001| ", "31/02/2001|"},
        {MEFecha_Naci, "31/02/2001", "31/02/20017|", "31/02/2001|"},
        {MEFecha_Naci, "31/02/2001", "7|31/02/2001", "7|1/02/2001"},         // overwrites
        {MEFecha_Naci, "31/02/2001", "31|02/2001", "31|/02/2001"},           // the stroke stays
        {MEFecha_Naci, "31/02/2001", "3|/02/2001", "3| /02/2001"},           // places are kept
        {MEFecha_Naci, "31/02/2001", "31/|2001", "31/|  /2001"},             // over two parts
        {MEFecha_Naci, "31/02/2001", "|", "|  /  /    "},                    // everything
        {MEFecha_Naci, "31/02/2001", "5|", "5| /  /    "},                   // over everything
        {MEFecha_Naci, "  /  /    ", "07031965|  /  /    ", "07/03/1965|"},  // pasted
        {MEFecha_Naci, "  /  /    ", "07/03/1965|  /  /    ", "07/03/1965|"},
        {MEFecha_Naci, "31/02/2001", "7/3/1965|", "7 /3 /1965|"},
        {MEFecha_Naci, "  /  /    ", "7/|  /  /    ", "7 /|  /    "},
        {MEFecha_Naci, "  /  /    ", "x|  /  /    ", "|  /  /    "},
        {MEFecha_Naci, "  /  /    ", "7-3|  /  /    ", "73|/  /    "},
        {MEFecha_Naci, "12/  /    ", " |12/  /    ", " |2/  /    "},
    };
    for (const TCaso& caso : casos) Comprueba(caso);
}

}  // namespace
}  // namespace analizador
