#include "study/pages/documents.h"

#include <gtest/gtest.h>

#include <array>

#include "study/pages/test_html.h"
#include "study/pages/test_study.h"

namespace study::pages {
namespace {

using PageOf = std::string (*)(const Study&);
constexpr std::array<PageOf, 5> kPages{presentationPage, methodologyPage, usePage, creditsPage, helpPage};

bool holds(const std::string& html, const std::string& text) { return html.find(text) != std::string::npos; }

TEST(Documents, AreWellFormedAndQuiet) {
  Study study = testStudy();
  study.suppressBelow = 5;
  for (const PageOf page : kPages) {
    const std::string html = page(study);
    EXPECT_EQ(faultOf(html), "");
    EXPECT_TRUE(holds(html, "<meta charset=\"utf-8\">"));
    for (const char* no : {"<script", "<link", "http://", "https://", "src="}) EXPECT_FALSE(holds(html, no)) << no;
  }
}

TEST(Documents, OpenWithWhatTheSettingsSay) {
  Study study = testStudy();
  DocumentTexts& texts = study.texts;
  for (DocumentText* text : {&texts.presentation, &texts.methodology, &texts.use, &texts.credits, &texts.help}) {
    *text = {"El <título>", "Uno & dos\nseguido.\n\n  \nTres."};
  }
  texts.source = "Registro \"de prueba\"";
  for (const PageOf page : kPages) {
    const std::string html = page(study);
    EXPECT_TRUE(holds(html, "<title>El &lt;título&gt;</title>"));
    EXPECT_TRUE(holds(html, "<h1>El &lt;título&gt;</h1>\n<p>Uno &amp; dos seguido.</p>\n<p>Tres.</p>\n"));
    EXPECT_TRUE(holds(html, "Fuente: Registro &quot;de prueba&quot;</p>"));
    EXPECT_EQ(faultOf(html), "");
  }
}

TEST(Documents, PresentationTellsTheStudysNumbers) {
  Study study = testStudy();
  std::string html = presentationPage(study);
  EXPECT_TRUE(holds(html, "comprende el año 1999 y divide Veldoria en 3 provincias y 6 zonas básicas de salud."));
  EXPECT_TRUE(holds(html, "informe en formato PDF del año 1999, en el menú"));
  EXPECT_EQ(rowsOf(html, "1999"), (std::vector<std::string>{"240.000 120.000 120.000 233 33 200"}));

  study.years = {1999, 2000, 2002};
  study.counts.resize(3, study.counts.front());
  html = presentationPage(study);
  EXPECT_TRUE(holds(html, "comprende los años 1999, 2000 y 2002"));
  EXPECT_TRUE(holds(html, "PDF de cada uno de los años 1999 y 2000, en el menú"));
  EXPECT_TRUE(holds(html, "Mortalidad en Veldoria 1999, 2000, 2002"));
}

TEST(Documents, UseTellsOfTheReportsThatThereAre) {
  Study study = testStudy();
  EXPECT_TRUE(holds(usePage(study), "el informe en PDF del año 1999."));
  study.years = {2002};
  EXPECT_TRUE(holds(usePage(study), "no hay informes en PDF"));
  study.years = {1999, 2000, 2001, 2002};
  EXPECT_TRUE(holds(usePage(study), "los informes en PDF de los años 1999, 2000 y 2001."));
}

TEST(Documents, MethodologyTellsTheStudysMethods) {
  Study study = testStudy();
  std::string html = methodologyPage(study);
  EXPECT_TRUE(holds(html, "Población estándar: población de prueba."));
  EXPECT_EQ(rowsOf(html, "0-49"), (std::vector<std::string>{"1"}));
  EXPECT_TRUE(holds(html, "«Grandes grupos»: 2 causas; suman todas las defunciones."));
  EXPECT_TRUE(holds(html, "«Lista reducida»: 1 causa; no suman el total"));
  EXPECT_TRUE(holds(html, "El estudio publica todas las cifras"));
  study.suppressBelow = 5;
  html = methodologyPage(study);
  EXPECT_TRUE(holds(html, "no se publican los números de 1 a 4 defunciones"));
}

TEST(Documents, HelpExplainsEveryButton) {
  const std::string html = helpPage(testStudy());
  for (const char* button :
       {"Zoom+", "Zoom-", "Desplazamiento", "Información", "Etiquetado", "Medir Distancias",
        "Arrastrar Mapa a otra aplicación", "Imprimir Mapa", "Ayuda", "Ver Mapa Completo", "Ver la Tabla",
        "Exportar Tabla", "Ver Toda la Capa...", "Borrar Etiquetas...", "Quitar Selección..."}) {
    EXPECT_TRUE(holds(html, "<dt>" + std::string(button) + "</dt>")) << button;
  }
  // The index leads to headings that are there.
  std::size_t links = 0;
  for (std::size_t at = html.find("href=\"#"); at != std::string::npos; at = html.find("href=\"#", at + 1)) {
    const std::size_t from = at + 7;
    EXPECT_TRUE(holds(html, "<h2 id=\"" + html.substr(from, html.find('"', from) - from) + "\">"));
    ++links;
  }
  EXPECT_EQ(links, 6U);
}

}  // namespace
}  // namespace study::pages
