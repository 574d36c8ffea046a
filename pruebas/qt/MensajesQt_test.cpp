#include "adaptadores/qt/MensajesQt.h"

#include <gtest/gtest.h>

#include <QMessageBox>
#include <QPushButton>
#include <QTest>

#include "pruebas/qt/Atiende.h"

namespace analizador {
namespace {

class MensajesQt : public testing::Test {
  protected:
    // The answer to the question when the clerk does this in the box.
    static bool Responde(const std::function<void(QDialog&)>& que) {
        TMensajesQt mensajes;
        const InstalaMensajes guarda(mensajes);
        const TAtiende clerk(que);
        return Mensaje_NoSi(TITULO_ATENCION, "<b>ANA</b> se encuentra en el XML", "¿Seguir?"_ansi);
    }
    static QPushButton& Boton(QDialog& caja, const QString& texto) {
        for (auto* boton : caja.findChildren<QPushButton*>())
            if (boton->text() == texto) return *boton;
        throw std::runtime_error("no button " + texto.toStdString());
    }
};

TEST_F(MensajesQt, QuestionIsAnsweredByItsButtonsAndNoIsTheRest) {
    const auto boton = [](const char16_t* texto) {
        return [texto](QDialog& caja) { Boton(caja, QString::fromUtf16(texto)).click(); };
    };
    const auto pulsa = [](Qt::Key tecla, Qt::KeyboardModifiers con = Qt::NoModifier) {
        return [=](QDialog& caja) {
            ASSERT_TRUE(QTest::qWaitForWindowActive(&caja));
            QTest::keyClick(caja.focusWidget(), tecla, con);
        };
    };
    EXPECT_TRUE(Responde(boton(u"&Sí")));
    EXPECT_FALSE(Responde(boton(u"&No")));
    EXPECT_TRUE(Responde(pulsa(Qt::Key_S, Qt::AltModifier)));
    EXPECT_FALSE(Responde(pulsa(Qt::Key_Return)));
    EXPECT_FALSE(Responde(pulsa(Qt::Key_Escape)));
    EXPECT_FALSE(Responde([](QDialog& caja) { caja.close(); }));
}

TEST_F(MensajesQt, TextsAreShownAsTheyAre) {
    QString titulo, texto;
    Qt::TextFormat formato = Qt::AutoText;
    (void)Responde([&](QDialog& dialogo) {
        const auto& caja = dynamic_cast<QMessageBox&>(dialogo);
        titulo = caja.windowTitle();
        texto = caja.text();
        formato = caja.textFormat();
        dialogo.reject();
    });
    EXPECT_EQ(titulo, QStringLiteral(" ATENCIÓN:"));
    EXPECT_EQ(texto, QStringLiteral("<b>ANA</b> se encuentra en el XML\n¿Seguir?"));
    EXPECT_EQ(formato, Qt::PlainText);
}

TEST_F(MensajesQt, MessageStandsOverTheActiveWindowAndEnterClosesIt) {
    QWidget ventana;
    ventana.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&ventana));
    TMensajesQt mensajes;
    const QWidget* padre = nullptr;
    QStringList botones;
    const TAtiende clerk([&](QDialog& caja) {
        padre = caja.parentWidget();
        for (const auto* boton : caja.findChildren<QPushButton*>()) botones << boton->text();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&caja));
        QTest::keyClick(&caja, Qt::Key_Return);
    });
    mensajes.Muestra(TITULO_ATENCION, "La fecha introducida no es correcta");
    EXPECT_EQ(padre, &ventana);
    EXPECT_EQ(botones, QStringList{"&Aceptar"});
}

}  // namespace
}  // namespace analizador
