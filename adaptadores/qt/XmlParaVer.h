#pragma once

// An XML text made ready to be read by people.

#include <QString>

namespace analizador {

struct TXmlParaVer {
    QString Texto;  // one element a line, indented; as it was given when it is not well formed
    QString Aviso;  // in Castilian, where the text stops being well formed; empty when it is
};

// Nothing is fetched and no entity replaced: references stand as they are written.
[[nodiscard]] TXmlParaVer XmlParaVer(const QString& xml);

}  // namespace analizador
