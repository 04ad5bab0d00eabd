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
};

}  // namespace

const std::span<const TextRow> billTexts = rows;

}  // namespace texts
