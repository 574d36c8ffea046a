#pragma once

#include <QColor>
#include <QPalette>
#include <QString>
#include <QSyntaxHighlighter>
#include <QTextDocument>

namespace analizador {

// Colours the XML of a document: tags, attributes, their values, references and what the reader passes over.
class ColoreadoXml : public QSyntaxHighlighter {
  public:
    ColoreadoXml(const QPalette& colores, QTextDocument* documento);
    // Takes the colours that can be read on another background.
    void PonPaleta(const QPalette& colores);

  protected:
    void highlightBlock(const QString& texto) override;

  private:
    enum Estado { FUERA = -1, ETIQUETA = 1, COMENTARIO, CDATA, INSTRUCCION };
    [[nodiscard]] qsizetype ColoreaFuera(const QString& texto, qsizetype desde);
    [[nodiscard]] qsizetype ColoreaEtiqueta(const QString& texto, qsizetype desde);
    [[nodiscard]] qsizetype ColoreaHasta(const QString& texto, qsizetype desde, const char* cierre);
    void Pinta(qsizetype desde, qsizetype hasta, const QColor& color);

    struct TColores {
        QColor Etiqueta, Atributo, Valor, Referencia, Comentario;
    } colores_;
};

}  // namespace analizador
