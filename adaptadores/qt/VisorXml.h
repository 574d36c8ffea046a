#pragma once

#include <QEvent>
#include <QString>
#include <QWidget>
#include <filesystem>

#include "adaptadores/qt/ColoreadoXml.h"

class QLabel;
class QPlainTextEdit;

namespace analizador {

// Shows XML, read only: indented and coloured, or as it stands under a line that tells where it is not well
// formed. Nothing is fetched and no entity replaced.
class VisorXml : public QWidget {
  public:
    explicit VisorXml(QWidget* padre = nullptr);

    void MuestraTexto(const QString& xml);
    // A file that cannot be read leaves the text empty and is told in the line above.
    void MuestraFichero(const std::filesystem::path& fichero);

    [[nodiscard]] QString Texto() const;
    // The line above; empty when there is none.
    [[nodiscard]] QString Aviso() const;

  protected:
    void changeEvent(QEvent* evento) override;

  private:
    void Pon(const QString& texto, const QString& aviso);

    QLabel& aviso_;
    QPlainTextEdit& texto_;
    ColoreadoXml& coloreado_;
};

}  // namespace analizador
