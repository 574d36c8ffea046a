#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>
#include <memory>
#include <string>

#include "plataforma/Rut.h"
#include "plataforma/Ruttb.h"

namespace analizador {
namespace {

// The table of descriptions, as far as a search by code goes.
class TTablaCodigos : public TTabla {
  public:
    void Primero() override {}
    void Siguiente() override {}
    [[nodiscard]] bool Fin() const override { return !encontrado_; }
    [[nodiscard]] int CuentaFilas() override { return static_cast<int>(filas_.size()); }
    [[nodiscard]] std::string Texto(std::string_view campo) const override {
        return campo == "DESCRIPCIO" && encontrado_ ? filas_.at(codigo_) : std::string();
    }
    [[nodiscard]] int Entero(std::string_view /*campo*/) const override { return codigo_; }
    [[nodiscard]] bool Logico(std::string_view /*campo*/) const override { return false; }
    void Indexa(std::string_view /*indice*/) override {}
    bool Busca(TClave clave) override {
        codigo_ = std::get<int>(clave.begin()->Valor);
        encontrado_ = clave.begin()->Campo == "CODIGO" && filas_.count(codigo_) != 0;
        return encontrado_;
    }
    bool Rango(TClave /*desde*/, TClave /*hasta*/) override { return true; }
    void CancelaRango() override {}
    void Filtra(std::string_view /*condicion*/) override {}

  private:
    std::map<int, std::string> filas_ = {{1, "VENDEDOR"}, {7, ""}, {99, "SIN INTERVENCION"}};
    int codigo_ = 0;
    bool encontrado_ = false;
};

class TProveedorSimulado : public TProveedorTablas {
  public:
    MOCK_METHOD(std::unique_ptr<TTabla>, Abre, (std::string_view, std::string_view, std::string_view),
                (override));
};

TEST(ActuacionInti, DescripcionONumero) {
    TTablaCodigos tabla;
    EXPECT_EQ(Actuacion_INTI(1, &tabla), "VENDEDOR");
    EXPECT_EQ(Actuacion_INTI(99, &tabla), "SIN INTERVENCION");
    EXPECT_EQ(Actuacion_INTI(7, &tabla), "7") << "an empty description is none";
    EXPECT_EQ(Actuacion_INTI(50, &tabla), "50");
    EXPECT_EQ(Actuacion_INTI(-1, &tabla), "-1");
}

TEST(ActuacionInti, SinTablaLaAbreElla) {
    TProveedorSimulado proveedor;
    const InstalaTablas instala(proveedor);
    EXPECT_CALL(proveedor, Abre(testing::Eq("NORVEX"), testing::Eq("TIPO_INT.DBF"), testing::Eq("CODIGO")))
        .WillOnce([](auto, auto, auto) { return std::make_unique<TTablaCodigos>(); });
    EXPECT_EQ(Actuacion_INTI(1), "VENDEDOR");
}

TEST(ActuacionInti, SinProveedorFalla) {
    EXPECT_THROW((void)Actuacion_INTI(1), ErrorTabla);
}

}  // namespace
}  // namespace analizador
