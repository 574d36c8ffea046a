#include "adaptadores/qt/XmlParaVer.h"

#include <QRegularExpression>
#include <QXmlStreamReader>
#include <algorithm>

namespace analizador {

namespace {

constexpr int SANGRIA = 2;
constexpr int SANGRIA_MAXIMA = 40;  // levels: deeper ones stand below each other, so that no text explodes

// Entity references hidden from the reader, which would replace them by what the document itself says they
// stand for: a few lines can so be made to grow without end. Each "&" that begins one becomes a character
// that the text does not hold.
class TReferenciasTapadas {
  public:
    explicit TReferenciasTapadas(const QString& xml) {
        while (xml.contains(tapa_) && tapa_ < QChar(0xF8FF)) tapa_ = QChar(tapa_.unicode() + 1);
        // Without a document type no other names exist than the five, and the reader tells it.
        static const QRegularExpression CUALQUIERA(
            QStringLiteral("&(?=(?:#[0-9]+|#x[0-9A-Fa-f]+|[\\w:][\\w:.-]*);)"),
            QRegularExpression::UseUnicodePropertiesOption);
        static const QRegularExpression CONOCIDAS(
            QStringLiteral("&(?=(?:#[0-9]+|#x[0-9A-Fa-f]+|lt|gt|amp|quot|apos);)"));
        texto_ = xml;
        texto_.replace(xml.contains(QLatin1String("<!DOCTYPE")) ? CUALQUIERA : CONOCIDAS, tapa_);
    }
    [[nodiscard]] const QString& Texto() const { return texto_; }
    [[nodiscard]] QString Destapa(QString texto) const { return texto.replace(tapa_, QChar('&')); }

  private:
    QChar tapa_{0xE000};
    QString texto_;
};

class TSangrador {
  public:
    void Anade(const QXmlStreamReader& lector) {
        switch (lector.tokenType()) {
            case QXmlStreamReader::StartDocument:
                Declaracion(lector);
                break;
            case QXmlStreamReader::DTD:
                Linea(lector.text().toString());
                break;
            case QXmlStreamReader::StartElement:
                Abre(lector);
                break;
            case QXmlStreamReader::EndElement:
                Cierra(lector.qualifiedName().toString());
                break;
            case QXmlStreamReader::Characters:
                Letras(lector);
                break;
            case QXmlStreamReader::Comment:
                Linea("<!--" + lector.text().toString() + "-->");
                break;
            case QXmlStreamReader::ProcessingInstruction:
                Instruccion(lector);
                break;
            default:
                break;
        }
    }
    [[nodiscard]] const QString& Texto() const { return texto_; }

  private:
    void Linea(const QString& contenido) {
        Vacia();
        Escribe(contenido);
        recienAbierto_ = false;
    }
    void Escribe(const QString& contenido) {
        if (!texto_.isEmpty()) texto_ += '\n';
        texto_ += QString(std::min(nivel_, SANGRIA_MAXIMA) * SANGRIA, ' ') + contenido;
    }
    // Letters that stand among elements get lines of their own.
    void Vacia() {
        const QString letras = letras_.trimmed();
        letras_.clear();
        if (!letras.isEmpty()) Escribe(letras);
    }
    void Declaracion(const QXmlStreamReader& lector) {
        if (lector.documentVersion().isEmpty()) return;
        QString linea = "<?xml version=\"" + lector.documentVersion().toString() + '"';
        if (!lector.documentEncoding().isEmpty())
            linea += " encoding=\"" + lector.documentEncoding().toString() + '"';
        if (lector.isStandaloneDocument()) linea += QLatin1String(" standalone=\"yes\"");
        Linea(linea + "?>");
    }
    void Instruccion(const QXmlStreamReader& lector) {
        const QString datos = lector.processingInstructionData().toString();
        Linea("<?" + lector.processingInstructionTarget().toString() + (datos.isEmpty() ? "" : " ") + datos +
              "?>");
    }
    void Abre(const QXmlStreamReader& lector) {
        QString etiqueta = '<' + lector.qualifiedName().toString();
        for (const auto& atributo : lector.attributes())
            if (!atributo.isDefault())
                etiqueta += ' ' + atributo.qualifiedName().toString() + "=\"" +
                            atributo.value().toString().replace('"', QLatin1String("&quot;")) + '"';
        Linea(etiqueta + '>');
        ++nivel_;
        recienAbierto_ = true;
    }
    // An element without elements stays on its line.
    void Cierra(const QString& nombre) {
        --nivel_;
        if (recienAbierto_ && letras_.isEmpty()) {
            texto_.chop(1);
            texto_ += QLatin1String("/>");
        } else if (recienAbierto_) {
            texto_ += letras_ + "</" + nombre + '>';
            letras_.clear();
        } else {
            ++nivel_;
            Vacia();
            --nivel_;
            Escribe("</" + nombre + '>');
        }
        recienAbierto_ = false;
    }
    void Letras(const QXmlStreamReader& lector) {
        const QString letras = lector.text().toString();
        letras_ += lector.isCDATA() ? "<![CDATA[" + letras + "]]>" : letras;
    }

    QString texto_;
    QString letras_;
    int nivel_ = 0;
    bool recienAbierto_ = false;
};

}  // namespace

TXmlParaVer XmlParaVer(const QString& xml) {
    const TReferenciasTapadas tapadas(xml);
    QXmlStreamReader lector(tapadas.Texto());
    lector.setNamespaceProcessing(false);
    TSangrador sangrador;
    while (!lector.atEnd()) {
        lector.readNext();
        sangrador.Anade(lector);
    }
    if (!lector.hasError()) return {tapadas.Destapa(sangrador.Texto()), {}};
    return {xml, QStringLiteral("El XML no está bien formado: línea %1, columna %2.")
                     .arg(lector.lineNumber())
                     .arg(std::max<qint64>(1, lector.columnNumber()))};
}

}  // namespace analizador
