// Words that many dialogs share.
#include "core_api/texts/text_tables.h"

namespace texts {

namespace {

constexpr TextRow rows[] = {
    {1, {"OK", "OK", "OK", "OK"}},
    {2, {"Cancel", "Annuleren", "Abbrechen", "Annuler"}},
    {86, {"Value", "Waarde", "Wert", "Valeur"}},
    {87, {"Name", "Naam", "Name", "Nom"}},
    {90, {"Width", "Breedte", "Breite", "Largeur"}},
    {171, {"New", "Nieuw", "Neu", "Nouveau"}},
    {173, {"Move up", "Omhoog", "Nach oben", "Monter"}},
    {174, {"Move down", "Omlaag", "Nach unten", "Descendre"}},
    {285, {"Close", "Sluiten", "Schließen", "Fermer"}},
    {347, {"Filter", "Filter", "Filter", "Filtre"}},
    {606, {"Add", "Toevoegen", "Hinzufügen", "Ajouter"}},
    {607, {"Remove", "Verwijderen", "Entfernen", "Supprimer"}},
    {695, {"<varies>", "<wisselend>", "<verschieden>", "<variable>"}},
    {774, {"Insert row", "Rij invoegen", "Zeile einfügen", "Insérer une ligne"}},
    {775, {"Delete row", "Rij verwijderen", "Zeile löschen", "Supprimer la ligne"}},
    {841, {"Choose file", "Bestand kiezen", "Datei wählen", "Choisir un fichier"}},
    {842, {"Choose file", "Bestand kiezen", "Datei wählen", "Choisir un fichier"}},
    {2220, {"number", "aantal", "Anzahl", "nombre"}},
};

}  // namespace

constinit const std::span<const TextRow> generalTexts = rows;

}  // namespace texts
