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
    {9112, {"File changed", "Bestand gewijzigd", "Datei geändert", "Fichier modifié"}},
    {9113,
     {"%1\nwas changed by another program since it was opened.\n\nYes: overwrite it. What the "
      "other "
      "program wrote is lost.\nNo: load it again. What was changed here is lost.\nCancel: save "
      "nothing now.",
      "%1\nis door een ander programma gewijzigd sinds het werd geopend.\n\nJa: overschrijven. Wat "
      "het andere programma schreef, gaat verloren.\nNee: opnieuw laden. Wat hier is gewijzigd, "
      "gaat "
      "verloren.\nAnnuleren: nu niets opslaan.",
      "%1\nwurde seit dem Öffnen von einem anderen Programm geändert.\n\nJa: überschreiben. Was "
      "das "
      "andere Programm geschrieben hat, geht verloren.\nNein: neu laden. Was hier geändert wurde, "
      "geht verloren.\nAbbrechen: jetzt nichts speichern.",
      "%1\na été modifié par un autre programme depuis son ouverture.\n\nOui : le remplacer. Ce "
      "que "
      "l'autre programme a écrit est perdu.\nNon : le recharger. Ce qui a été modifié ici est "
      "perdu.\nAnnuler : ne rien enregistrer maintenant."}},
    {9114,
     {"The table %1 was changed by another program meanwhile: it has the size already, or other "
      "columns. Nothing was added.",
      "De tabel %1 is intussen door een ander programma gewijzigd: de maat staat er al in, of de "
      "kolommen zijn anders. Er is niets toegevoegd.",
      "Die Tabelle %1 wurde inzwischen von einem anderen Programm geändert: sie hat die Größe "
      "schon "
      "oder andere Spalten. Es wurde nichts hinzugefügt.",
      "Le tableau %1 a été modifié entre-temps par un autre programme : il contient déjà cette "
      "dimension ou a d'autres colonnes. Rien n'a été ajouté."}},
};

}  // namespace

constinit const std::span<const TextRow> generalTexts = rows;

}  // namespace texts
