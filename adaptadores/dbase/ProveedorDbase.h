#pragma once

// Opens the dBASE tables of a folder.

#include <filesystem>
#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <string_view>

#include "adaptadores/dbase/TablaDbase.h"
#include "plataforma/Rficheros.h"
#include "plataforma/Ruttb.h"

namespace analizador {

// Every opening sees the file as it is at that moment; in between no file stays open. The content is kept in
// memory with its indexes for as long as the file's mark says that it is the same; of a table noted to lie in
// the order of the index asked for (OrdenDbf.h) only the rows of the ranges are read. Usable from several
// threads; the tables opened must not outlive it.
class TProveedorDbase : public TProveedorTablas {
  public:
    // All aliases stand for one folder.
    explicit TProveedorDbase(std::filesystem::path carpeta);
    // The folder of each alias; aliases are compared without regard to case.
    explicit TProveedorDbase(const std::map<std::string, std::filesystem::path>& carpetas);

    // `fichero`: the table's file name, with or without ".DBF", found without regard to case. `indice` as
    // CamposDeIndice takes it, "" for none. Throws ErrorTabla, whose text names the table and its folder.
    [[nodiscard]] std::unique_ptr<TTabla> Abre(std::string_view alias, std::string_view fichero,
                                               std::string_view indice) override;

  private:
    struct TEntrada {
        std::mutex Cerrojo;
        TMarcaFichero Marca;
        std::shared_ptr<const TTablaEnMemoria> Tabla;
        TMarcaFichero MarcaOrden;
        std::string Orden;  // the note that counted for that mark; empty: none so far
    };

    [[nodiscard]] std::filesystem::path Carpeta(std::string_view alias) const;
    [[nodiscard]] std::shared_ptr<TEntrada> Entrada(const std::filesystem::path& ruta);
    [[nodiscard]] bool EstaEnOrden(const std::filesystem::path& ruta, const TMarcaFichero& marca,
                                   std::string_view indice);
    [[nodiscard]] std::shared_ptr<const TTablaEnMemoria> Tabla(const std::filesystem::path& ruta);

    std::filesystem::path comun_;
    std::map<std::string, std::filesystem::path> carpetas_;
    std::mutex cerrojo_;
    std::map<std::filesystem::path, std::shared_ptr<TEntrada>> entradas_;
};

}  // namespace analizador
