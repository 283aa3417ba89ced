#include "study/causes.h"

namespace study {

const std::vector<PublishedCause>& publishedCauses() {
  using enum Cause;
  static const std::vector<Cause> tumours{tumourOfStomach, tumourOfColon,    tumourOfLung,
                                          tumourOfBreast,  tumourOfProstate, otherTumours};
  static const std::vector<Cause> circulatory{heartInfarction, cerebrovascular, otherCirculatory};
  static const std::vector<Cause> respiratory{pneumonia, chronicLowerRespiratory, otherRespiratory};
  static const std::vector<PublishedCause> causes{
      {kBroadGroups, "Afecciones perinatales y malformaciones congénitas", {perinatalAndCongenital}},
      {kBroadGroups, "Causas externas de mortalidad", {trafficAccidents, otherExternal}},
      {kBroadGroups, "Enfermedades del sistema circulatorio", circulatory},
      {kBroadGroups, "Enfermedades del sistema digestivo", {digestive}},
      {kBroadGroups, "Enfermedades del sistema genitourinario", {genitourinary}},
      {kBroadGroups, "Enfermedades del sistema nervioso y de los órganos de los sentidos", {nervous}},
      {kBroadGroups, "Enfermedades del sistema respiratorio", respiratory},
      {kBroadGroups, "Enfermedades endocrinas, nutricionales y metabólicas", {diabetes, otherEndocrine}},
      {kBroadGroups, "Enfermedades infecciosas y parasitarias", {infectious}},
      {kBroadGroups, "Síntomas y estados morbosos mal definidos", {illDefined}},
      {kBroadGroups, "Trastornos mentales y del comportamiento", {organicMental, otherMental}},
      {kBroadGroups, "Tumores", tumours},
      {kReducedList, "Accidentes de tráfico de vehículos de motor", {trafficAccidents}},
      {kReducedList, "Diabetes mellitus", {diabetes}},
      {kReducedList, "Enfermedades cerebrovasculares", {cerebrovascular}},
      {kReducedList,
       "Enfermedades crónicas de las vías respiratorias inferiores excepto asma",
       {chronicLowerRespiratory}},
      {kReducedList, "Enfermedades del sistema circulatorio", circulatory},
      {kReducedList, "Enfermedades del sistema digestivo", {digestive}},
      {kReducedList, "Enfermedades del sistema respiratorio", respiratory},
      {kReducedList, "Infarto agudo de miocardio", {heartInfarction}},
      {kReducedList, "Neumonía", {pneumonia}},
      {kReducedList, "Trastornos mentales orgánicos senil y presenil", {organicMental}},
      {kReducedList, "Tumor maligno de colon", {tumourOfColon}},
      {kReducedList, "Tumor maligno de estómago", {tumourOfStomach}},
      {kReducedList, "Tumor maligno de la mama", {tumourOfBreast}},
      {kReducedList, "Tumor maligno de la próstata", {tumourOfProstate}, false},
      {kReducedList, "Tumor maligno de la tráquea, de los bronquios y del pulmón", {tumourOfLung}},
      {kReducedList, "Tumores", tumours},
  };
  return causes;
}

}  // namespace study
