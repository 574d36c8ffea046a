// How fast all entries of all sections of a vocabulary are found in a text: as the recognisers look for them,
// one entry after another, and with Hyperscan, all at once. Counts the matches of both, overlapping ones
// included, and ends with 1 when they differ.

#include <hs.h>

#include <CLI/CLI.hpp>
#include <cstdio>
#include <ctime>
#include <memory>
#include <new>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "adaptadores/docx/FicheroDocx.h"
#include "plataforma/Encuentra.h"
#include "plataforma/FicheroIni.h"
#include "plataforma/Rut.h"

namespace {

using namespace analizador;

std::vector<std::string> Entradas(const TFicheroIni& vocabulario) {
    std::vector<std::string> entradas;
    for (const auto& seccion : vocabulario.Secciones())
        for (const std::string& entrada : vocabulario.Palabras(seccion.Nombre))
            if (!entrada.empty()) entradas.push_back(entrada);
    return entradas;
}

std::size_t UnaAUna(const std::vector<std::string>& entradas, std::string_view texto) {
    std::size_t cuenta = 0;
    for (const std::string& entrada : entradas)
        for (auto p = Encuentra(texto, entrada); p != std::string_view::npos;
             p = Encuentra(texto, entrada, p + 1))
            ++cuenta;
    return cuenta;
}

class THyperscan {
  public:
    explicit THyperscan(const std::vector<std::string>& entradas) {
        std::vector<const char*> textos;
        std::vector<std::size_t> longitudes;
        std::vector<unsigned> numeros;
        for (const std::string& entrada : entradas) {
            numeros.push_back(static_cast<unsigned>(textos.size()));
            textos.push_back(entrada.data());
            longitudes.push_back(entrada.size());
        }
        const std::vector<unsigned> opciones(textos.size(), 0);
        hs_database_t* base = nullptr;
        hs_compile_error_t* error = nullptr;
        if (hs_compile_lit_multi(textos.data(), opciones.data(), numeros.data(), longitudes.data(),
                                 static_cast<unsigned>(textos.size()), HS_MODE_BLOCK, nullptr, &base,
                                 &error) != HS_SUCCESS)
            throw std::runtime_error(error->message);
        base_.reset(base);
        hs_scratch_t* espacio = nullptr;
        if (hs_alloc_scratch(base, &espacio) != HS_SUCCESS) throw std::bad_alloc();
        espacio_.reset(espacio);
    }

    [[nodiscard]] std::size_t Cuenta(std::string_view texto) const {
        std::size_t cuenta = 0;
        const auto suma = [](unsigned, unsigned long long, unsigned long long, unsigned, void* donde) {
            ++*static_cast<std::size_t*>(donde);
            return 0;
        };
        if (hs_scan(base_.get(), texto.data(), static_cast<unsigned>(texto.size()), 0, espacio_.get(), suma,
                    &cuenta) != HS_SUCCESS)
            throw std::runtime_error("hs_scan");
        return cuenta;
    }

  private:
    struct TLibera {
        void operator()(hs_database_t* base) const { hs_free_database(base); }
        void operator()(hs_scratch_t* espacio) const { hs_free_scratch(espacio); }
    };
    std::unique_ptr<hs_database_t, TLibera> base_;
    std::unique_ptr<hs_scratch_t, TLibera> espacio_;
};

// Microseconds of processor of one run.
template <class TTrabajo>
double Mide(const TTrabajo& trabajo) {
    constexpr double BASTANTE = 0.05;
    const std::clock_t principio = std::clock();
    volatile std::size_t cuenta = 0;  // kept, so that the work is done
    int veces = 0;
    double gastado = 0;
    for (; gastado < BASTANTE; ++veces) {
        cuenta = cuenta + trabajo();
        gastado = static_cast<double>(std::clock() - principio) / CLOCKS_PER_SEC;
    }
    return gastado / veces * 1e6;
}

}  // namespace

int main(int argc, char** argv) {
    CLI::App orden("Finds the entries of a vocabulary in a deed, one by one and with Hyperscan");
    std::string vocabulario;
    std::string documento;
    int vueltas = 9;
    orden.add_option("VOCABULARIO", vocabulario, "an .INI file")->required();
    orden.add_option("DOCUMENTO", documento, "a document")->required();
    orden.add_option("--vueltas", vueltas, "by turns, so many times");
    CLI11_PARSE(orden, argc, argv);
    try {
        const auto entradas = Entradas(*AbreFicheroIni(vocabulario));
        const std::string texto = Pliega(TFicheroDocx(documento).Contenido().Texto);
        const THyperscan hyperscan(entradas);
        const std::size_t nuestras = UnaAUna(entradas, texto);
        const std::size_t suyas = hyperscan.Cuenta(texto);
        std::printf("%zu\t%zu\t%zu\t%zu\n", entradas.size(), texto.size(), nuestras, suyas);
        for (int i = 0; i < vueltas; ++i) {
            const double una = Mide([&] { return UnaAUna(entradas, texto); });
            const double otra = Mide([&] { return hyperscan.Cuenta(texto); });
            std::printf("%.3f\t%.3f\n", una, otra);
        }
        return nuestras == suyas ? 0 : 1;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "mide_busqueda: %s\n", error.what());
        return 1;
    }
}
