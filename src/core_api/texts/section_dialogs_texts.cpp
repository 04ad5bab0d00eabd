// The section library dialog and the dialog that adds a size, beyond the words of sections_texts.
#include "core_api/texts/text_tables.h"

namespace texts {

namespace {

constexpr TextRow rows[] = {
    {25300, {"Tables", "Tabellen", "Tabellen", "Tableaux"}},
    {25301, {"Groups", "Groepen", "Gruppen", "Groupes"}},
    {25302, {"Types", "Typen", "Typen", "Types"}},
    {25303, {"Save table", "Tabel opslaan", "Tabelle speichern", "Enregistrer le tableau"}},
    {25304, {"Undo", "Ongedaan maken", "Rückgängig", "Annuler"}},
    {25305, {"Redo", "Opnieuw", "Wiederholen", "Rétablir"}},
    {25306,
     {"There is a table named \"%1\" already. Choose another name.",
      "Er is al een tabel met de naam \"%1\". Kies een andere naam.",
      "Es gibt schon eine Tabelle namens \"%1\". Wählen Sie einen anderen Namen.",
      "Il existe déjà un tableau nommé « %1 ». Choisissez un autre nom."}},
    {25307,
     {"\"%1\" cannot be the name of a table. A name has at least one character and none of - \\ / "
      ": "
      "* ? \" < > |, and is not that of a device such as CON or COM1.",
      "\"%1\" kan geen naam van een tabel zijn. Een naam heeft minstens één teken, geen van - \\ / "
      ": "
      "* ? \" < > |, en is niet die van een apparaat zoals CON of COM1.",
      "\"%1\" kann kein Name einer Tabelle sein. Ein Name hat mindestens ein Zeichen, keines von "
      "- \\ / : * ? \" < > |, und ist nicht der eines Geräts wie CON oder COM1.",
      "« %1 » ne peut pas être le nom d'un tableau. Un nom a au moins un caractère, aucun de - \\ "
      "/ : "
      "* ? \" < > |, et n'est pas celui d'un périphérique comme CON ou COM1."}},
    {25308,
     {"The table cannot be read. Mend its file, or delete the table.",
      "De tabel kan niet worden gelezen. Herstel het bestand of verwijder de tabel.",
      "Die Tabelle kann nicht gelesen werden. Berichtigen Sie ihre Datei oder löschen Sie sie.",
      "Le tableau ne peut pas être lu. Corrigez son fichier ou supprimez le tableau."}},
    {25309,
     {"there are no column names; the second line of the file has to name the columns",
      "er zijn geen kolomnamen; de tweede regel van het bestand moet de kolommen noemen",
      "Spaltennamen fehlen; die zweite Zeile der Datei muss die Spalten nennen",
      "il n'y a pas de noms de colonnes ; la deuxième ligne du fichier doit nommer les colonnes"}},
    {25311,
     {"The groups and types of the library cannot be read.",
      "De groepen en typen van de bibliotheek kunnen niet worden gelezen.",
      "Die Gruppen und Typen der Bibliothek können nicht gelesen werden.",
      "Les groupes et types de la bibliothèque ne peuvent pas être lus."}},
    {25312,
     {"Replace the files by what is shown here?", "De bestanden vervangen door wat hier staat?",
      "Die Dateien durch das ersetzen, was hier steht?",
      "Remplacer les fichiers par ce qui est affiché ici ?"}},
    {25313,
     {"There are more fields in a line than the table has columns from here on.",
      "Een regel heeft meer velden dan de tabel vanaf hier kolommen heeft.",
      "Eine Zeile hat mehr Felder, als die Tabelle ab hier Spalten hat.",
      "Une ligne a plus de champs que le tableau n'a de colonnes à partir d'ici."}},
    {25320,
     {"Further values: %1. They are taken over from %2.",
      "Overige waarden: %1. Ze worden overgenomen van %2.",
      "Weitere Werte: %1. Sie werden von %2 übernommen.",
      "Autres valeurs : %1. Elles sont reprises de %2."}},
    {25321,
     {"The size has no name. Type values or a name of its own.",
      "De maat heeft geen naam. Typ waarden of een eigen naam.",
      "Die Größe hat keinen Namen. Geben Sie Werte oder einen eigenen Namen ein.",
      "La taille n'a pas de nom. Tapez des valeurs ou un nom."}},
    {25322,
     {"There is a size \"%1\" in this table already. Change its values, or give it another name.",
      "Deze tabel heeft al een maat \"%1\". Wijzig de waarden of kies een andere naam.",
      "Diese Tabelle hat schon eine Größe \"%1\". Ändern Sie die Werte oder den Namen.",
      "Ce tableau a déjà une taille « %1 ». Changez ses valeurs ou son nom."}},
    {25323,
     {"\"%1\" is no number. Write numbers like 12.5",
      "\"%1\" is geen getal. Schrijf getallen als 12.5",
      "\"%1\" ist keine Zahl. Schreiben Sie Zahlen wie 12.5",
      "« %1 » n'est pas un nombre. Écrivez les nombres comme 12.5"}},
    {25324,
     {"The size that the new one is made from is not complete. Edit it in the section library "
      "first.",
      "De maat waarvan de nieuwe wordt gemaakt, is onvolledig. Bewerk haar eerst in de "
      "profielbibliotheek.",
      "Die Größe, aus der die neue entsteht, ist unvollständig. Bearbeiten Sie sie zuerst in der "
      "Profilbibliothek.",
      "La taille dont la nouvelle est tirée est incomplète. Modifiez-la d'abord dans la "
      "bibliothèque "
      "de profilés."}},
    {25325, {"%1, calculated", "%1, berekend", "%1, berechnet", "%1, calculé"}},
    {25326,
     {"Further values: %1. They are calculated from the dimensions.",
      "Overige waarden: %1. Ze worden uit de afmetingen berekend.",
      "Weitere Werte: %1. Sie werden aus den Abmessungen berechnet.",
      "Autres valeurs : %1. Elles sont calculées d'après les dimensions."}},
    {25327,
     {"Further values: %1. %3 are calculated from the dimensions, the others taken over from %2.",
      "Overige waarden: %1. %3 worden uit de afmetingen berekend, de andere overgenomen van %2.",
      "Weitere Werte: %1. %3 werden aus den Abmessungen berechnet, die anderen von %2 übernommen.",
      "Autres valeurs : %1. %3 sont calculées d'après les dimensions, les autres reprises de %2."}},
    {25328,
     {"These dimensions make no section, so that %1 cannot be calculated. Correct them, or type "
      "the value.",
      "Deze afmetingen vormen geen profiel; %1 kan niet worden berekend. Verbeter ze of typ de "
      "waarde.",
      "Diese Abmessungen ergeben kein Profil; %1 lässt sich nicht berechnen. Berichtigen Sie sie, "
      "oder geben Sie den Wert ein.",
      "Ces dimensions ne forment pas de profilé ; %1 ne peut pas être calculé. Corrigez-les ou "
      "tapez la valeur."}},
    {25329,
     {"The section is a drawing, of which %1 cannot be calculated. Type the value.",
      "Het profiel is een tekening, waarvan %1 niet kan worden berekend. Typ de waarde.",
      "Das Profil ist eine Zeichnung, von der sich %1 nicht berechnen lässt. Geben Sie den Wert "
      "ein.",
      "Le profilé est un dessin, dont %1 ne peut pas être calculé. Tapez la valeur."}},
    {25330,
     {"Edit library…", "Bibliotheek bewerken…", "Bibliothek bearbeiten…",
      "Modifier la bibliothèque…"}},
    {25331, {"Add size…", "Maat toevoegen…", "Größe hinzufügen…", "Ajouter une taille…"}},
    {26950,
     {"Made from its values, %1 would be called %2. An own name can keep its form.",
      "Uit zijn waarden gemaakt zou %1 %2 heten. Een eigen naam kan de vorm houden.",
      "Aus seinen Werten gebildet hieße %1 nur %2. Ein eigener Name kann die Form behalten.",
      "Formé de ses valeurs, %1 s'appellerait %2. Un nom libre peut garder sa forme."}},
    {26951,
     {"%1: the picture of this user section cannot be kept; it is shown without one: %2",
      "%1: de afbeelding van dit eigen profiel kan niet worden bewaard en wordt niet getoond: %2",
      "%1: das Bild dieses eigenen Profils kann nicht abgelegt werden und wird nicht gezeigt: %2",
      "%1 : l'image de ce profilé propre ne peut pas être conservée et n'est pas montrée : %2"}},
};

}  // namespace

constinit const std::span<const TextRow> sectionDialogsTexts = rows;

}  // namespace texts
