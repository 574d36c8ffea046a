#pragma once

// The file of a table and what is kept of it in memory.

#include <filesystem>
#include <memory>
#include <mutex>
#include <string>
#include <string_view>

#include "adaptadores/dbase/TablaDbase.h"
#include "adaptadores/dbase/TablaEnFichero.h"
#include "plataforma/Rficheros.h"
#include "plataforma/Ruttb.h"

namespace analizador {

// The content is kept with its indexes for as long as the file's mark says that it is the same. Of a table
// beside which the order of the index asked for is noted (OrdenDbf.h) only the rows found are read, until so
// many searches were made that the whole table costs less. Usable from several threads; the tables opened
// keep it alive.
class TFicheroTabla : public std::enable_shared_from_this<TFicheroTabla> {
  public:
    // `tomaMarca`: MarcaDeFichero, except in tests.
    TFicheroTabla(std::filesystem::path ruta, TTomaMarca tomaMarca);

    // Opens the table as it is now, `marca` being its mark taken just before; `indice` as CamposDeIndice
    // takes it, "" for none. Throws ErrorTabla.
    [[nodiscard]] std::unique_ptr<TTabla> Abre(const TMarcaFichero& marca, std::string_view indice);

  private:
    [[nodiscard]] std::unique_ptr<TTabla> AbreEntera(const TMarcaFichero& marca, std::string_view indice);
    [[nodiscard]] std::shared_ptr<TTablaEnFichero> EnOrden(const TMarcaFichero& marca,
                                                           std::string_view indice);
    void Renueva(const TMarcaFichero& marca);
    void MiraNota();
    void LeeEntera();

    std::filesystem::path ruta_;
    TTomaMarca tomaMarca_;
    std::mutex cerrojo_;
    TMarcaFichero marca_;  // of all that follows
    bool notaMirada_ = false;
    std::shared_ptr<TTablaEnFichero> enFichero_;  // none without a note
    std::shared_ptr<const TTablaEnMemoria> entera_;
};

// A path as table messages name it, Windows-1252.
[[nodiscard]] std::string AnsiDeRuta(const std::filesystem::path& ruta);

// With the letters a to z in capitals, as the names of tables are compared.
[[nodiscard]] std::string EnMayusculas(std::string_view texto);

}  // namespace analizador
