#include "spread/editor/function_words/function_words.h"

namespace editor {

namespace {

constexpr FunctionWords rows[] = {
    {"ADDRESS",
     {"Het adres van een cel als tekst; soort 1 is $A$1, 2 A$1, 3 $A1, 4 A1.",
      "Die Adresse einer Zelle als Text; Art 1 ist $A$1, 2 A$1, 3 $A1, 4 A1.",
      "L'adresse d'une cellule en texte ; le type 1 est $A$1, 2 A$1, 3 $A1, 4 A1."}},
    {"AREAS",
     {"Het aantal gebieden in een verwijzing.", "Die Anzahl der Bereiche in einem Bezug.",
      "Le nombre de zones d'une référence."}},
    {"CHOOSE",
     {"De waarde met dat nummer, geteld vanaf 1.", "Der Wert mit dieser Nummer, ab 1 gezählt.",
      "La valeur qui porte ce numéro, compté à partir de 1."}},
    {"COLUMN",
     {"Het kolomnummer van een verwijzing, of van de cel van de formule zelf.",
      "Die Spaltennummer eines Bezugs oder der Zelle der Formel selbst.",
      "Le numéro de colonne d'une référence, ou de la cellule de la formule."}},
    {"COLUMNS",
     {"Het aantal kolommen van een bereik.", "Die Anzahl der Spalten eines Bereichs.",
      "Le nombre de colonnes d'une plage."}},
    {"FORMULATEXT",
     {"De formule van een cel als tekst; #N/A als ze er geen heeft.",
      "Die Formel einer Zelle als Text; #N/A, wenn sie keine hat.",
      "La formule d'une cellule en texte ; #N/A si elle n'en a pas."}},
    {"HLOOKUP",
     {"Zoekt een waarde in de eerste rij van een tabel en geeft wat eronder staat in de rij met "
      "dat nummer. De eerste rij moet gesorteerd zijn, behalve als dichtstbij FALSE is.",
      "Sucht einen Wert in der ersten Zeile einer Tabelle und gibt, was darunter in der Zeile mit "
      "dieser Nummer steht. Die erste Zeile muss sortiert sein, außer wenn Nächster FALSE ist.",
      "Cherche une valeur dans la première ligne d'un tableau et donne ce qui se trouve dessous à "
      "la ligne de ce numéro. La première ligne doit être triée, sauf si proche est FALSE."}},
    {"INDEX",
     {"De cel van een bereik in een rij en kolom, geteld vanaf 1; 0 staat voor alle.",
      "Die Zelle eines Bereichs in einer Zeile und Spalte, ab 1 gezählt; 0 steht für alle.",
      "La cellule d'une plage à une ligne et une colonne comptées à partir de 1 ; 0 vaut pour "
      "toutes."}},
    {"INDIRECT",
     {"De verwijzing die een tekst noemt, in A1- of (a1 FALSE) R1C1-notatie.",
      "Der Bezug, den ein Text nennt, in A1- oder (a1 FALSE) R1C1-Schreibweise.",
      "La référence qu'un texte désigne, en notation A1 ou (a1 FALSE) R1C1."}},
    {"LOOKUP",
     {"Zoekt de laatste waarde van een gesorteerde rij of kolom die niet groter is dan de "
      "gezochte, en geeft wat op dezelfde plaats in de resultaten staat.",
      "Sucht den letzten Wert einer sortierten Zeile oder Spalte, der nicht größer ist als der "
      "gesuchte, und gibt, was an derselben Stelle der Ergebnisse steht.",
      "Cherche la dernière valeur d'une ligne ou colonne triée qui n'est pas supérieure à celle "
      "cherchée, et donne ce qui se trouve à la même place des résultats."}},
    {"MATCH",
     {"De plaats van een waarde in een rij of kolom, geteld vanaf 1. Volgorde 0: exact, teksten "
      "met jokertekens; 1: oplopend, de laatste waarde die niet groter is; -1: aflopend, de "
      "laatste die niet kleiner is.",
      "Die Stelle eines Werts in einer Zeile oder Spalte, ab 1 gezählt. Reihenfolge 0: genau, "
      "Texte mit Platzhaltern; 1: aufsteigend, der letzte nicht größere Wert; -1: absteigend, der "
      "letzte nicht kleinere.",
      "La place d'une valeur dans une ligne ou colonne, comptée à partir de 1. Ordre 0 : exact, "
      "textes avec jokers ; 1 : données croissantes, la dernière valeur non supérieure ; -1 : "
      "décroissantes, la dernière non inférieure."}},
    {"OFFSET",
     {"De verwijzing verschoven over rijen en kolommen, met een nieuwe grootte.",
      "Der Bezug, um Zeilen und Spalten verschoben und mit neuer Größe.",
      "La référence décalée de lignes et de colonnes, avec une nouvelle taille."}},
    {"ROW",
     {"Het rijnummer van een verwijzing, of van de cel van de formule zelf.",
      "Die Zeilennummer eines Bezugs oder der Zelle der Formel selbst.",
      "Le numéro de ligne d'une référence, ou de la cellule de la formule."}},
    {"ROWS",
     {"Het aantal rijen van een bereik.", "Die Anzahl der Zeilen eines Bereichs.",
      "Le nombre de lignes d'une plage."}},
    {"VLOOKUP",
     {"Zoekt een waarde in de eerste kolom van een tabel en geeft wat ernaast staat in de kolom "
      "met dat nummer. De eerste kolom moet gesorteerd zijn, behalve als dichtstbij FALSE is.",
      "Sucht einen Wert in der ersten Spalte einer Tabelle und gibt, was daneben in der Spalte mit "
      "dieser Nummer steht. Die erste Spalte muss sortiert sein, außer wenn Nächster FALSE ist.",
      "Cherche une valeur dans la première colonne d'un tableau et donne ce qui se trouve à côté, "
      "dans la colonne de ce numéro. La première colonne doit être triée, sauf si proche est "
      "FALSE."}},
    {"XLOOKUP",
     {"Zoekt een waarde en geeft wat op dezelfde plaats in de resultaten staat, of de vervangende "
      "waarde. Overeenkomst 0: exact, -1: of de volgende kleinere, 1: of de volgende grotere, 2: "
      "jokertekens. Zoeken 1: vanaf de eerste, -1: vanaf de laatste, 2 en -2: in oplopende en "
      "aflopende gegevens.",
      "Sucht einen Wert und gibt, was an derselben Stelle der Ergebnisse steht, oder den Ersatz. "
      "Vergleich 0: genau, -1: oder der nächstkleinere, 1: oder der nächstgrößere, 2: Platzhalter. "
      "Suche 1: vom ersten an, -1: vom letzten an, 2 und -2: in auf- und absteigenden Daten.",
      "Cherche une valeur et donne ce qui se trouve à la même place des résultats, ou la valeur de "
      "repli. Correspondance 0 : exacte, -1 : ou la suivante plus petite, 1 : ou la suivante plus "
      "grande, 2 : jokers. Recherche 1 : depuis le début, -1 : depuis la fin, 2 et -2 : données "
      "croissantes et décroissantes."}},
    {"XMATCH",
     {"De plaats van een waarde in een rij of kolom, geteld vanaf 1; overeenkomst en zoeken als "
      "bij XLOOKUP.",
      "Die Stelle eines Werts in einer Zeile oder Spalte, ab 1 gezählt; Vergleich und Suche wie "
      "bei XLOOKUP.",
      "La place d'une valeur dans une ligne ou colonne, comptée à partir de 1 ; correspondance et "
      "recherche comme pour XLOOKUP."}},
};

}  // namespace

std::span<const FunctionWords> lookupWords() {
    return rows;
}

}  // namespace editor
