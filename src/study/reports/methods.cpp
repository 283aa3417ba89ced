#include <array>

#include "study/reports/sections.h"

namespace study::reports {

namespace {

struct Method {
  std::string_view title;
  std::string_view text;
};

// As docs/methods.md has them.
constexpr std::array kMethods{
    Method{"Recuentos",
           "La población y las defunciones se cuentan por año, zona básica de salud, sexo, grupo de edad y causa. Una "
           "provincia es la suma de sus zonas y la región la de todas; ambos sexos, la de hombres y mujeres. Ninguna "
           "tasa es la media de otras."},
    Method{"Tasa bruta y tasas específicas",
           "Tasa bruta = D/N × 100.000, con D defunciones y N personas. La tasa específica de un grupo de edad es la "
           "misma razón dentro del grupo."},
    Method{
        "Tasa estandarizada",
        "Método directo: la tasa que tendría la población con las edades de la población estándar. Con d "
        "defunciones, n personas y w pesos de la población estándar por grupo de edad, y W su suma: tasa = Σ(w·d/n)/W "
        "× 100.000; varianza = Σ(w²·d/n²)/W² × 100.000². Un grupo de edad sin personas cuenta como si no "
        "tuviera defunciones. N. Breslow, N. Day, Statistical Methods in Cancer Research, vol. II, IARC, Lyon 1987."},
    Method{
        "Límites de confianza del 95 %",
        "Límites de Poisson del número de defunciones por la aproximación de Byar (Breslow y Day, p. 69), trasladados "
        "a la tasa: límite = tasa + √(varianza/D) × (límite(D) − D). A. Dobson y otros, Statistics in Medicine 10 "
        "(1991), 457-462. El límite inferior no baja de 0. Sin defunciones, la escala es la que tendrían si se "
        "repartieran por edades como la población."},
    Method{"Años de vida potencialmente perdidos",
           "Cada defunción antes de los 70 años pierde 70 menos el punto medio de su grupo de edad. La tasa es por "
           "100.000 personas menores de 70 años y no está estandarizada. De un grupo que rebasa los 70 años cuenta la "
           "parte anterior; un grupo abierto no cuenta. J.-M. Romeder, J. McWhinnie, International Journal of "
           "Epidemiology 6 (1977), 143-151; aquí, desde el nacimiento."},
};

}  // namespace

void addMethods(Flow& flow, const ReportData& data) {
  const Study& study = data.study();
  flow.section("Métodos");
  for (const Method& method : kMethods) {
    flow.subsection(method.title, 40);
    flow.paragraphs(method.text);
    if (method.title == "Tasa estandarizada" && !study.standard.name.empty()) {
      flow.paragraphs("Población estándar: " + study.standard.name + ".");
    }
  }
  flow.subsection("Tasas inestables y cifras que no se publican", 40);
  std::string text = "Una tasa que se basa en menos de " + std::to_string(kStableDeaths) +
                     " defunciones se marca como inestable (*): su error estándar relativo supera el 22 %. R. Klein y "
                     "otros, Statistical Notes 24, National Center for Health Statistics, 2002.";
  if (study.suppressBelow > 0) {
    text += " Las cifras que se basan en alguna defunción, pero en menos de " + std::to_string(study.suppressBelow) +
            ", no se publican, ni tampoco las que permitirían deducirlas: (s) en las tablas, sin datos en los mapas.";
  }
  flow.paragraphs(text);
  flow.subsection("Mapas", 40);
  flow.paragraphs(
      "Las clases son los quintiles, con límites redondeados, de las tasas mayores que 0 de todos los años, en los que "
      "hombres, mujeres y ambos sexos pesan lo mismo; las tasas que son 0 están en la primera clase. Son las mismas "
      "para "
      "todos los años y sexos, como en los mapas temáticos de la aplicación, para que los mapas se puedan comparar.");
  if (study.texts.methodology.text.empty()) return;
  const std::string& title = study.texts.methodology.title;
  flow.subsection("Del estudio: " + (title.empty() ? std::string("Metodología") : title), 40);
  flow.paragraphs(study.texts.methodology.text);
}

}  // namespace study::reports
