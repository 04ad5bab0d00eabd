// Attaching spreadsheets to a macro and choosing its objects.
#include "core_api/texts/text_tables.h"

namespace texts {

namespace {

constexpr TextRow rows[] = {
    {21520,
     {"Add and edit standards-spreadsheets", "Standaardspreadsheets toevoegen en bewerken",
      "Standard-Tabellen hinzufügen und bearbeiten",
      "Ajouter et modifier les feuilles de standards"}},
    {21521,
     {"Choose how the Spreadsheet should be mapped to this macro",
      "Kies hoe de spreadsheet aan deze macro wordt gekoppeld",
      "Wählen Sie, wie die Tabelle diesem Makro zugeordnet wird",
      "Choisissez comment la feuille est liée à cette macro"}},
    {21522, {"Spreadsheet", "Spreadsheet", "Tabelle", "Feuille"}},
    {21523, {"Maps to", "Gekoppeld aan", "Zugeordnet zu", "Liée à"}},
    {21524, {"<Entire macro>", "<Hele macro>", "<Ganzes Makro>", "<Macro entière>"}},
    {21525, {"Type", "Type", "Typ", "Type"}},
    {21526, {"Std Name", "Std-naam", "Std-Name", "Nom std"}},
    {21527, {"Macro object", "Macro-object", "Makro-Objekt", "Objet de la macro"}},
    {21528, {"&Add", "&Toevoegen", "&Hinzufügen", "&Ajouter"}},
    {21529, {"&Remove", "&Verwijderen", "&Entfernen", "&Supprimer"}},
    {21530, {"Move &up", "Om&hoog", "Nach &oben", "&Monter"}},
    {21531, {"Move &down", "Om&laag", "Nach &unten", "&Descendre"}},
    {21532, {"missing", "ontbreekt", "fehlt", "manquant"}},
    {21533,
     {"cannot be mapped under this name", "onder deze naam niet te koppelen",
      "unter diesem Namen nicht zuzuordnen", "ne peut être lié sous ce nom"}},
    {21534,
     {"Choose a spreadsheet, or remove the row. Row:",
      "Kies een spreadsheet of verwijder de rij. Rij:",
      "Wählen Sie eine Tabelle oder entfernen Sie die Zeile. Zeile:",
      "Choisissez une feuille ou supprimez la ligne. Ligne :"}},
    {21535,
     {"The macro can take no more spreadsheets; remove some first.",
      "De macro kan niet meer spreadsheets bevatten; verwijder er eerst een paar.",
      "Das Makro kann keine weiteren Tabellen aufnehmen; entfernen Sie zuerst einige.",
      "La macro ne peut plus recevoir de feuilles ; supprimez-en d'abord."}},
    {21536,
     {"A run will not find this object: it is of another type than the variable. Choose another "
      "object, or declare the variable with the object's type:",
      "Een berekening vindt dit object niet: het heeft een ander type dan de variabele. Kies een "
      "ander object of declareer de variabele met het type van het object:",
      "Eine Berechnung findet dieses Objekt nicht: es hat einen anderen Typ als die Variable. "
      "Wählen Sie ein anderes Objekt oder deklarieren Sie die Variable mit dem Typ des Objekts:",
      "Un calcul ne trouvera pas cet objet : son type n'est pas celui de la variable. Choisissez "
      "un autre objet ou déclarez la variable avec le type de l'objet :"}},
    {21537,
     {"The mapping was not saved, and no file was changed:",
      "De koppeling is niet opgeslagen en er is geen bestand gewijzigd:",
      "Die Zuordnung wurde nicht gespeichert, und keine Datei wurde geändert:",
      "La liaison n'a pas été enregistrée et aucun fichier n'a été modifié :"}},
    {21538,
     {"The variables of the spreadsheet cannot be shown:",
      "De variabelen van de spreadsheet kunnen niet worden getoond:",
      "Die Variablen der Tabelle können nicht angezeigt werden:",
      "Les variables de la feuille ne peuvent pas être affichées :"}},
    {21539,
     {"The name of a spreadsheet or a module group is longer than a macro can keep.",
      "De naam van een spreadsheet of modulegroep is langer dan een macro kan bewaren.",
      "Der Name einer Tabelle oder Modulgruppe ist länger, als ein Makro ihn speichern kann.",
      "Le nom d'une feuille ou d'un groupe de modules est trop long pour la macro."}},
    {21540,
     {"The mapping file cannot be read; its mappings are not shown:",
      "Het koppelingsbestand kan niet worden gelezen; de koppelingen worden niet getoond:",
      "Die Zuordnungsdatei kann nicht gelesen werden; die Zuordnungen werden nicht angezeigt:",
      "Le fichier des liaisons ne peut être lu ; elles ne sont pas affichées :"}},
};

}  // namespace

constinit const std::span<const TextRow> mappingTexts = rows;

}  // namespace texts
