// Cutting stock.
#include "core_api/texts/text_tables.h"

namespace texts {

namespace {

constexpr TextRow rows[] = {
    {616, {"Insert row", "Rij invoegen", "Zeile einfügen", "Insérer une ligne"}},
    {617, {"Delete row", "Rij verwijderen", "Zeile löschen", "Supprimer la ligne"}},
    {618, {"Open file", "Bestand openen", "Datei öffnen", "Ouvrir un fichier"}},
    {619, {"Save file", "Bestand opslaan", "Datei speichern", "Enregistrer le fichier"}},
    {620, {"Cutting stock", "Zaagoptimalisatie", "Zuschnitt", "Débit de barres"}},
    {621, {"Item", "Onderdeel", "Posten", "Article"}},
    {622, {"Add item", "Onderdeel toevoegen", "Posten hinzufügen", "Ajouter un article"}},
    {623, {"Delete item", "Onderdeel verwijderen", "Posten löschen", "Supprimer l'article"}},
    {624,
     {"Tables of the item", "Tabellen van het onderdeel", "Tabellen des Postens",
      "Tableaux de l'article"}},
    {625, {"Parts to cut", "Te zagen delen", "Zuschnitte", "Pièces à débiter"}},
    {626, {"Stock", "Voorraad", "Bestand", "Stock"}},
    {627, {"Purchases", "Inkoop", "Einkauf", "Achats"}},
    {628, {"Save all", "Alles opslaan", "Alle speichern", "Enregistrer tout"}},
    {629, {"Load all", "Alles laden", "Alle laden", "Charger tout"}},
    {630,
     {"Ask for file names", "Bestandsnamen vragen", "Dateinamen erfragen",
      "Demander les noms de fichier"}},
    {631, {"New item", "Nieuw onderdeel", "Neuer Posten", "Nouvel article"}},
    {632, {"Name of the item", "Naam van het onderdeel", "Name des Postens", "Nom de l'article"}},
    {633,
     {"There is no stock file", "Er is geen voorraadbestand", "Es gibt keine Bestandsdatei",
      "Il n'y a pas de fichier de stock"}},
    {634, {"for the item", "voor het onderdeel", "für den Posten", "pour l'article"}},
    {635, {"The stock file", "Het voorraadbestand", "Die Bestandsdatei", "Le fichier de stock"}},
    {636,
     {"was loaded, last changed on ", "is geladen, laatst gewijzigd op ",
      "wurde geladen, zuletzt geändert am ", "a été chargé, modifié le "}},
    {637,
     {"There is no purchase file", "Er is geen inkoopbestand", "Es gibt keine Einkaufsdatei",
      "Il n'y a pas de fichier d'achats"}},
    {638, {"The purchase file", "Het inkoopbestand", "Die Einkaufsdatei", "Le fichier d'achats"}},
    {652, {"Files loaded", "Geladen bestanden", "Geladene Dateien", "Fichiers chargés"}},
};

}  // namespace

constinit const std::span<const TextRow> cutstockTexts = rows;

}  // namespace texts
