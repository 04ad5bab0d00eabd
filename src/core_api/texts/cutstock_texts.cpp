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
    {621, {"&Item", "O&nderdeel", "Po&sten", "Art&icle"}},
    {622, {"&Add item", "Onderdeel &toevoegen", "Posten &hinzufügen", "&Ajouter un article"}},
    {623, {"&Delete item", "Onderdeel &verwijderen", "Posten &löschen", "&Supprimer l'article"}},
    {624,
     {"Tables of the item", "Tabellen van het onderdeel", "Tabellen des Postens",
      "Tableaux de l'article"}},
    {625, {"Parts to cut", "Te zagen delen", "Zuschnitte", "Pièces à débiter"}},
    {626, {"Stock", "Voorraad", "Bestand", "Stock"}},
    {627, {"Purchases", "Inkoop", "Einkauf", "Achats"}},
    {628, {"&Save all", "Alles o&pslaan", "Alle s&peichern", "&Enregistrer tout"}},
    {629, {"&Load all", "Alles &laden", "Alle la&den", "&Charger tout"}},
    {630,
     {"Ask for file &names", "Bestandsnamen v&ragen", "Dateinamen &erfragen",
      "&Demander les noms de fichier"}},
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
    {25200,
     {"No library folder is set; choose one first.",
      "Er is geen bibliotheekmap ingesteld; kies er eerst een.",
      "Es ist kein Bibliotheksordner eingestellt; bitte zuerst einen wählen.",
      "Aucun dossier de bibliothèque n'est défini ; choisissez-en un d'abord."}},
    {25201,
     {"This cannot be the name of an item, as its files lie in a folder of that name; leave out \\ "
      "/ : * ? \" < > |, a dot or blanks at its ends, and names of devices such as CON or COM1.",
      "Dit kan geen naam van een onderdeel zijn, omdat de bestanden in een map met die naam "
      "liggen; "
      "laat \\ / : * ? \" < > | een punt of spaties aan de uiteinden en namen van "
      "apparaten zoals CON of COM1 weg.",
      "Das kann kein Name eines Postens sein, denn seine Dateien liegen in einem Ordner dieses "
      "Namens; bitte \\ / : * ? \" < > | Punkt oder Leerzeichen an den Enden und Namen "
      "von Geräten wie CON oder COM1 weglassen.",
      "Ce ne peut être le nom d'un article, car ses fichiers se trouvent dans un dossier de ce nom "
      "; "
      "retirez \\ / : * ? \" < > | le point ou les espaces aux extrémités et les noms de "
      "périphériques comme CON ou COM1."}},
    {25202,
     {"a cell holds a line break, which files of rows cannot keep; remove it and save again",
      "een cel bevat een regeleinde, dat bestanden met rijen niet kunnen bewaren; verwijder het en "
      "sla opnieuw op",
      "eine Zelle enthält einen Zeilenumbruch, den Dateien aus Zeilen nicht halten können; bitte "
      "entfernen und erneut speichern",
      "une cellule contient un saut de ligne, que les fichiers de lignes ne peuvent conserver ; "
      "supprimez-le et enregistrez de nouveau"}},
    {25203,
     {"There is an item of this name already; choose another name.",
      "Er is al een onderdeel met deze naam; kies een andere naam.",
      "Es gibt schon einen Posten dieses Namens; bitte einen anderen wählen.",
      "Il existe déjà un article de ce nom ; choisissez-en un autre."}},
    {25204,
     {"The item has no rows in this table now. Cancel closes the dialog without this change.",
      "Het onderdeel heeft nu geen rijen in deze tabel. Annuleren sluit de dialoog zonder deze "
      "wijziging.",
      "Der Posten hat in dieser Tabelle jetzt keine Zeilen. Abbrechen schließt den Dialog ohne "
      "diese "
      "Änderung.",
      "L'article n'a plus de lignes dans ce tableau. Annuler ferme le dialogue sans cette "
      "modification."}},
    {25205, {"written", "geschreven", "geschrieben", "écrit"}},
    {25208,
     {"The list of items was changed by another program meanwhile. Replace it by what was edited "
      "here?",
      "De lijst met onderdelen is intussen door een ander programma gewijzigd. Vervangen door wat "
      "hier is bewerkt?",
      "Die Liste der Posten wurde inzwischen von einem anderen Programm geändert. Durch das hier "
      "Bearbeitete ersetzen?",
      "La liste des articles a été modifiée entre-temps par un autre programme. La remplacer par "
      "ce "
      "qui a été modifié ici ?"}},
    {25210, {"January", "januari", "Januar", "janvier"}},
    {25211, {"February", "februari", "Februar", "février"}},
    {25212, {"March", "maart", "März", "mars"}},
    {25213, {"April", "april", "April", "avril"}},
    {25214, {"May", "mei", "Mai", "mai"}},
    {25215, {"June", "juni", "Juni", "juin"}},
    {25216, {"July", "juli", "Juli", "juillet"}},
    {25217, {"August", "augustus", "August", "août"}},
    {25218, {"September", "september", "September", "septembre"}},
    {25219, {"October", "oktober", "Oktober", "octobre"}},
    {25220, {"November", "november", "November", "novembre"}},
    {25221, {"December", "december", "Dezember", "décembre"}},
    {26940,
     {"a table has room for 1048576 rows of 16384 cells, and this file has more; is it damaged?",
      "een tabel heeft plaats voor 1048576 rijen van 16384 cellen, en dit bestand heeft er meer; "
      "is het beschadigd?",
      "eine Tabelle hat Platz für 1048576 Zeilen zu 16384 Zellen, und diese Datei hat mehr; ist "
      "sie beschädigt?",
      "un tableau peut contenir 1048576 lignes de 16384 cellules, et ce fichier en a plus ; est-il "
      "endommagé ?"}},
};

}  // namespace

constinit const std::span<const TextRow> cutstockTexts = rows;

}  // namespace texts
