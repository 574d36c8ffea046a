#include "adaptadores/qt/XmlParaVer.h"

#include <gtest/gtest.h>

namespace analizador {
namespace {

TEST(XmlParaVer, WellFormedXmlIsIndented) {
    const struct {
        QString Xml;
        QString Texto;
    } casos[] = {
        {"<a/>", "<a/>"},
        {"<a></a>", "<a/>"},
        {"<a><b>1</b><c x='2' y=\"3\"/></a>", "<a>\n  <b>1</b>\n  <c x=\"2\" y=\"3\"/>\n</a>"},
        {"<a>uno<b>2</b>tres</a>", "<a>\n  uno\n  <b>2</b>\n  tres\n</a>"},
        {"<a x='di \"no\"'/>", "<a x=\"di &quot;no&quot;\"/>"},
        {"<a><!-- nota --><?p q?><![CDATA[<&]]></a>",
         "<a>\n  <!-- nota -->\n  <?p q?>\n  <![CDATA[<&]]>\n</a>"},
        {"<?xml version=\"1.0\" encoding=\"windows-1252\"?>\n<a/>",
         "<?xml version=\"1.0\" encoding=\"windows-1252\"?>\n<a/>"},
        {"<n:a xmlns:n='u'><n:b/></n:a>", "<n:a xmlns:n=\"u\">\n  <n:b/>\n</n:a>"},
    };
    for (const auto& caso : casos) {
        const auto visto = XmlParaVer(caso.Xml);
        EXPECT_EQ(visto.Texto, caso.Texto) << caso.Xml.toStdString();
        EXPECT_EQ(visto.Aviso, QString()) << caso.Xml.toStdString();
    }
}

TEST(XmlParaVer, ReferencesStandAsTheyAreWritten) {
    const QString cuerpo = "<a b=\"&lt;&#241;\">&amp;&#xF1;&gt;</a>";
    EXPECT_EQ(XmlParaVer(cuerpo).Texto, cuerpo);
    const QString propia = "<!DOCTYPE a [<!ENTITY e \"mucho\">]>\n<a>&e;</a>";
    EXPECT_EQ(XmlParaVer(propia).Texto, propia);
    EXPECT_EQ(XmlParaVer(propia).Aviso, QString());
}

TEST(XmlParaVer, EntitiesThatWouldGrowWithoutEndOrFetchAreLeftAlone) {
    QString bomba = "<!DOCTYPE a [<!ENTITY e0 \"jajajajaja\">";
    for (int i = 1; i < 30; ++i)
        bomba += QString("<!ENTITY e%1 \"&e%2;&e%2;&e%2;&e%2;&e%2;&e%2;\">").arg(i).arg(i - 1);
    bomba += "]>\n<a>&e29;</a>";
    EXPECT_EQ(XmlParaVer(bomba).Texto, bomba);
    EXPECT_EQ(XmlParaVer(bomba).Aviso, QString());

    const QString deOficio = "<!DOCTYPE a [<!ATTLIST a x CDATA \"de oficio\">]>\n<a/>";
    EXPECT_EQ(XmlParaVer(deOficio).Texto, deOficio);

    const QString ajena = "<!DOCTYPE a [<!ENTITY f SYSTEM \"file:///etc/passwd\">]>\n<a>&f;</a>";
    EXPECT_EQ(XmlParaVer(ajena).Texto, ajena);
}

TEST(XmlParaVer, WhatIsNotWellFormedStandsAsItIsWithItsPlace) {
    const struct {
        QString Xml;
        QString Sitio;
    } casos[] = {
        {"<a>\n  <b>\n</a>", "línea 3"}, {"<a>&nada;</a>", "línea 1"}, {"texto", "línea 1, columna 1"},
        {"<a/><b/>", "línea 1"},         {"<a x=1/>", "línea 1"},      {"", "línea 1"},
        {"<a>\n<b", "línea 2"},
    };
    for (const auto& caso : casos) {
        const auto visto = XmlParaVer(caso.Xml);
        EXPECT_EQ(visto.Texto, caso.Xml);
        EXPECT_TRUE(visto.Aviso.startsWith("El XML no está bien formado: " + caso.Sitio))
            << caso.Xml.toStdString() << ": " << visto.Aviso.toStdString();
    }
}

TEST(XmlParaVer, DeepNestingDoesNotMakeTheTextExplode) {
    constexpr int HONDO = 20'000;
    const QString xml = QString("<a>").repeated(HONDO) + QString("</a>").repeated(HONDO);
    EXPECT_LT(XmlParaVer(xml).Texto.size(), 200LL * HONDO);
    EXPECT_EQ(XmlParaVer(xml).Aviso, QString());
}

}  // namespace
}  // namespace analizador
