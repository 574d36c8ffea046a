#pragma once

// Opens the dBASE tables of a folder.

#include <filesystem>
#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <string_view>

#include "adaptadores/dbase/TablaDbase.h"
#include "adaptadores/dbase/TablaEnFichero.h"
#include "plataforma/Rficheros.h"
#include "plataforma/Ruttb.h"

namespace analizador {

// Every opening sees the file as it is at that moment; in between no file stays open. The content is kept in
// memory with its indexes for as long as the file's mark says that it is the same. Of a table beside which
// the order of the index asked for is noted (OrdenDbf.h) only the rows found are read, until so many searches
// were made that the whole table costs less. Usable from several threads; the tables opened must not outlive
// it.
class TProveedorDbase : public TProveedorTablas {
  public:
    // All aliases stand for one folder. `marca`: MarcaDeFichero, except in tests.
    explicit TProveedorDbase(std::filesystem::path carpeta, TTomaMarca marca = MarcaDeFichero);
    // The folder of each alias; aliases are compared without regard to case.
    explicit TProveedorDbase(const std::map<std::string, std::filesystem::path>& carpetas);

    // `fichero`: the table's file name, with or without ".DBF", found without regard to case. `indice` as
    // CamposDeIndice takes it, "" for none. Throws ErrorTabla, whose text names the table and its folder.
    [[nodiscard]] std::unique_ptr<TTabla> Abre(std::string_view alias, std::string_view fichero,
                                               std::string_view indice) override;

  private:
    // What is kept of a file; all of it of the content under the mark.
    struct TEntrada {
        std::mutex Cerrojo;
        TMarcaFichero Marca;
        bool NotaMirada = false;
        std::shared_ptr<TTablaEnFichero> EnFichero;  // none without a note
        std::shared_ptr<const TTablaEnMemoria> Tabla;
    };
    // The file that a name stands for, and its mark.
    struct TFicheroTabla {
        std::filesystem::path Ruta;
        TMarcaFichero Marca;
    };

    [[nodiscard]] TFicheroTabla BuscaFichero(const std::filesystem::path& carpeta,
                                             const std::string& nombre) const;
    static void Renueva(TEntrada& entrada, const TMarcaFichero& marca);
    static void MiraNota(TEntrada& entrada, const std::filesystem::path& ruta);
    [[nodiscard]] std::shared_ptr<const TTablaEnMemoria> Entera(TEntrada& entrada,
                                                                const std::filesystem::path& ruta) const;
    [[nodiscard]] std::filesystem::path Carpeta(std::string_view alias) const;
    [[nodiscard]] std::shared_ptr<TEntrada> Entrada(const std::filesystem::path& ruta);
    // None when the whole table is to be used.
    [[nodiscard]] std::shared_ptr<TTablaEnFichero> EnOrden(const TFicheroTabla& fichero,
                                                           std::string_view indice);
    [[nodiscard]] std::unique_ptr<TTabla> AbreEntera(const TFicheroTabla& fichero, std::string_view indice);

    TTomaMarca marca_ = MarcaDeFichero;
    std::filesystem::path comun_;
    std::map<std::string, std::filesystem::path> carpetas_;
    std::mutex cerrojo_;
    std::map<std::filesystem::path::string_type, std::shared_ptr<TEntrada>> entradas_;
};

}  // namespace analizador
