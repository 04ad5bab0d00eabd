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
    {9101, {"&Yes", "&Ja", "&Ja", "&Oui"}},
    {9102, {"&No", "&Nee", "&Nein", "&Non"}},
    {9103, {"&Retry", "&Opnieuw", "&Wiederholen", "&Réessayer"}},
    {9104,
     {"%1 exists already. Replace it?", "%1 bestaat al. Vervangen?",
      "%1 ist schon vorhanden. Ersetzen?", "%1 existe déjà. Le remplacer ?"}},
    {9105,
     {"The name %1 cannot be used: choose or type another.",
      "De naam %1 kan niet worden gebruikt: kies of typ een andere.",
      "Der Name %1 ist nicht verwendbar: einen anderen wählen oder eingeben.",
      "Le nom %1 ne peut pas être utilisé : choisissez-en un autre."}},
    {9106,
     {"This character cannot be kept: %1. Use Western European letters.",
      "Dit teken kan niet worden bewaard: %1. Gebruik West-Europese letters.",
      "Dieses Zeichen kann nicht gespeichert werden: %1. Westeuropäische Buchstaben verwenden.",
      "Ce caractère ne peut pas être conservé : %1. Utilisez des lettres d'Europe occidentale."}},
    {9107, {"Look in:", "Zoeken in:", "Suchen in:", "Rechercher dans :"}},
    {9108, {"File &name:", "Bestands&naam:", "Datei&name:", "&Nom du fichier :"}},
    {9109, {"Files of type:", "Bestandstype:", "Dateityp:", "Type de fichier :"}},
    {9110, {"&Open", "&Openen", "Ö&ffnen", "&Ouvrir"}},
    {9111, {"&Save", "Op&slaan", "&Speichern", "&Enregistrer"}},
};

}  // namespace

constinit const std::span<const TextRow> generalTexts = rows;

}  // namespace texts
