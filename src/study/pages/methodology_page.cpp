#include "study/methods/figure.h"
#include "study/pages/documents.h"
#include "study/pages/prose.h"
#include "study/pages/year_figures.h"
#include "text/spanish_number.h"

namespace study::pages {

namespace {

// Weights are numbers of any sum: whole ones are shown as such.
Cell weightCell(double weight) {
  const auto whole = static_cast<long>(weight);
  if (static_cast<double>(whole) == weight) return countCell(whole);
  return {text::spanishNumber(weight, 4)};
}

Sheet standardSheet(const Study& study) {
  Sheet sheet{"Grupos de edad y población estándar", "Edad (años cumplidos)", {{"", "Peso"}}, {}};
  for (std::size_t age = 0; age < study.ages.size(); ++age) {
    sheet.rows.push_back({RowKind::figures, study.ages[age].name, {weightCell(study.standard.weights[age])}});
  }
  return sheet;
}

std::string listSentence(const Study& study, std::string_view list) {
  const std::size_t causes = causeRows(study, list, kSexChoices[0]).size();
  const std::string what = causes == 1 ? "1 causa" : std::to_string(causes) + " causas";
  if (addsUp(study.causes, list)) return "«" + std::string(list) + "»: " + what + "; suman todas las defunciones.";
  return "«" + std::string(list) + "»: " + what +
         "; no suman el total, porque no abarcan todas las defunciones o porque unas comprenden a otras.";
}

void describeCounts(Prose& prose, const Study& study) {
  prose.heading("Recuento y unidades");
  prose.paragraph(
      "Las personas y las defunciones se cuentan por año, zona básica de salud, sexo, grupo de edad y causa. Todo lo "
      "demás se obtiene sumando esos números antes de dividir: «Ambos sexos» es la suma de hombres y mujeres, una "
      "provincia la de sus zonas, y Veldoria la de todas. Ninguna tasa es la media de otras tasas.");
  prose.heading("Causas de muerte");
  prose.paragraph("Cada defunción tiene una sola causa. Las causas se publican en dos listas:");
  prose.list({listSentence(study, kBroadGroups), listSentence(study, kReducedList)});
  prose.paragraph(
      "Una causa de la que un sexo no puede morir no tiene cifras de ese sexo; su tasa de ambos sexos lo es sobre la "
      "población de los dos.");
}

void describeRates(Prose& prose, const Study& study) {
  prose.heading("Tasas");
  prose.paragraph(
      "En las fórmulas, dᵢ son las defunciones y nᵢ las personas del grupo de edad i, wᵢ el peso del grupo en la "
      "población estándar, y D, N y W sus sumas. Las tasas se dan por 100.000 personas y año.");
  prose.paragraph("Tasa bruta:");
  prose.formula("TB = 100.000 × D / N");
  prose.paragraph("Tasa específica de un grupo de edad:");
  prose.formula("Tᵢ = 100.000 × dᵢ / nᵢ");
  prose.paragraph(
      "Tasa estandarizada por el método directo: la que tendría el lugar si su población tuviera las edades de la "
      "población estándar. Var es su varianza, tomando las defunciones de cada grupo como un recuento de Poisson [1].");
  prose.formula("TE = 100.000 × Σ (wᵢ dᵢ / nᵢ) / W");
  prose.formula("Var = 100.000² × Σ (wᵢ² dᵢ / nᵢ²) / W²");
  prose.paragraph("Población estándar: " + study.standard.name +
                  ". Las tasas estandarizadas con poblaciones distintas no son comparables.");
  prose.table(standardSheet(study));
  prose.paragraph(
      "Un grupo de edad sin población cuenta como un grupo sin defunciones. Un lugar sin población de un sexo no tiene "
      "tasas de ese sexo.");
}

void describeLimits(Prose& prose) {
  prose.heading("Límites de confianza");
  prose.paragraph(
      "Las tablas de indicadores dan los límites del 95 % de la tasa estandarizada. Se calculan con la aproximación de "
      "Byar a los límites exactos de un número D de defunciones [1], con z = 1,959964:");
  prose.formula("Inferior(D) = D × (1 − 1 / (9 D) − z / (3 √D))³");
  prose.formula("Superior(D) = (D + 1) × (1 − 1 / (9 (D + 1)) + z / (3 √(D + 1)))³");
  prose.paragraph("y se trasladan a la tasa por el método de Dobson [2]:");
  prose.formula("Límite de TE = TE + √(Var / D) × (Límite(D) − D)");
  prose.paragraph(
      "El límite inferior nunca es menor que 0. Sin defunciones, la tasa y el límite inferior son 0 y, en lugar de "
      "√(Var "
      "/ D), se toma lo que valdría si las defunciones se repartieran por edades como la población.");
}

void describeLifeLost(Prose& prose) {
  prose.heading("Años de vida potencialmente perdidos");
  prose.paragraph(
      "Cada defunción anterior a los 70 años pierde los que van del punto medio de su grupo de edad, mᵢ, hasta los 70 "
      "[3], contando desde el nacimiento:");
  prose.formula("AVPP = Σ dᵢ × (70 − mᵢ)");
  prose.formula("Tasa de AVPP = 100.000 × AVPP / población menor de 70 años");
  prose.paragraph(
      "La tasa de AVPP no está estandarizada. De un grupo de edad que comience antes de los 70 y termine después solo "
      "cuenta la parte anterior; un grupo abierto no cuenta nunca.");
}

void describeCare(Prose& prose, const Study& study) {
  prose.heading("Cifras pequeñas");
  prose.paragraph(
      "Las tasas basadas en menos de " + std::to_string(kStableDeaths) +
      " defunciones son inestables: su error estándar relativo pasa del 22 % [4]. Las tablas las señalan con "
      "un asterisco.");
  if (study.suppressBelow <= 0) return prose.paragraph("El estudio publica todas las cifras, también las pequeñas.");
  prose.paragraph("Para proteger a las personas no se publican los números de 1 a " +
                  std::to_string(study.suppressBelow - 1) +
                  " defunciones, ni lo que se calcula con ellos. Las tablas ocultan además las cifras que permitirían "
                  "deducirlos restando; unas y otras llevan la marca " +
                  kHiddenMark + ".");
}

void describeShares(Prose& prose) {
  prose.heading("Porcentajes");
  prose.paragraph(
      "La distribución de las defunciones da, de cada causa, el porcentaje que representa en todas las defunciones del "
      "mismo lugar, sexo y año.");
}

void citeSources(Prose& prose) {
  prose.heading("Bibliografía");
  prose.list({
      "[1] Breslow NE, Day NE. Statistical Methods in Cancer Research, vol. II. IARC Scientific Publications 82. Lyon, "
      "1987.",
      "[2] Dobson AJ, Kuulasmaa K, Eberle E, Scherer J. Confidence intervals for weighted sums of Poisson parameters. "
      "Statistics in Medicine 1991; 10: 457-462.",
      "[3] Romeder JM, McWhinnie JR. Potential years of life lost between ages 1 and 70: an indicator of premature "
      "mortality for health planning. International Journal of Epidemiology 1977; 6: 143-151.",
      "[4] Klein RJ, Proctor SE, Boudreault MA, Turczyn KM. Healthy People 2010 criteria for data suppression. "
      "Statistical Notes 24. National Center for Health Statistics, 2002.",
  });
}

}  // namespace

std::string methodologyPage(const Study& study) {
  Prose prose = opened(study, study.texts.methodology, "Metodología",
                       "Este documento explica cómo se han calculado las cifras del estudio. Todas proceden de dos "
                       "recuentos: la población y las defunciones de cada zona básica de salud.");
  describeCounts(prose, study);
  describeRates(prose, study);
  describeLimits(prose);
  describeLifeLost(prose);
  describeShares(prose);
  describeCare(prose, study);
  citeSources(prose);
  return prose.page(study);
}

}  // namespace study::pages
