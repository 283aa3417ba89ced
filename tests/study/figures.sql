-- All figures of a study, from its raw counts alone.
--
-- Given: deaths, population and causes as the files of these names; zones(zone, province).

-- Age groups with their completed years (`last` is exclusive) and the European standard population of 1976
-- (J. Waterhouse, C. Muir, P. Correa, J. Powell, "Cancer Incidence in Five Continents" III, IARC, Lyon 1976).
CREATE TABLE ages (position INTEGER PRIMARY KEY, age_group TEXT UNIQUE, first REAL, last REAL, weight REAL);
INSERT INTO ages (age_group, first, last, weight) VALUES
  ('0', 0, 1, 1600), ('1-4', 1, 5, 6400), ('5-9', 5, 10, 7000), ('10-14', 10, 15, 7000), ('15-19', 15, 20, 7000),
  ('20-24', 20, 25, 7000), ('25-29', 25, 30, 7000), ('30-34', 30, 35, 7000), ('35-39', 35, 40, 7000),
  ('40-44', 40, 45, 7000), ('45-49', 45, 50, 7000), ('50-54', 50, 55, 7000), ('55-59', 55, 60, 6000),
  ('60-64', 60, 65, 5000), ('65-69', 65, 70, 4000), ('70-74', 70, 75, 3000), ('75-79', 75, 80, 2000),
  ('80-84', 80, 85, 1000), ('85 y más', 85, NULL, 1000);

CREATE TABLE sexes (choice TEXT, sex TEXT);
INSERT INTO sexes VALUES ('Ambos sexos', 'Hombres'), ('Ambos sexos', 'Mujeres'), ('Hombres', 'Hombres'),
  ('Mujeres', 'Mujeres');

-- Units by the map table that they stand in, and the zones that each is made of.
CREATE TABLE units (unit INTEGER PRIMARY KEY, kind TEXT, province TEXT, name TEXT);
INSERT INTO units (kind, province, name) SELECT 'ZonasBasicas', province, zone FROM zones;
INSERT INTO units (kind, province, name) SELECT DISTINCT 'Provincias', '', province FROM zones;
INSERT INTO units (kind, province, name) VALUES ('Veldoria', '', 'Veldoria');
CREATE TABLE members AS
  SELECT unit, zone FROM units JOIN zones
    ON kind = 'Veldoria' OR (kind = 'Provincias' AND name = zones.province) OR (kind = 'ZonasBasicas' AND name = zone);

CREATE TABLE persons (unit, year, choice, age_group, n INTEGER, PRIMARY KEY (unit, year, choice, age_group));
INSERT INTO persons
  SELECT unit, year, choice, age_group, SUM(persons) FROM population JOIN members USING (zone) JOIN sexes USING (sex)
  GROUP BY unit, year, choice, age_group;
-- `even` is what a death adds to the standardised rate if it may be any person's: the root of the mean square.
CREATE TABLE people (unit, year, choice, n INTEGER, young INTEGER, even REAL, PRIMARY KEY (unit, year, choice));
INSERT INTO people
  SELECT unit, year, choice, SUM(n), SUM(CASE WHEN last <= 70 THEN n ELSE 0 END),
    sqrt(SUM(weight * weight / n) / SUM(n)) * 1e5 / (SELECT SUM(weight) FROM ages)
  FROM persons JOIN ages USING (age_group) GROUP BY unit, year, choice;

-- What is counted together: each published cause, and all causes (0).
CREATE TABLE subjects (subject INTEGER PRIMARY KEY, list TEXT, name TEXT, sex TEXT);
INSERT INTO subjects SELECT rowid, list, cause, sex FROM causes;
INSERT INTO subjects VALUES (0, '', '', 'Ambos sexos');
CREATE TABLE sums AS
  SELECT causes.rowid AS subject, value AS code FROM causes, json_each('["' || replace(sums, ' ', '","') || '"]')
  UNION ALL SELECT 0, code FROM (SELECT DISTINCT cause AS code FROM deaths);

CREATE TABLE died (unit, year, choice, subject, age_group, d INTEGER,
                   PRIMARY KEY (unit, year, choice, subject, age_group));
INSERT INTO died
  SELECT unit, year, choice, subject, age_group, SUM(count)
  FROM deaths JOIN members USING (zone) JOIN sexes USING (sex) JOIN sums ON code = deaths.cause
  GROUP BY unit, year, choice, subject, age_group;

-- Every unit, year, sex and cause that the sex can die of, dead or not. `early` are the deaths before 70, `lost` their
-- years lost, from the middle of the age group on.
CREATE TABLE facts (unit, year, choice, subject, deaths INTEGER, early INTEGER, lost REAL, rate REAL, variance REAL,
                    PRIMARY KEY (unit, year, choice, subject));
INSERT INTO facts
  SELECT unit, year, choice, subject, IFNULL(SUM(d), 0), IFNULL(SUM(CASE WHEN last <= 70 THEN d END), 0),
    IFNULL(SUM(CASE WHEN last <= 70 THEN d * (70 - (first + last) / 2) END), 0),
    IFNULL(SUM(weight * d / n), 0) * 100000 / (SELECT SUM(weight) FROM ages),
    IFNULL(SUM(weight * weight * d / n / n), 0) * 1e10 / (SELECT SUM(weight) * SUM(weight) FROM ages)
  FROM (SELECT unit, year, choice FROM people) JOIN subjects ON choice IN (sex, 'Ambos sexos') OR sex = 'Ambos sexos'
    LEFT JOIN died USING (unit, year, choice, subject)
    LEFT JOIN persons USING (unit, year, choice, age_group)
    LEFT JOIN ages USING (age_group)
  GROUP BY unit, year, choice, subject;

-- The figures of the map tables. Without persons there is no rate.
CREATE VIEW map_figures AS
  WITH whole AS (SELECT * FROM facts JOIN people USING (unit, year, choice) WHERE subject = 0),
  figures AS (
    SELECT unit, year, choice, 'Indicadores generales' AS type, 'Fallecidos' AS indicator, deaths AS value FROM whole
    UNION ALL SELECT unit, year, choice, 'Indicadores generales', 'Población', n FROM whole
    UNION ALL SELECT unit, year, choice, 'Indicadores generales', 'Tasa bruta (x100.000)', deaths * 1e5 / n FROM whole
      WHERE n > 0
    UNION ALL SELECT unit, year, choice, 'Indicadores generales', 'Tasa estandarizada (x100.000)', rate FROM whole
      WHERE n > 0
    UNION ALL SELECT unit, year, choice, list, 'Tasa estandarizada (x100.000) de ' || name, rate
      FROM facts JOIN subjects USING (subject) JOIN people USING (unit, year, choice) WHERE subject > 0 AND n > 0)
  SELECT kind, year, province, name, choice, type, indicator, value FROM figures JOIN units USING (unit);
