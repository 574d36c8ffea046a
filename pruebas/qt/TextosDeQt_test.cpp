#include "adaptadores/qt/TextosDeQt.h"

#include <gtest/gtest.h>

#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <memory>

namespace analizador {
namespace {

// The entries of a menu, without the keys that Qt writes behind them.
QStringList Entradas(const QMenu& menu) {
    QStringList entradas;
    for (const auto* accion : menu.actions())
        if (!accion->isSeparator()) entradas << accion->text().section('\t', 0, 0);
    return entradas;
}

TEST(TextosDeQt, MenusOfBoxesAreCastilianWhileItLives) {
    const QStringList castellano = {"&Deshacer", "&Rehacer", "Cor&tar",         "&Copiar",
                                    "&Pegar",    "Eliminar", "Seleccionar todo"};
    QLineEdit caja;
    QPlainTextEdit texto;
    {
        const TTextosDeQt textos;
        EXPECT_EQ(Entradas(*std::unique_ptr<QMenu>(caja.createStandardContextMenu())), castellano);
        EXPECT_EQ(Entradas(*std::unique_ptr<QMenu>(texto.createStandardContextMenu())), castellano);
    }
    EXPECT_FALSE(Entradas(*std::unique_ptr<QMenu>(caja.createStandardContextMenu())).contains("&Copiar"));
}

TEST(TextosDeQt, OtherTextsAreLeftToOthers) {
    const TTextosDeQt textos;
    EXPECT_TRUE(textos.translate("QLineEdit", "&Something else").isNull());
    EXPECT_TRUE(textos.translate("Host", "&Copy").isNull());
    EXPECT_EQ(textos.translate("QScrollBar", "Page down"), QStringLiteral("Página siguiente"));
}

}  // namespace
}  // namespace analizador
