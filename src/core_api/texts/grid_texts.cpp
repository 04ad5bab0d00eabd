// Grids: why a cell does not take what was typed, and calculations that take long. "%1" and "%2"
// stand for what the message is about.
#include "core_api/texts/text_tables.h"

namespace texts {

namespace {

constexpr TextRow rows[] = {
    {9201,
     {"This cell is locked.", "Deze cel is vergrendeld.", "Diese Zelle ist gesperrt.",
      "Cette cellule est verrouillée."}},
    {9202,
     {"This cell cannot be typed into.", "In deze cel kan niet worden getypt.",
      "In diese Zelle kann nichts eingegeben werden.", "Cette cellule n'accepte pas de saisie."}},
    {9203,
     {"\"%1\" is no number. Type digits and a point, such as 12.5.",
      "\"%1\" is geen getal. Typ cijfers en een punt, zoals 12.5.",
      "\"%1\" ist keine Zahl. Ziffern und einen Punkt eingeben, etwa 12.5.",
      "\"%1\" n'est pas un nombre. Tapez des chiffres et un point, comme 12.5."}},
    {9204,
     {"The number must lie between %1 and %2.", "Het getal moet tussen %1 en %2 liggen.",
      "Die Zahl muss zwischen %1 und %2 liegen.", "Le nombre doit être compris entre %1 et %2."}},
    {9205,
     {"At most %1 characters fit here.", "Hier passen hoogstens %1 tekens.",
      "Hier passen höchstens %1 Zeichen.", "%1 caractères au plus."}},
    {9206,
     {"\"%1\" is not in the list. Pick one of its lines with Alt+Down.",
      "\"%1\" staat niet in de lijst. Kies een regel met Alt+Omlaag.",
      "\"%1\" steht nicht in der Liste. Eine Zeile mit Alt+Ab wählen.",
      "\"%1\" n'est pas dans la liste. Choisissez une ligne avec Alt+Bas."}},
    {9207,
     {"The formula cannot be read: %1.", "De formule kan niet worden gelezen: %1.",
      "Die Formel ist nicht lesbar: %1.", "La formule est illisible : %1."}},
    {9208,
     {"Some cells did not take the pasted text.",
      "Sommige cellen hebben de geplakte tekst niet aangenomen.",
      "Einige Zellen haben den eingefügten Text nicht angenommen.",
      "Certaines cellules ont refusé le texte collé."}},
    {9209,
     {"A check box takes 1 or 0.", "Een selectievakje neemt 1 of 0 aan.",
      "Ein Kontrollkästchen nimmt 1 oder 0 an.", "Une case à cocher accepte 1 ou 0."}},
    {9210,
     {"The sheet is being calculated.", "Het werkblad wordt berekend.", "Das Blatt wird berechnet.",
      "La feuille est en cours de calcul."}},
    {9211, {"Stop", "Stoppen", "Anhalten", "Arrêter"}},
    {9212,
     {"The calculation was stopped. Cells that it did not reach show old results until the sheet "
      "is "
      "calculated again.",
      "De berekening is gestopt. Cellen die niet zijn bereikt, tonen oude resultaten tot het "
      "werkblad opnieuw wordt berekend.",
      "Die Berechnung wurde angehalten. Zellen, die sie nicht erreicht hat, zeigen alte "
      "Ergebnisse, "
      "bis das Blatt neu berechnet wird.",
      "Le calcul a été arrêté. Les cellules non atteintes montrent d'anciens résultats jusqu'au "
      "prochain calcul de la feuille."}},
};

}  // namespace

constinit const std::span<const TextRow> gridTexts = rows;

}  // namespace texts
