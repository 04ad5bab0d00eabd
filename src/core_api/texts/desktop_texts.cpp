// Words that the desktop adds: what Qt's own dialogs say, the letters after Alt of the module's
// buttons, and messages that count one thing only.
#include "core_api/texts/text_tables.h"

namespace texts {

namespace {

constexpr TextRow rows[] = {
    {26000, {"English", "Nederlands", "Deutsch", "Français"}},
    {26001, {"&Add", "&Toevoegen", "&Hinzufügen", "&Ajouter"}},
    {26002, {"&Insert row", "Rij &invoegen", "&Zeile einfügen", "&Insérer une ligne"}},
    {26003, {"&Delete row", "Rij &verwijderen", "Zeile &löschen", "&Supprimer la ligne"}},
    {26004, {"Move &up", "Om&hoog", "Nach &oben", "&Monter"}},
    {26005, {"Move do&wn", "Om&laag", "Nach &unten", "&Descendre"}},
    {26006, {"&Copy", "&Kopiëren", "&Kopieren", "C&opier"}},
    {26007, {"&Paste", "&Plakken", "&Einfügen", "&Coller"}},
    {26008, {"&Insert", "&Invoegen", "&Einfügen", "&Insérer"}},
    {26009, {"&Delete", "&Verwijderen", "&Löschen", "&Supprimer"}},
    {26010, {"1 cell changed.", "1 cel gewijzigd.", "1 Zelle geändert.", "1 cellule modifiée."}},
    {26011,
     {"At most 1 character fits here.", "Hier past hoogstens 1 teken.",
      "Hier passt höchstens 1 Zeichen.", "1 caractère au plus."}},
    {26020, {"Directory:", "Map:", "Ordner:", "Dossier :"}},
    {26021, {"Folder", "Map", "Ordner", "Dossier"}},
    {26022, {"Size", "Grootte", "Größe", "Taille"}},
    {26023, {"Type", "Type", "Typ", "Type"}},
    {26024, {"Date modified", "Gewijzigd op", "Geändert am", "Modifié le"}},
    {26025, {"&Choose", "&Kiezen", "&Auswählen", "&Choisir"}},
    {26026, {"Folders", "Mappen", "Ordner", "Dossiers"}},
    {26027, {"Back", "Terug", "Zurück", "Précédent"}},
    {26028, {"Forward", "Vooruit", "Vorwärts", "Suivant"}},
    {26029, {"Parent folder", "Bovenliggende map", "Übergeordneter Ordner", "Dossier parent"}},
    {26030, {"Create new folder", "Nieuwe map maken", "Neuen Ordner anlegen", "Créer un dossier"}},
    {26031, {"List", "Lijst", "Liste", "Liste"}},
    {26032, {"Details", "Details", "Details", "Détails"}},
    {26033, {"Computer", "Computer", "Computer", "Ordinateur"}},
    {26034, {"&Basic colours", "&Basiskleuren", "Grund&farben", "Couleurs de &base"}},
    {26035, {"&Custom colours", "&Eigen kleuren", "&Eigene Farben", "Couleurs &personnalisées"}},
    {26036,
     {"&Add to custom colours", "&Toevoegen aan eigen kleuren", "Zu eigenen Farben &hinzufügen",
      "&Ajouter aux couleurs personnalisées"}},
    {26037,
     {"&Pick screen colour", "Kleur van scherm &kiezen", "Farbe vom &Bildschirm wählen",
      "&Choisir à l'écran"}},
    {26038, {"Hu&e:", "Ti&nt:", "Farb&ton:", "T&einte :"}},
    {26039, {"&Sat:", "Ver&z.:", "&Sätt.:", "&Sat. :"}},
    {26040, {"&Val:", "Hel&d.:", "&Wert:", "&Val. :"}},
    {26041, {"&Red:", "&Rood:", "&Rot:", "&Rouge :"}},
    {26042, {"&Green:", "&Groen:", "&Grün:", "Ver&t :"}},
    {26043, {"Bl&ue:", "Bla&uw:", "Bla&u:", "Ble&u :"}},
    {26044, {"&HTML:", "&HTML:", "HTM&L:", "&HTML :"}},
    {26045,
     {"The file %1 is not there. Check its name.", "Het bestand %1 is er niet. Controleer de naam.",
      "Die Datei %1 gibt es nicht. Prüfen Sie den Namen.",
      "Le fichier %1 n'existe pas. Vérifiez son nom."}},
    {26046, {"&Undo", "&Ongedaan maken", "&Rückgängig", "&Annuler"}},
    {26047, {"&Redo", "Opnie&uw", "&Wiederholen", "&Rétablir"}},
    {26963, {"Choose fol&der", "&Map kiezen", "O&rdner wählen", "Choisir le &dossier"}},
};

}  // namespace

constinit const std::span<const TextRow> desktopTexts = rows;

}  // namespace texts
