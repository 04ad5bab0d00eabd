// Drawings: why values make no section ("%1" is the value's name), and what is said of one beside
// its drawing.
#include "core_api/texts/text_tables.h"

namespace texts {

namespace {

constexpr TextRow rows[] = {
    {25050,
     {"This is none of the section types.", "Dit is geen van de profieltypen.",
      "Dies ist keiner der Profiltypen.", "Ce n'est aucun des types de profilés."}},
    {25051,
     {"%1 is missing or is no number.", "%1 ontbreekt of is geen getal.",
      "%1 fehlt oder ist keine Zahl.", "%1 manque ou n'est pas un nombre."}},
    {25052,
     {"%1 has to be greater than 0.", "%1 moet groter zijn dan 0.", "%1 muss größer als 0 sein.",
      "%1 doit être supérieur à 0."}},
    {25053,
     {"%1 must not be less than 0.", "%1 mag niet kleiner zijn dan 0.",
      "%1 darf nicht kleiner als 0 sein.", "%1 ne doit pas être inférieur à 0."}},
    {25054,
     {"%1 has to lie between 0 and 180 degrees.", "%1 moet tussen 0 en 180 graden liggen.",
      "%1 muss zwischen 0 und 180 Grad liegen.", "%1 doit être compris entre 0 et 180 degrés."}},
    {25055,
     {"%1 is too large for the other values.", "%1 is te groot voor de andere waarden.",
      "%1 ist zu groß für die anderen Werte.", "%1 est trop grand pour les autres valeurs."}},
    {25056,
     {"Parts of the section run into each other: make it larger or its edges shorter.",
      "Delen van het profiel lopen in elkaar: maak het groter of de randen korter.",
      "Teile des Profils laufen ineinander: Machen Sie es größer oder seine Ränder kürzer.",
      "Des parties du profilé se recoupent : agrandissez-le ou raccourcissez ses bords."}},
    {25057,
     {"Drawn from the template %1, not from values: there is no outline to show.",
      "Getekend volgens het sjabloon %1, niet volgens waarden: er is geen omtrek te tonen.",
      "Nach der Vorlage %1 gezeichnet, nicht nach Werten: Es gibt keinen Umriss zu zeigen.",
      "Dessiné d'après le modèle %1 et non d'après des valeurs : il n'y a pas de contour à "
      "montrer."}},
    {25058, {"Area: %1 cm²", "Oppervlakte: %1 cm²", "Querschnittsfläche: %1 cm²", "Aire : %1 cm²"}},
    {25059, {"Mass: %1 kg/m", "Massa: %1 kg/m", "Masse: %1 kg/m", "Masse : %1 kg/m"}},
    {25060,
     {"Mass, calculated: %1 kg/m", "Massa, berekend: %1 kg/m", "Masse, berechnet: %1 kg/m",
      "Masse, calculée : %1 kg/m"}},
};

}  // namespace

const std::span<const TextRow> drawingTexts = rows;

}  // namespace texts
