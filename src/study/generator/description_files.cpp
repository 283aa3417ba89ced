#include "study/generator/description_files.h"

#include <string>

#include "study/generator/cause_lists.h"
#include "study/generator/output_file.h"

namespace study::generator {

namespace {

constexpr std::string_view kTexts = R"(
[presentation]
title = "Estudio de Mortalidad en Veldoria"
text = """
Este estudio describe la mortalidad de Veldoria por sexo, grupo de edad y causa de muerte, para el conjunto de la región, sus provincias y sus zonas básicas de salud.

Veldoria es una región ficticia. No existen sus provincias, sus zonas ni sus habitantes: los mapas, la población y las defunciones se han generado por ordenador para mostrar cómo funciona la aplicación, y ninguna cifra procede de personas ni de registros reales. No deben usarse para sacar conclusiones sobre la salud de ningún lugar.

Quien disponga de los datos de otra región puede sustituir los ficheros de entrada por los suyos y preparar con ellos su propio estudio.
"""

[methodology]
title = "Metodología"
text = """
Origen de los datos. La región es ficticia y todos los datos son simulados. Los límites de las zonas se trazaron al azar a partir de un diagrama de Voronoi. La población de cada zona tiene una estructura por edad y sexo propia de ciudad, villa o campo. Las defunciones son números al azar con distribución de Poisson, cuya media depende del sexo, la edad, la causa, el lugar y el año.

Causas de muerte. Cada defunción tiene una sola causa, un grupo de códigos de la Clasificación Internacional de Enfermedades, décima revisión. Las causas se publican en dos listas: los grandes grupos, que se reparten todas las defunciones, y la lista reducida.

Tasas. La tasa bruta es el número de defunciones por cada 100.000 habitantes. La tasa estandarizada se calcula por el método directo, con 19 grupos de edad y la población europea estándar de 1976, y permite comparar zonas y años de distinta estructura por edad.

Cautela. Las tasas de zonas con pocas defunciones varían mucho por azar y deben interpretarse con prudencia.
"""

[credits]
title = "Créditos"
text = """
Datos: simulados por ordenador. La región de Veldoria, sus provincias y sus zonas básicas son ficticias, y cualquier parecido con lugares o personas reales es casual.
"""
)";

}  // namespace

void writeCauses(const std::filesystem::path& file) {
  OutputFile out(file);
  out << "code,cause,list,sums,sex\n";
  for (const ListedCause& cause : listedCauses()) {
    // Names hold commas, but no quotes.
    out << cause.code << ",\"" << cause.name << "\"," << cause.list << "," << cause.sums << "," << cause.sex << "\n";
  }
  out.close();
}

void writeSettings(const GeneratorSettings& settings, const std::filesystem::path& file) {
  OutputFile out(file);
  out << "# Datos simulados de una región ficticia: ninguna cifra es real.\n"
      << "region = \"Veldoria\"\n"
      << "years = [";
  for (std::size_t i = 0; i < settings.years.size(); ++i) out << (i > 0 ? ", " : "") << long{settings.years[i]};
  out << "]\n"
      << "standard = \"europea 1976\"\n"
      << "utm_zone = 30\n"
      << "source = \"Datos simulados de una región ficticia\"\n"
      << kTexts;
  out.close();
}

}  // namespace study::generator
