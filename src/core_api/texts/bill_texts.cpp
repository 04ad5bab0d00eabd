// Words in bills, and in the window that makes them.
#include "core_api/texts/text_tables.h"

namespace texts {

namespace {

constexpr TextRow rows[] = {
    {25100, {"Pos.", "Pos.", "Pos.", "Rep."}},
    {25101, {"Name", "Naam", "Name", "Nom"}},
    {25102, {"Kind", "Soort", "Art", "Genre"}},
    {25103, {"Section", "Profiel", "Profil", "Profilé"}},
    {25104, {"Material", "Materiaal", "Werkstoff", "Matériau"}},
    {25105, {"Length (mm)", "Lengte (mm)", "Länge (mm)", "Longueur (mm)"}},
    {25106, {"Width (mm)", "Breedte (mm)", "Breite (mm)", "Largeur (mm)"}},
    {25107, {"Thickness (mm)", "Dikte (mm)", "Dicke (mm)", "Épaisseur (mm)"}},
    {25108, {"Count", "Aantal", "Anzahl", "Nombre"}},
    {25109, {"Mass (kg)", "Massa (kg)", "Masse (kg)", "Masse (kg)"}},
    {25110, {"Total mass (kg)", "Totale massa (kg)", "Gesamtmasse (kg)", "Masse totale (kg)"}},
    {25111, {"Plate", "Plaat", "Blech", "Platine"}},
    {25112, {"Profile", "Profiel", "Profil", "Profilé"}},
    {25113, {"Bolt", "Bout", "Schraube", "Boulon"}},
    {25114, {"Subtotal", "Subtotaal", "Zwischensumme", "Sous-total"}},
    {25115, {"Total", "Totaal", "Summe", "Total"}},

    {25120, {"&Bill of materials…", "S&tuklijst…", "S&tückliste…", "No&menclature…"}},
    {25121, {"&Macros", "&Macro's", "&Makros", "&Macros"}},
    {25122, {"&Table (CSV)", "&Tabel (CSV)", "&Tabelle (CSV)", "&Tableau (CSV)"}},
    {25123, {"Columns", "Kolommen", "Spalten", "Colonnes"}},
    {25124, {"Group by", "Groeperen op", "Gruppieren nach", "Grouper par"}},
    {25125, {"no groups", "geen groepen", "keine Gruppen", "sans groupes"}},
    {25126,
     {"A &picture of each piece", "Een &afbeelding van elk onderdeel", "Ein &Bild jedes Teils",
      "Une &image de chaque pièce"}},
    {25127, {"Title", "Titel", "Titel", "Titre"}},
    {25128, {"Settings", "Instellingen", "Einstellungen", "Réglages"}},
    {25129, {"Save as", "Opslaan als", "Speichern unter", "Enregistrer sous"}},
    {25130,
     {"Nothing is chosen: tick a macro, or choose a table.",
      "Er is niets gekozen: vink een macro aan of kies een tabel.",
      "Es ist nichts gewählt: haken Sie ein Makro an oder wählen Sie eine Tabelle.",
      "Rien n'est choisi : cochez une macro ou choisissez un tableau."}},
    {25131,
     {"Making the bill…", "De stuklijst wordt gemaakt…", "Die Stückliste wird erstellt…",
      "Création de la nomenclature…"}},
    {25132,
     {"The bill was saved as %1", "De stuklijst is opgeslagen als %1",
      "Die Stückliste wurde gespeichert als %1", "La nomenclature a été enregistrée sous %1"}},
    {25133,
     {"No mass is known of %1; the totals are without them.",
      "Van %1 is geen massa bekend; de totalen zijn zonder.",
      "Von %1 ist keine Masse bekannt; die Summen sind ohne sie.",
      "La masse de %1 est inconnue ; les totaux sont sans elle."}},
    {25134, {"Bills", "Stuklijsten", "Stücklisten", "Nomenclatures"}},
    {25135, {"Times", "Aantal", "Mal", "Fois"}},
    {25136, {"Tables", "Tabellen", "Tabellen", "Tableaux"}},
    {25137,
     {"Choose a file ending in .sss, .tws, .xlsx, .csv or .pdf.",
      "Kies een bestand dat op .sss, .tws, .xlsx, .csv of .pdf eindigt.",
      "Wählen Sie eine Datei mit der Endung .sss, .tws, .xlsx, .csv oder .pdf.",
      "Choisissez un fichier en .sss, .tws, .xlsx, .csv ou .pdf."}},
    {25138,
     {"%1 is there already. Replace it?", "%1 bestaat al. Vervangen?",
      "%1 gibt es schon. Ersetzen?", "%1 existe déjà. Le remplacer ?"}},

    {26980,
     {"E&xport and print", "E&xporteren en afdrukken", "E&xportieren und drucken",
      "E&xporter et imprimer"}},
    {26981,
     {"The bill is made of %1. Choose another file for it.",
      "De stuklijst wordt gemaakt van %1. Kies er een ander bestand voor.",
      "Die Stückliste wird aus %1 erstellt. Wählen Sie eine andere Datei für sie.",
      "La nomenclature est faite de %1. Choisissez un autre fichier pour elle."}},
    {26982,
     {"row %1, column %2: \"%3\" is no number that fits into the column; the cell is empty, its "
      "note holds the text",
      "rij %1, kolom %2: \"%3\" is geen getal dat in de kolom past; de cel is leeg, de notitie "
      "bevat de tekst",
      "Zeile %1, Spalte %2: \"%3\" ist keine Zahl, die in die Spalte passt; die Zelle ist leer, "
      "ihre Notiz enthält den Text",
      "ligne %1, colonne %2 : \"%3\" n'est pas un nombre qui tient dans la colonne ; la cellule "
      "est vide, sa note contient le texte"}},
    {26983,
     {"%1 more texts are no numbers; see the notes of the cells",
      "nog %1 teksten zijn geen getallen; zie de notities van de cellen",
      "weitere %1 Texte sind keine Zahlen; siehe die Notizen der Zellen",
      "%1 autres textes ne sont pas des nombres ; voir les notes des cellules"}},
    {26984,
     {"the pictures of the bill cannot be kept in the folder for temporary files; make room there "
      "and try again",
      "de afbeeldingen van de stuklijst kunnen niet in de map voor tijdelijke bestanden worden "
      "bewaard; maak daar ruimte en probeer het opnieuw",
      "die Bilder der Stückliste können nicht im Ordner für temporäre Dateien abgelegt werden; "
      "schaffen Sie dort Platz und versuchen Sie es erneut",
      "les images de la nomenclature ne peuvent pas être mises dans le dossier des fichiers "
      "temporaires ; faites-y de la place et réessayez"}},
    {26989,
     {"The masses of sections do not fit their dimensions (in the table / by the dimensions): %1. "
      "The bill has those of the table.",
      "De massa's van profielen passen niet bij hun afmetingen (in de tabel / uit de afmetingen): "
      "%1. De stuklijst heeft die van de tabel.",
      "Die Massen von Profilen passen nicht zu ihren Abmessungen (in der Tabelle / aus den "
      "Abmessungen): %1. Die Stückliste hat die der Tabelle.",
      "Les masses de profilés ne correspondent pas à leurs dimensions (dans le tableau / d'après "
      "les dimensions) : %1. La nomenclature a celles du tableau."}},
};

}  // namespace

const std::span<const TextRow> billTexts = rows;

}  // namespace texts
