#pragma once

// Opens the dBASE tables of a folder.

#include <filesystem>
#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <string_view>
#include <utility>

#include "adaptadores/dbase/FicheroTabla.h"
#include "plataforma/Rficheros.h"
#include "plataforma/Ruttb.h"

namespace analizador {

// Every opening sees the file as it is at that moment; in between no file stays open, and its content is kept
// (FicheroTabla.h). Usable from several threads.
class TProveedorDbase : public TProveedorTablas {
  public:
    // All aliases stand for one folder. `tomaMarca`: MarcaDeFichero, except in tests.
    explicit TProveedorDbase(std::filesystem::path carpeta, TTomaMarca tomaMarca = MarcaDeFichero);
    // The folder of each alias; aliases are compared without regard to case.
    explicit TProveedorDbase(const std::map<std::string, std::filesystem::path>& carpetas);

    // `fichero`: the table's file name, with or without ".DBF", found without regard to case. `indice` as
    // CamposDeIndice takes it, "" for none. Throws ErrorTabla, whose text names the table and its folder.
    [[nodiscard]] std::unique_ptr<TTabla> Abre(std::string_view alias, std::string_view fichero,
                                               std::string_view indice) override;

  private:
    [[nodiscard]] std::filesystem::path Carpeta(std::string_view alias) const;
    [[nodiscard]] std::pair<std::filesystem::path, TMarcaFichero> BuscaFichero(
        const std::filesystem::path& carpeta, const std::string& nombre) const;
    [[nodiscard]] std::shared_ptr<TFicheroTabla> Fichero(const std::filesystem::path& ruta);

    TTomaMarca tomaMarca_ = MarcaDeFichero;
    std::filesystem::path comun_;
    std::map<std::string, std::filesystem::path> carpetas_;
    std::mutex cerrojo_;
    std::map<std::filesystem::path::string_type, std::shared_ptr<TFicheroTabla>> ficheros_;
};

}  // namespace analizador
