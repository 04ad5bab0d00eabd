// Sheets: the context menu, asking for names, finding and replacing.
#include "core_api/texts/text_tables.h"

namespace texts {

namespace {

constexpr TextRow rows[] = {
    {1136,
     {"Find and replace", "Zoeken en vervangen", "Suchen und ersetzen", "Rechercher et remplacer"}},
    {1137, {"Find:", "Zoeken naar:", "Suchen nach:", "Rechercher :"}},
    {1138, {"Replace by:", "Vervangen door:", "Ersetzen durch:", "Remplacer par :"}},
    {1139, {"Find next", "Volgende zoeken", "Weitersuchen", "Suivant"}},
    {1140, {"Replace", "Vervangen", "Ersetzen", "Remplacer"}},
    {1141, {"Replace all", "Alles vervangen", "Alle ersetzen", "Remplacer tout"}},
    {1142,
     {"The end of the table was reached.", "Het einde van de tabel is bereikt.",
      "Das Ende der Tabelle ist erreicht.", "La fin du tableau est atteinte."}},
    {1143,
     {"Continue from the beginning?", "Verder zoeken vanaf het begin?", "Am Anfang weitersuchen?",
      "Continuer depuis le début ?"}},
    {1144, {"Find", "Zoeken", "Suchen", "Rechercher"}},
    {1145,
     {"The text was not found.", "De tekst is niet gevonden.", "Der Text wurde nicht gefunden.",
      "Le texte est introuvable."}},
    {1146, {"Find", "Zoeken", "Suchen", "Rechercher"}},
    {1147, {"Replaced in", "Vervangen in", "Ersetzt in", "Remplacé dans"}},
    {1148, {"cells.", "cellen.", "Zellen.", "cellules."}},
    {1149, {"Replace all", "Alles vervangen", "Alle ersetzen", "Remplacer tout"}},
    {1150, {"Name", "Naam", "Name", "Nom"}},
    {1151, {"Name of the new", "Naam van de nieuwe", "Name für die neue", "Nom de la nouvelle"}},
    {1152, {"row", "rij", "Zeile", "ligne"}},
    {1153, {"column", "kolom", "Spalte", "colonne"}},
    {1154, {"Copy", "Kopiëren", "Kopieren", "Copier"}},
    {1155, {"Paste", "Plakken", "Einfügen", "Coller"}},
    {1156, {"Insert column", "Kolom invoegen", "Spalte einfügen", "Insérer une colonne"}},
    {1157, {"Delete column", "Kolom verwijderen", "Spalte löschen", "Supprimer la colonne"}},
    {1400, {"Check all", "Alles aanvinken", "Alle ankreuzen", "Cocher tout"}},
    {1401, {"Uncheck all", "Alles uitvinken", "Alle abwählen", "Décocher tout"}},
    {21500, {"Formulas", "Formules", "Formeln", "Formules"}},
    {21501, {"Load from File", "Laden uit bestand", "Aus Datei laden", "Charger"}},
    {21502, {"Save to File", "Opslaan in bestand", "In Datei speichern", "Enregistrer"}},
    {21503, {"&Default", "&Standaard", "&Standard", "&Standard"}},
    {21504, {"&A1", "&A1", "&A1", "&A1"}},
    {21505, {"&R1C1", "&R1C1", "&R1C1", "&R1C1"}},
    {21506,
     {"Auto calculate", "Automatisch berekenen", "Automatisch berechnen", "Calcul automatique"}},
    {21507, {"Recalculate", "Herberekenen", "Neu berechnen", "Recalculer"}},
};

}  // namespace

constinit const std::span<const TextRow> sheetTexts = rows;

}  // namespace texts
