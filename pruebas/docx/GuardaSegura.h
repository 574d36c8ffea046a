#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "adaptadores/docx/FicheroDocx.h"
#include "pruebas/docx/ConstruyeDocx.h"

namespace analizador::pruebas {

inline const std::vector<TMarcador> MARCADORES = {{"M", {0, 1}}};

// A document to be saved, in a folder of its own.
class GuardaSegura : public testing::Test {
  protected:
    GuardaSegura() { EscribeDocumento(Fichero, "<w:p><w:r><w:t>Escritura</w:t></w:r></w:p>"); }

    // The message of the refusal; empty when it was saved.
    std::string Rechazo(TFicheroDocx& documento, const std::filesystem::path& destino, bool forzar = false) {
        try {
            documento.Guarda(MARCADORES, destino, {forzar});
        } catch (const ErrorDocumento& error) {
            return error.what();
        }
        return {};
    }

    [[nodiscard]] static bool TieneMarcador(const std::filesystem::path& fichero) {
        return TFicheroDocx(fichero).Contenido().Marcadores == MARCADORES;
    }

    TCarpeta Carpeta;
    std::filesystem::path Fichero = Carpeta / "escritura de venta.docx";
};

}  // namespace analizador::pruebas
